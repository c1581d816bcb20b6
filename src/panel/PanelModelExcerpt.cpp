// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelExcerpt.h"

#include "foundation/Text.h"
#include "history/search/LookAlike.h"

#include <algorithm>
#include <vector>

namespace vellumry {

namespace {

constexpr qsizetype charactersBefore = 14;
constexpr qsizetype charactersBehind = 28;

/// The offsets at which the characters of `text` begin, and its length behind them.
std::vector<qsizetype> boundariesOf(QStringView text) {
    std::vector<qsizetype> boundaries;
    qsizetype offset = 0;
    text::forEachCharacter(text, [&](QStringView character) {
        boundaries.push_back(offset);
        offset += character.size();
        return true;
    });
    boundaries.push_back(text.size());
    return boundaries;
}

/// The index of the last boundary at or before `offset`.
qsizetype characterAt(const std::vector<qsizetype>& boundaries, qsizetype offset) {
    return qsizetype(std::ranges::upper_bound(boundaries, offset) - boundaries.begin()) - 1;
}

bool isBlankAt(const QString& text, qsizetype offset) {
    return text::isWhitespaceOrNewline(text.at(offset).unicode());
}

QString cutOut(const QString& text, const TextStretch& hit) {
    const auto boundaries = boundariesOf(text);
    const auto hitCharacter = characterAt(boundaries, hit.start);
    auto first = std::max<qsizetype>(0, hitCharacter - charactersBefore);
    const auto at = [&](qsizetype character) { return boundaries[std::size_t(character)]; };
    if (first > 0 && !isBlankAt(text, at(first - 1))) {
        for (auto character = first; character < hitCharacter; ++character) {
            if (isBlankAt(text, at(character))) {
                first = character + 1;
                break;
            }
        }
    }
    const auto count = qsizetype(boundaries.size()) - 1;
    const auto hitEnd = qsizetype(std::ranges::lower_bound(boundaries, hit.end) - boundaries.begin());
    const auto last = std::min(count, hitEnd + charactersBehind);

    auto excerpt = text.mid(at(first), at(last) - at(first)).replace(u'\n', u' ');
    if (first > 0)
        excerpt.prepend(u'…');
    if (last < count)
        excerpt.append(u'…');
    return excerpt;
}

} // namespace

std::optional<TextStretch> foldedRange(const QString& query, const QString& text) {
    const auto ranges = foldedRanges(query, text, 1);
    return ranges.empty() ? std::nullopt : std::optional(ranges.front());
}

std::vector<TextStretch> foldedRanges(const QString& query, const QString& text, std::size_t most) {
    const auto needle = text::folded(query);
    if (needle.isEmpty() || !text::folded(text).contains(needle))
        return {};
    // Folded character by character, so that each unit of the folded text leads back to the character it came from.
    QString folded;
    std::vector<TextStretch> origins;
    qsizetype offset = 0;
    text::forEachCharacter(text, [&](QStringView character) {
        const auto part = text::folded(character);
        folded += part;
        origins.insert(origins.end(), std::size_t(part.size()), TextStretch{offset, offset + character.size()});
        offset += character.size();
        return true;
    });
    std::vector<TextStretch> ranges;
    for (auto found = folded.indexOf(needle); found >= 0 && ranges.size() < most;
         found = folded.indexOf(needle, found + needle.size())) {
        const TextStretch range{origins[std::size_t(found)].start, origins[std::size_t(found + needle.size() - 1)].end};
        // Two hits may lie in one character; it is marked once.
        if (ranges.empty() || range.start >= ranges.back().end)
            ranges.push_back(range);
    }
    return ranges;
}

std::optional<QString> imageTextExcerpt(const QString& query, const QString& title, const QString& imageText) {
    const auto wanted = text::trimmed(query);
    if (wanted.isEmpty() || imageText.isEmpty() || foldedRange(wanted, title))
        return std::nullopt;
    if (const auto exact = foldedRange(wanted, imageText))
        return cutOut(imageText, *exact);
    if (const auto similar = lookAlikeRange(wanted, imageText))
        return cutOut(imageText, {similar->start, similar->end});
    return std::nullopt;
}

} // namespace vellumry
