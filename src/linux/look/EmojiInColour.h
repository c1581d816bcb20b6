// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Has emoji drawn in colour where the text font has black ones of its own, as DejaVu Sans does: from now on fonts
/// without colours have no emoji, so that Qt looks for them in the next font (Qt does the same by itself from 6.9 on).
/// Only characters that Unicode shows in colour unless it is told otherwise (Emoji_Presentation, UTS #51): signs like ☺
/// and digits stay with the text. Without a font of coloured emoji all stays as it is; that is looked up with the first
/// emoji. Has no effect where Qt brings a FreeType of its own. Before the first text is laid out.
void drawEmojiInColour();

} // namespace vellumry
