// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageSummariser.h"

#include "reader/ImageMarks.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <new>

namespace vellumry {

namespace {

/// Enough for `maxArea` at four bytes a pixel.
constexpr int allocationLimitMegabytes = 1024;

struct Format {
    const char* name;
    QByteArrayView beginning;
};

/// Text formats (SVG) and rare ones are not opened: each decoder less is an attack less.
constexpr std::array<Format, 7> acceptedFormats{{{"png", {"\x89PNG\r\n\x1a\n", 8}},
                                                 {"jpeg", {"\xFF\xD8\xFF", 3}},
                                                 {"tiff", {"II*\0", 4}},
                                                 {"tiff", {"MM\0*", 4}},
                                                 {"webp", {"RIFF", 4}},
                                                 {"gif", {"GIF8", 4}},
                                                 {"bmp", {"BM", 2}}}};

/// The format that the bytes begin like. Told by us, since Qt would load each decoder that it finds and ask it.
QByteArray formatOf(QByteArrayView file) {
    const auto found = std::find_if(acceptedFormats.begin(), acceptedFormats.end(),
                                    [file](const Format& format) { return file.startsWith(format.beginning); });
    return found == acceptedFormats.end() ? QByteArray() : QByteArray(found->name);
}

QSize thumbnailSize(const QSize& picture, int pixels) {
    if (picture.width() <= pixels && picture.height() <= pixels)
        return picture;
    return picture.scaled(pixels, pixels, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

std::optional<QByteArray> encodePng(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return std::nullopt;
    return png;
}

std::optional<QByteArray> makeThumbnail(QImageReader& reader, const QSize& size, int pixels) {
    try {
        reader.setAutoTransform(true);
        if (size.isValid())
            reader.setScaledSize(thumbnailSize(size, pixels));
        QImage image = reader.read();
        // A format that does not tell its size beforehand.
        if (!image.isNull() && (image.width() > pixels || image.height() > pixels))
            image = image.scaled(thumbnailSize(image.size(), pixels), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return encodePng(image);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

} // namespace

ImageSummariser::ImageSummariser() {
    QImageReader::setAllocationLimit(allocationLimitMegabytes);
    for (const Format& format : acceptedFormats) {
        QBuffer nothing;
        nothing.open(QIODevice::ReadOnly);
        QImageReader reader(&nothing, format.name);
        reader.setAutoDetectImageFormat(false);
        (void)reader.canRead();
    }
}

readerprotocol::Reply ImageSummariser::summarise(QByteArrayView file, int thumbnailPixels) const {
    readerprotocol::Reply reply;
    const QByteArray format = formatOf(file);
    if (format.isEmpty())
        return reply;
    QByteArray bytes = QByteArray::fromRawData(file.data(), file.size());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    if (!reader.canRead())
        return reply;

    const QSize size = reader.size();
    if (size.width() > 0 && size.height() > 0)
        reply.pixelSize = size;
    // Marks alone make no picture.
    reply.isScreenshot = reply.pixelSize && imagemarks::isScreenshot(file);
    if (static_cast<qint64>(size.width()) * size.height() <= maxArea)
        reply.thumbnail = makeThumbnail(reader, reply.pixelSize.value_or(QSize()), thumbnailPixels);
    return reply;
}

} // namespace vellumry
