// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/Modifiers.h"

#include <QChar>
#include <QString>

namespace vellumry {

/// A key combination as portals want it, "CTRL+LOGO+v" (the shortcuts format of freedesktop.org, 0.1).
/// `character` is what the key types without modifiers. Empty for what no key symbol stands for.
[[nodiscard]] QString portalTrigger(QChar character, Modifiers modifiers);

} // namespace vellumry
