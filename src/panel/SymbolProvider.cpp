// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/SymbolProvider.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

namespace vellumry {

namespace {

QString pathOf(const QString& name) { return QStringLiteral(":/vellumry/symbols/") + name + QStringLiteral(".svg"); }

/// The drawing in black, recoloured through its coverage.
QImage drawn(const QString& name, const QColor& tint, const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(pathOf(name));
    if (!renderer.isValid())
        return image;
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

} // namespace

QImage panelShadow() {
    constexpr int side = 128;
    constexpr double blur = 22;
    constexpr double margin = 28;
    constexpr double drop = 6;
    constexpr double radius = 14;
    constexpr double strength = 92;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            // Distance from a rounded rectangle that lies a little lower than the panel.
            const double half = side / 2.0 - margin;
            const double dx = std::max(std::abs(x + 0.5 - side / 2.0) - (half - radius), 0.0);
            const double dy = std::max(std::abs(y + 0.5 - drop - side / 2.0) - (half - radius), 0.0);
            const double outside = std::max(std::hypot(dx, dy) - radius, 0.0);
            const double fade = std::clamp(1.0 - outside / blur, 0.0, 1.0);
            line[x] = qPremultiply(qRgba(0, 0, 0, static_cast<int>(std::lround(strength * fade * fade))));
        }
    }
    return image;
}

SymbolProvider::SymbolProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

bool SymbolProvider::has(const QString& name) { return QFile::exists(pathOf(name)); }

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requested) {
    const QSize wanted = requested.isValid() && !requested.isEmpty() ? requested : QSize(24, 24);
    const QString key = id + QLatin1Char('@') + QString::number(wanted.width());
    if (const QImage* known = m_cache.object(key)) {
        if (size)
            *size = known->size();
        return *known;
    }
    QImage image;
    if (id == QLatin1String("shadow")) {
        image = panelShadow();
    } else {
        const qsizetype slash = id.lastIndexOf(QLatin1Char('/'));
        image = drawn(id.left(slash), QColor(QLatin1Char('#') + id.mid(slash + 1)), wanted);
    }
    m_cache.insert(key, new QImage(image));
    if (size)
        *size = image.size();
    return image;
}

} // namespace vellumry
