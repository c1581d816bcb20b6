// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StyledText.h"

#include <QByteArray>
#include <QString>
#include <optional>

namespace vellumry {

/// The plain text of an RTF document (RTF 1.9.1): control words read, destinations such as font and colour tables left
/// out,
/// `\uN` with its fallback, `\'hh` in the document's code page, paragraphs as line feeds. Nothing when the bytes do not
/// begin as RTF or are broken off inside a group. Any thread; time and memory linear in the input.
[[nodiscard]] std::optional<QString> textOfRtf(const QByteArray& rtf);

/// The same text with its styles: weight, slant, lines, colour, size, fixed-width fonts.
[[nodiscard]] std::optional<StyledText> styledRtf(const QByteArray& rtf);

/// The text of an HTML document or a piece of one, as a browser would lay it out without any style sheet, with the
/// styles that its elements and `style` attributes say. What does not show (scripts, style sheets, hidden elements) is
/// left out; nothing is ever fetched, a picture is its alternative text. UTF-8, or UTF-16 with a byte order mark. Any
/// thread; time and memory linear in the input.
[[nodiscard]] StyledText styledHtml(const QByteArray& html);

} // namespace vellumry
