// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace vellumry {

/// The plain text of an RTF document (RTF 1.9.1): control words read, destinations such as font and colour tables left
/// out,
/// `\uN` with its fallback, `\'hh` in the document's code page, paragraphs as line feeds. Nothing when the bytes do not
/// begin as RTF or are broken off inside a group. Any thread; time and memory linear in the input.
[[nodiscard]] std::optional<QString> textOfRtf(const QByteArray& rtf);

} // namespace vellumry
