// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/search/FoldedIndex.h"

namespace vellumry {

/// Puts everything of a clip that its reader may remember into the index, as one text: title, text, the application
/// that it came from, and the words that were read in its picture. The text's slot.
[[nodiscard]] FoldedIndex::Slot appendFolded(const Clip& clip, FoldedIndex& index);

} // namespace vellumry
