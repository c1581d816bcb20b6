// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewMarkup.h"

#include "foundation/Text.h"
#include "history/search/LookAlike.h"
#include "views/ThemeColors.h"

#include <algorithm>
#include <utility>

namespace vellumry::markup {

namespace {

constexpr double textContrast = 4.5;

/// A colour that a reader takes for one, and not for a shade of the text's own.
bool isColorful(const QColor& color) {
    constexpr float leastSaturation = 0.25F;
    constexpr float leastValue = 0.2F;
    return color.hsvSaturationF() >= leastSaturation && color.valueF() >= leastValue;
}

QString colorRule(const QColor& color) {
    return QStringLiteral("color:") + color.name() + u';';
}

QString rulesOf(const TextStyle& style, bool isHit, const Look& look) {
    QString rules;
    if (style.isBold || isHit)
        rules += QStringLiteral("font-weight:600;");
    if (style.isItalic)
        rules += QStringLiteral("font-style:italic;");
    if (style.isUnderlined || style.isLink || style.isStruck) {
        rules += QStringLiteral("text-decoration:");
        rules += style.isUnderlined || style.isLink ? QStringLiteral(" underline") : QString();
        rules += style.isStruck ? QStringLiteral(" line-through;") : QStringLiteral(";");
    }
    if (style.isFixedWidth)
        rules += QStringLiteral("font-family:'%1';").arg(look.fixedFamily.toHtmlEscaped());
    // The few sizes that a parsed text has, by the words that the drawing knows for them.
    if (style.size < 1)
        rules += QStringLiteral("font-size:small;");
    else if (style.size > 1)
        rules += style.size < 1.4F   ? QStringLiteral("font-size:large;")
                 : style.size < 1.8F ? QStringLiteral("font-size:x-large;")
                                     : QStringLiteral("font-size:xx-large;");
    const QColor ground = isHit ? look.mark : look.ground;
    const QColor own = QColor::fromRgb(style.color.value_or(0));
    if (style.color && isColorful(own))
        rules += colorRule(legibleOn(ground, own, textContrast));
    else if (style.isLink)
        rules += colorRule(legibleOn(ground, look.accent, textContrast));
    if (isHit)
        rules += QStringLiteral("background-color:") + look.mark.name() + u';';
    return rules;
}

/// One line of a text, piece by piece.
class Line {
public:
    void add(QStringView piece, const QString& rules) {
        const QString escaped = piece.toString().toHtmlEscaped();
        m_markup += rules.isEmpty() ? escaped
                                    : QStringLiteral("<span style=\"") + rules + QStringLiteral("\">") + escaped +
                                          QStringLiteral("</span>");
    }
    /// A paragraph of its own, so that it runs as its letters do.
    [[nodiscard]] QString taken() {
        // A paragraph with a break alone would be two lines.
        const QString rules = QStringLiteral("margin:0;line-height:115%;white-space:pre-wrap");
        if (m_markup.isEmpty())
            return QStringLiteral("<p style=\"-qt-paragraph-type:empty;") + rules + QStringLiteral("\"><br/></p>");
        return QStringLiteral("<p style=\"") + rules + QStringLiteral("\">") + std::exchange(m_markup, QString()) +
               QStringLiteral("</p>");
    }

private:
    QString m_markup;
};

} // namespace

std::vector<TextStretch> hitsIn(const QString& query, const QString& text) {
    return foldedRanges(text::trimmed(query), text, mostHits);
}

std::vector<TextStretch> hitsInPicture(const QString& query, const QString& text) {
    auto hits = hitsIn(query, text);
    if (hits.empty() && !text::trimmed(query).isEmpty()) {
        if (const auto similar = lookAlikeRange(query, text))
            hits.push_back({similar->start, similar->end});
    }
    return hits;
}

QString styled(const QString& text, const std::vector<StyledRun>& runs, const std::vector<TextStretch>& hits,
               const Look& look) {
    QString markup;
    Line line;
    auto run = runs.begin();
    auto hit = hits.begin();
    qsizetype place = 0;
    while (place < text.size()) {
        while (run != runs.end() && run->start + run->length <= place)
            ++run;
        while (hit != hits.end() && hit->end <= place)
            ++hit;
        const bool isInRun = run != runs.end() && run->start <= place;
        const bool isInHit = hit != hits.end() && hit->start <= place;
        qsizetype end = text.indexOf(u'\n', place);
        end = end < 0 ? text.size() : end;
        if (run != runs.end())
            end = std::min(end, isInRun ? run->start + run->length : run->start);
        if (hit != hits.end())
            end = std::min(end, isInHit ? hit->end : hit->start);
        if (end > place)
            line.add(QStringView(text).sliced(place, end - place),
                     rulesOf(isInRun ? run->style : TextStyle(), isInHit, look));
        place = end;
        if (place < text.size() && text[place] == u'\n') {
            markup += line.taken();
            ++place;
        }
    }
    return markup + line.taken();
}

QString upToFirstHit(const QString& text, const std::vector<StyledRun>& runs, const std::vector<TextStretch>& hits,
                     const Look& look) {
    return hits.empty() ? QString() : styled(text.left(hits.front().end), runs, {}, look);
}

} // namespace vellumry::markup
