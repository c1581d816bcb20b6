// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>
#include <optional>

/// Text measured and cut the way a reader sees it: a "character" is an extended grapheme cluster (UAX #29).
/// Everything here is pure and may be called on any thread.
namespace vellumry::text {

/// Number of characters.
[[nodiscard]] qsizetype characterCount(QStringView text);

/// True when `text` has more than `limit` characters; looks no further than it must.
[[nodiscard]] bool hasMoreCharactersThan(QStringView text, qsizetype limit);

/// The first `count` characters, whole; the text itself (shared, not copied) when it has no more.
[[nodiscard]] QString firstCharacters(const QString& text, qsizetype count);

/// Calls `visit` for each character in order, until it answers false.
void forEachCharacter(QStringView text, const std::function<bool(QStringView)>& visit);

/// Unicode general category Z*, U+0009…U+000D, U+0085 (white space and newlines).
[[nodiscard]] bool isWhitespaceOrNewline(char32_t scalar);
/// Unicode general category Zs and the tab: white space within a line.
[[nodiscard]] bool isWhitespace(char32_t scalar);
/// U+000A…U+000D, U+0085, U+2028, U+2029.
[[nodiscard]] bool isNewline(char32_t scalar);

/// Both ends freed of white space and newlines.
[[nodiscard]] QString trimmed(const QString& text);
/// Both ends freed of white space within a line.
[[nodiscard]] QString trimmedOfWhitespace(const QString& text);
/// Both ends freed of newlines.
[[nodiscard]] QString trimmedOfNewlines(const QString& text);
[[nodiscard]] bool isBlank(QStringView text);

/// Split at each newline scalar (CR LF counts as one), empty lines kept.
[[nodiscard]] QStringList lines(QStringView text);

/// `text` without differences of case, diacritics and width: what two texts share when a reader would call them the
/// same word. One mapping for all languages but the Turkic i, which follows the current locale.
[[nodiscard]] QString folded(QStringView text);
/// `folded` with the i of all other languages, whatever the current locale.
[[nodiscard]] QString foldedWithoutLocale(QStringView text);
/// The UTF-8 bytes of `folded(text)`; plain ASCII is mapped without going through Unicode tables.
[[nodiscard]] QByteArray foldedBytes(QStringView text);
/// The UTF-8 bytes of `folded` of text that is UTF-8 already.
[[nodiscard]] QByteArray foldedBytes(const QByteArray& utf8);
/// True when `foldedBytes` does nothing to this text but make its letters small: it is ASCII, and the current locale
/// has the usual i.
[[nodiscard]] bool foldsToLowerCase(QByteArrayView utf8);

/// True for text of nothing but U+0000…U+007F, in UTF-16 units or in the bytes of any coding that begins with ASCII.
[[nodiscard]] bool isAscii(QStringView text);
[[nodiscard]] bool isAscii(QByteArrayView bytes);

/// Strict UTF-8 decoding: nothing when `bytes` are not valid UTF-8. A NUL is a character like any other.
[[nodiscard]] std::optional<QString> fromUtf8(const QByteArray& bytes);

} // namespace vellumry::text
