// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery/CutTexts.h"

#include <QQuickItem>
#include <QRectF>
#include <QRegularExpression>
#include <algorithm>
#include <vector>

namespace vellumry {

namespace {

/// Room that the eye does not miss: fonts round their widths.
constexpr double tolerance = 2;

struct Written {
    QString text;
    QRectF box;   ///< what the letters take, in the window
    QRectF place; ///< what they may take
    bool isCut = false;
    QRectF seen{}; ///< what of `box` is not scrolled out of sight
};

bool isText(const QQuickItem& item) {
    return item.inherits("QQuickText") && !item.property("text").toString().trimmed().isEmpty();
}

Written written(const QQuickItem& item) {
    const double width = item.property("contentWidth").toDouble();
    const double height = item.property("contentHeight").toDouble();
    const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    // Only the size matters here, wherever the text is aligned in its place.
    const bool isToTheRight = item.property("effectiveHorizontalAlignment").toInt() == Qt::AlignRight;
    const double left = isToTheRight ? item.width() - width : 0;
    return {item.property("text").toString(), item.mapRectToScene(QRectF(left, 0, width, height)), place,
            item.property("truncated").toBool()};
}

/// What is scrolled out of sight is none of this.
void collect(const QQuickItem& item, QRectF sight, std::vector<Written>& found) {
    if (!item.isVisible() || item.opacity() == 0)
        return;
    if (item.clip())
        sight = sight.intersected(item.mapRectToScene(QRectF(0, 0, item.width(), item.height())));
    if (isText(item)) {
        Written text = written(item);
        text.seen = text.box.intersected(sight);
        if (!text.seen.isEmpty())
            found.push_back(text);
    }
    for (const QQuickItem* child : item.childItems())
        collect(*child, sight, found);
}

/// Titles are shown with marks, ellipses and line breaks in them: their beginning is enough.
bool isExcused(QString text, const QStringList& excused) {
    if (text.startsWith(u'…'))
        return !excused.isEmpty(); // from the middle of a clip
    static const QRegularExpression marks(QStringLiteral("<[^>]*>|…"));
    text.remove(marks);
    return std::ranges::any_of(excused, [&text](const QString& known) {
        return !known.isEmpty() && (text.startsWith(known.left(8)) || known.contains(text.left(8)));
    });
}

bool overlap(const QRectF& left, const QRectF& right) {
    const QRectF shared = left.intersected(right);
    return shared.width() > tolerance && shared.height() > tolerance + 2;
}

} // namespace

QStringList textsThatDoNotFit(const QQuickItem& root, const QStringList& excused) {
    std::vector<Written> texts;
    const QRectF window(0, 0, root.width(), root.height());
    collect(root, window, texts);
    QStringList found;
    for (std::size_t index = 0; index < texts.size(); ++index) {
        const Written& text = texts[index];
        if (isExcused(text.text, excused))
            continue;
        if (text.isCut)
            found.append(QStringLiteral("cut: ") + text.text);
        else if (text.box.width() > text.place.width() + tolerance)
            found.append(QStringLiteral("wider than its place: ") + text.text);
        if (text.box.left() < -tolerance || text.box.right() > window.right() + tolerance)
            found.append(QStringLiteral("outside of the window: ") + text.text);
        for (std::size_t other = 0; other < index; ++other) {
            if (!isExcused(texts[other].text, excused) && overlap(text.seen, texts[other].seen))
                found.append(QStringLiteral("over another: ") + text.text + QStringLiteral(" / ") + texts[other].text);
        }
    }
    return found;
}

} // namespace vellumry
