// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/SymbolProvider.h"

#include "foundation/Logging.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>
#include <numbers>

namespace vellumry {

namespace {

QString pathOf(const QString& name) {
    return QStringLiteral(":/vellumry/symbols/") + name + QStringLiteral(".svg");
}

struct Shadow {
    int border = 0; ///< what of the picture is not stretched
    double margin = 0;
    double blur = 0; ///< standard deviation
    double drop = 0; ///< how much lower it lies than what throws it
    double strength = 0;
};

// A Gaussian blur of a rectangle is the product of the blurs of its two spans.
QImage shadowOf(const Shadow& shadow) {
    constexpr int stretched = 8;
    const int side = 2 * shadow.border + stretched;
    const auto covered = [&](double place) {
        const double scale = shadow.blur * std::numbers::sqrt2;
        return (std::erf((place - shadow.margin) / scale) - std::erf((place - (side - shadow.margin)) / scale)) / 2.0;
    };
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const double share = covered(x + 0.5) * covered(y + 0.5 - shadow.drop);
            line[x] = qPremultiply(qRgba(0, 0, 0, static_cast<int>(std::lround(shadow.strength * share))));
        }
    }
    return image;
}

} // namespace

// The drawing in black, recoloured through its coverage.
QImage symbolImage(const QString& name, const QColor& tint, const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(pathOf(name));
    if (!renderer.isValid()) {
        qCWarning(logging::views) << "there is no symbol" << name;
        return image;
    }
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

QImage panelShadow() {
    return shadowOf({.border = 86, .margin = 40, .blur = 12, .drop = 5, .strength = 84});
}

QImage smallShadow() {
    return shadowOf({.border = 32, .margin = 18, .blur = 5, .drop = 2, .strength = 84});
}

SymbolProvider::SymbolProvider()
    : QQuickImageProvider(QQuickImageProvider::Image) {}

bool SymbolProvider::has(const QString& name) {
    return QFile::exists(pathOf(name));
}

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
    } else if (id == QLatin1String("small-shadow")) {
        image = smallShadow();
    } else {
        const qsizetype slash = id.lastIndexOf(QLatin1Char('/'));
        image = symbolImage(id.left(slash), QColor(QLatin1Char('#') + id.mid(slash + 1)), wanted);
    }
    m_cache.insert(key, new QImage(image));
    if (size)
        *size = image.size();
    return image;
}

} // namespace vellumry
