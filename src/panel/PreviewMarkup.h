// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StyledText.h"
#include "panel/PanelModelExcerpt.h"

#include <QColor>
#include <QString>
#include <vector>

/// A text of the preview with its styles and its hits, as markup that only says how letters look: every character of
/// the text is escaped, and nothing in it names a resource. Pure; main thread.
namespace vellumry::markup {

/// What styles are drawn with.
struct Look {
    QColor text{Qt::black};
    QColor ground{Qt::white};
    QColor accent{Qt::blue}; ///< of links
    QColor mark{Qt::yellow}; ///< beneath hits
    QString fixedFamily{};
    bool operator==(const Look&) const = default;
};

/// Hits of a text beyond these are not marked.
inline constexpr std::size_t mostHits = 200;

/// Where `text` holds `query`, trimmed, as foldedRange finds it: ascending, without overlaps.
[[nodiscard]] std::vector<TextStretch> hitsIn(const QString& query, const QString& text);
/// The same in text that was read from a picture: the first stretch that looks alike where none is exact.
[[nodiscard]] std::vector<TextStretch> hitsInPicture(const QString& query, const QString& text);

/// `text` for Text.RichText. `runs` as StyledText has them; what of them lies beyond the text is left out. Colours that
/// could not be read on the ground are changed until they can; greys are the reader's own text colour.
[[nodiscard]] QString styled(const QString& text, const std::vector<StyledRun>& runs,
                             const std::vector<TextStretch>& hits, const Look& look);

/// The beginning of a text up to the end of its first hit: what a view measures to bring the hit into sight. Empty
/// without hits.
[[nodiscard]] QString upToFirstHit(const QString& text, const std::vector<StyledRun>& runs,
                                   const std::vector<TextStretch>& hits, const Look& look);

} // namespace vellumry::markup
