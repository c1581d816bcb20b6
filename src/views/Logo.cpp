// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/Logo.h"

#include "views/LogoMotion.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace vellumry {

namespace {

const QColor tileColour(0x1d, 0x62, 0xdc);
const QColor nearClip(Qt::white);
const QColor middleClip(0xcf, 0xe0, 0xff);
const QColor farClip(0x8f, 0xb6, 0xff);
const QColor feathers(0x14, 0x24, 0x4a);
const QColor beakColour(0xff, 0xb4, 0x3c);

/// The drawing is made for a square of this side.
constexpr double side = 128;

void drawClips(QPainter& painter, const LogoMotion::Frame& frame) {
    painter.save();
    painter.setOpacity(frame.clips);
    const double fallen = (1 - frame.clips) * 26;
    const auto edge = [&painter](double top, const QColor& colour) {
        QPainterPath path(QPointF(34, top));
        path.lineTo(64, top + 14);
        path.lineTo(94, top);
        painter.strokePath(path, QPen(colour, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    edge(80 + fallen * 1.6, farClip);
    edge(62 + fallen * 1.3 + frame.tap * 2, middleClip);
    const double top = 44 + fallen + frame.tap * 5;
    QPainterPath sheet(QPointF(34, top));
    sheet.lineTo(64, top - 14);
    sheet.lineTo(94, top);
    sheet.lineTo(64, top + 14);
    sheet.closeSubpath();
    painter.fillPath(sheet, nearClip);
    painter.restore();
}

/// Looks over the tile's upper right corner, bent around its neck.
void drawBird(QPainter& painter, const LogoMotion::Frame& frame) {
    if (frame.head <= 0)
        return;
    painter.save();
    painter.translate(100, 40 + (1 - frame.head) * 34);
    painter.rotate(-frame.peck * 34);
    painter.translate(-100, -40);
    QPainterPath body;
    body.moveTo(118, 60);
    body.cubicTo(124, 30, 116, 8, 98, 8);
    body.cubicTo(84, 8, 78, 18, 80, 28);
    body.cubicTo(82, 38, 90, 42, 92, 58);
    body.cubicTo(94, 70, 116, 72, 118, 60);
    body.closeSubpath();
    painter.fillPath(body, feathers);
    // Seen on dark ground too.
    painter.strokePath(body, QPen(farClip, 1.5));
    QPainterPath beak(QPointF(81, 19));
    beak.lineTo(62, 30);
    beak.lineTo(82, 31);
    beak.closeSubpath();
    painter.fillPath(beak, beakColour);
    painter.setBrush(nearClip);
    painter.drawEllipse(QPointF(95, 21), 4.6, 4.6 * frame.eyeOpen);
    painter.setBrush(feathers);
    painter.drawEllipse(QPointF(93.8, 21), 2.2, 2.2 * frame.eyeOpen);
    painter.restore();
}

/// The sign as large as `size`.
void drawSign(QPainter& painter, const QSizeF& size, const LogoMotion::Frame& frame) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(size.width() / side, size.height() / side);
    painter.translate(side / 2, side / 2);
    painter.scale(frame.tile, frame.tile);
    painter.translate(-side / 2, -side / 2);
    QPainterPath tile;
    tile.addRoundedRect(QRectF(10, 14, 104, 104), 26, 26);
    painter.fillPath(tile, tileColour);
    drawClips(painter, frame);
    drawBird(painter, frame);
}

} // namespace

Logo::Logo(QQuickItem* parent)
    : QQuickPaintedItem(parent)
    , m_time(LogoMotion::duration) {
    setAntialiasing(true);
}

void Logo::setTime(qreal seconds) {
    if (seconds == m_time)
        return;
    m_time = seconds;
    update();
    Q_EMIT timeChanged();
}

qreal Logo::duration() const {
    return LogoMotion::duration;
}

void Logo::paint(QPainter* painter) {
    drawSign(*painter, size(), LogoMotion::frameAt(m_time));
}

QIcon Logo::windowIcon() {
    QIcon icon;
    for (const int pixels : {16, 32, 48, 64}) {
        QPixmap picture(pixels, pixels);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawSign(painter, picture.size(), LogoMotion::frameAt(LogoMotion::duration));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace vellumry
