// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Text as a reader of pictures sees it: characters that look alike count as one. Pure; any thread.
namespace vellumry {

/// One key for each character of a text.
using LookAlikeKeys = std::vector<std::uint32_t>;

/// A stretch of keys, or of the UTF-16 units of a text: [start, end).
struct LookAlikeStretch {
    qsizetype start = 0;
    qsizetype end = 0;

    bool operator==(const LookAlikeStretch&) const = default;
};

/// The keys of `text`: each character folded by itself, the classes {! 1 i l |}, {$ 5 s} and {0 o} made one.
[[nodiscard]] LookAlikeKeys lookAlikeKeysOf(QStringView text);

/// How many characters of a query of that many may differ: none below 6, one below 12, else two.
[[nodiscard]] constexpr int allowedMismatches(std::size_t queryLength) {
    return queryLength < 6 ? 0 : queryLength < 12 ? 1 : 2;
}

/// The first stretch of `text` as long as `query` that differs from it in no more places than allowed. Nothing for an
/// empty query. A character too many or too few is not forgiven.
[[nodiscard]] std::optional<LookAlikeStretch> lookAlikeMatch(std::span<const std::uint32_t> query,
                                                             std::span<const std::uint32_t> text);

/// Where the trimmed `query` is found in `text`, in UTF-16 units; for highlighting.
[[nodiscard]] std::optional<LookAlikeStretch> lookAlikeRange(const QString& query, const QString& text);

} // namespace vellumry
