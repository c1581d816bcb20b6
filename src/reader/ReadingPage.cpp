// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReadingPage.h"

#include "reader/PageBands.h"

namespace vellumry {

std::vector<QRect> ReadingPage::bands() const {
    const double area = m_enlargement * m_enlargement;
    return pagebands::of(m_page, static_cast<qint64>(static_cast<double>(pagebands::largestWhole) / area),
                         static_cast<qint64>(static_cast<double>(pagebands::bandArea) / area));
}

QImage ReadingPage::part(const QRect& box) const {
    const QImage part = m_page.copy(box);
    if (m_enlargement == 1)
        return part;
    return part.scaled((QSizeF(box.size()) * m_enlargement).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QRect ReadingPage::onPage(const QRect& box, const QPoint& origin) const {
    const QRectF there(QPointF(box.topLeft()) / m_enlargement, QSizeF(box.size()) / m_enlargement);
    return there.toAlignedRect().translated(origin) & m_page.rect();
}

} // namespace vellumry
