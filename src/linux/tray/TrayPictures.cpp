// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/TrayPictures.h"

#include <QBuffer>
#include <QPainter>
#include <QtEndian>

namespace vellumry {

namespace {

/// Twice what a menu shows, for dense displays; the desktop makes it smaller.
constexpr QSize menuSize{32, 32};

QByteArray png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") ? bytes : QByteArray();
}

QImage swatch(const QColor& colour) {
    QImage image(menuSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(TrayPictures::colour), 2));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(image.rect()).adjusted(3, 3, -3, -3), 5, 5);
    return image;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

TrayPixmap trayPixmap(const QImage& image) {
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    TrayPixmap pixmap{straight.width(), straight.height(), {}};
    pixmap.bytes.resize(qsizetype(4) * straight.width() * straight.height());
    auto* out = reinterpret_cast<uchar*>(pixmap.bytes.data());
    for (int y = 0; y < straight.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(straight.constScanLine(y));
        for (int x = 0; x < straight.width(); ++x, out += 4)
            qToBigEndian<quint32>(line[x], out);
    }
    return pixmap;
}

TrayPictures::TrayPictures(DrawSymbol drawSymbol)
    : m_drawSymbol(std::move(drawSymbol)) {}

QByteArray TrayPictures::pictureOf(const ActionMenuItem& item) {
    if (!item.swatch.isEmpty())
        return png(swatch(QColor(item.swatch)));
    if (item.symbol.isEmpty())
        return {};
    QByteArray& known = m_symbols[item.symbol];
    if (known.isEmpty())
        known = png(m_drawSymbol(item.symbol, QColor::fromRgb(colour), menuSize));
    return known;
}

QList<TrayPixmap> TrayPictures::mark() const {
    QList<TrayPixmap> mark;
    for (const int side : {16, 22, 24, 32, 48})
        mark.append(trayPixmap(m_drawSymbol(QStringLiteral("Logo"), QColor::fromRgb(colour), QSize(side, side))));
    return mark;
}

} // namespace vellumry
