// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ThumbnailProvider.h"

#include <QPainter>
#include <QPainterPath>

namespace vellumry {

namespace {

constexpr QLatin1String wholeSuffix{"/whole"};

QImage roundedSquare(const QImage& picture, const QSize& size) {
    const QImage scaled = picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    const double radius = size.width() * 7.0 / 32.0;
    outline.addRoundedRect(QRectF(QPointF(), QSizeF(size)), radius, radius);
    painter.setClipPath(outline);
    painter.drawImage(QPointF((size.width() - scaled.width()) / 2.0, (size.height() - scaled.height()) / 2.0), scaled);
    return result;
}

} // namespace

ThumbnailProvider::ThumbnailProvider(Source source)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_source(std::move(source)) {}

QImage ThumbnailProvider::requestImage(const QString& id, QSize* size, const QSize& requested) {
    const QSize wanted = requested.isValid() && !requested.isEmpty() ? requested : QSize(32, 32);
    const QString key = id + QLatin1Char('@') + QString::number(wanted.width());
    QImage image;
    if (id.endsWith(wholeSuffix)) {
        const std::optional<QByteArray> bytes = m_source(QUuid::fromString(id.chopped(wholeSuffix.size())));
        image = bytes ? QImage::fromData(*bytes, "PNG") : QImage();
    } else if (const QImage* known = m_cache.object(key)) {
        image = *known;
    } else {
        const std::optional<QByteArray> bytes = m_source(QUuid::fromString(id));
        const QImage picture = bytes ? QImage::fromData(*bytes, "PNG") : QImage();
        if (!picture.isNull())
            image = roundedSquare(picture, wanted);
        m_cache.insert(key, new QImage(image));
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace vellumry
