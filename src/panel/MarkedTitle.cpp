// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/MarkedTitle.h"

#include "foundation/Text.h"
#include "panel/PanelModelExcerpt.h"

#include <algorithm>

namespace vellumry {

namespace {

/// Characters that fit in front of a hit before a row's end may cut it.
constexpr qsizetype roomBefore = 30;
constexpr qsizetype keptBefore = 14;
/// What a row can show; the rest of a long title need not be laid out.
constexpr qsizetype longest = 400;

/// Where a title begins of which the hit begins at `hit`: at the beginning, or at a word shortly before the hit.
qsizetype beginningFor(const QString& title, qsizetype hit) {
    if (hit <= roomBefore)
        return 0;
    const qsizetype earliest = hit - keptBefore;
    const qsizetype blank = title.indexOf(QLatin1Char(' '), earliest);
    qsizetype start = blank >= 0 && blank < hit ? blank + 1 : earliest;
    if (title.at(start).isLowSurrogate())
        ++start;
    return start;
}

} // namespace

QString markedTitle(const QString& title, const QString& query) {
    const QString wanted = text::trimmed(query);
    const auto hit = wanted.isEmpty() ? std::nullopt : foldedRange(wanted, title);
    if (!hit)
        return title.left(longest).toHtmlEscaped();
    const qsizetype start = beginningFor(title, hit->start);
    const QString before = title.mid(start, hit->start - start);
    return (start > 0 ? QStringLiteral("…") : QString()) + before.toHtmlEscaped() + QStringLiteral("<b>") +
           title.mid(hit->start, hit->end - hit->start).toHtmlEscaped() + QStringLiteral("</b>") +
           title.mid(hit->end, longest).toHtmlEscaped();
}

} // namespace vellumry
