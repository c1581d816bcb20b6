// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/LookAlike.h"

#include "foundation/Text.h"
#include "history/search/LookAlikeMatcher.h"

#include <QChar>
#include <algorithm>

namespace vellumry {

namespace {

std::uint32_t firstScalar(QStringView character) {
    if (character.isEmpty())
        return 0;
    if (character.size() > 1 && character[0].isHighSurrogate() && character[1].isLowSurrogate())
        return QChar::surrogateToUcs4(character[0], character[1]);
    return character[0].unicode();
}

/// One key for all characters that a reader of pictures takes for each other.
constexpr std::uint32_t representative(std::uint32_t scalar) {
    switch (scalar) {
    case '!':
    case '1':
    case 'i':
    case '|':
        return 'l';
    case '$':
    case '5':
        return 's';
    case '0':
        return 'o';
    default:
        return scalar;
    }
}

std::uint32_t keyOf(QStringView character) {
    if (character.size() == 1 && character[0] < u'\x80') {
        const char16_t unit = character[0].unicode();
        return representative(unit >= 'A' && unit <= 'Z' ? unit + ('a' - 'A') : unit);
    }
    // Folding may split a character (ß) or take it away (a lone accent): then it stands as it stood.
    const QString folded = text::foldedWithoutLocale(character);
    return representative(firstScalar(text::characterCount(folded) == 1 ? QStringView(folded) : character));
}

} // namespace

LookAlikeKeys lookAlikeKeysOf(QStringView text) {
    LookAlikeKeys keys;
    keys.reserve(static_cast<std::size_t>(text.size()));
    text::forEachCharacter(text, [&](QStringView character) {
        keys.push_back(keyOf(character));
        return true;
    });
    return keys;
}

std::optional<LookAlikeStretch> lookAlikeMatch(std::span<const std::uint32_t> query,
                                               std::span<const std::uint32_t> text) {
    const auto start = LookAlikeMatcher(query, LookAlikeAlphabet()).find(text);
    if (!start)
        return std::nullopt;
    return LookAlikeStretch{static_cast<qsizetype>(*start), static_cast<qsizetype>(*start + query.size())};
}

std::optional<LookAlikeStretch> lookAlikeRange(const QString& query, const QString& text) {
    const auto match = lookAlikeMatch(lookAlikeKeysOf(text::trimmed(query)), lookAlikeKeysOf(text));
    if (!match)
        return std::nullopt;
    LookAlikeStretch range;
    qsizetype count = 0;
    text::forEachCharacter(text, [&](QStringView character) {
        if (count < match->start)
            range.start += character.size();
        range.end += character.size();
        return ++count < match->end;
    });
    return range;
}

} // namespace vellumry
