// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "platform/desktop/ActionMenuItem.h"

namespace vellumry {

/// A clip as an entry of the program's menu, without keys and handler. A sensitive clip gives nothing of itself away.
[[nodiscard]] ActionMenuItem clipRow(const Clip& clip);

} // namespace vellumry
