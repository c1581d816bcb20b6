// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

namespace vellumry {

/// Fills `kind`, `title`, `searchText` and `isSensitive` of a draft by the text of its payload's first item, or by its
/// colour where there is no text. False when there is neither; the draft is then of no use. Pure; any thread.
[[nodiscard]] bool classifyText(ClipDraft& draft);

} // namespace vellumry
