// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Has emoji that the fonts of our texts lack drawn by a font of colours, where one is installed: Qt may come upon one
/// first that draws them in black. To be called when the application has its font; a second call changes nothing.
void preferColouredEmoji();

} // namespace vellumry
