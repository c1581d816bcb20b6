// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <optional>

/// The control words of RTF 1.9.1 that matter to its plain text. Pure; any thread.
namespace vellumry::rtf {

/// The Windows code page of a font's \fcharset; 0 where the document's own counts.
[[nodiscard]] int codePageOfCharset(int charset);

/// The character that a control word stands for, if it stands for one.
[[nodiscard]] std::optional<char16_t> characterOf(const QByteArray& word);

/// True for a word that opens a group whose content is no text of the document.
[[nodiscard]] bool isIgnoredDestination(const QByteArray& word);

} // namespace vellumry::rtf
