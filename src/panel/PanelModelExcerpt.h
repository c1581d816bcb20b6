// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <vector>

namespace vellumry {

/// A stretch of a text in UTF-16 units, from whole character to whole character: [start, end).
struct TextStretch {
    qsizetype start = 0;
    qsizetype end = 0;
    bool operator==(const TextStretch&) const = default;
};

/// Where `text` first holds `query`, without regard to case, diacritics and width. Nothing for an empty query. Pure.
[[nodiscard]] std::optional<TextStretch> foldedRange(const QString& query, const QString& text);

/// Every stretch of `text` that holds `query` in that way, ascending, without overlaps; the first `most` of them. Pure.
[[nodiscard]] std::vector<TextStretch> foldedRanges(const QString& query, const QString& text, std::size_t most);

/// What a row shows of an image's text around the hit of `query`: 14 characters before it, from the beginning of a
/// word, and 28 behind. Nothing when the query is blank, when the title shows the hit already, and when the text has
/// none. Pure.
[[nodiscard]] std::optional<QString> imageTextExcerpt(const QString& query, const QString& title,
                                                      const QString& imageText);

} // namespace vellumry
