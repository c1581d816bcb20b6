// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StyledText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

/// The control words of RTF 1.9.1 that matter to its text and its styles. Pure; any thread.
namespace vellumry::rtf {

/// The Windows code page of a font's \fcharset; 0 where the document's own counts.
[[nodiscard]] int codePageOfCharset(int charset);

/// The character that a control word stands for, if it stands for one.
[[nodiscard]] std::optional<char16_t> characterOf(const QByteArray& word);

/// True for a word that opens a group whose content is no text of the document.
[[nodiscard]] bool isIgnoredDestination(const QByteArray& word);

/// What a document begins with and `\plain` returns to; sizes are half-points.
inline constexpr TextStyle plainStyle{.size = 24};

/// Changes `style` as a control word says; words that are not about a character's style change nothing.
void applyStyle(TextStyle& style, QByteArrayView word, std::optional<int> parameter);

} // namespace vellumry::rtf
