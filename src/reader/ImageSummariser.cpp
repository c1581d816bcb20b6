// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageSummariser.h"

#include "reader/ImageMarks.h"
#include "reader/PictureDecoder.h"

#include <QBuffer>
#include <new>

namespace vellumry {

namespace {

std::optional<QByteArray> encodePng(const QImage& image) {
    try {
        QByteArray png;
        QBuffer buffer(&png);
        if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
            return std::nullopt;
        return png;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

} // namespace

ImageSummariser::ImageSummariser() {
    picturedecoder::loadDecoders();
}

readerprotocol::Reply ImageSummariser::summarise(QByteArrayView file, int thumbnailPixels) const {
    readerprotocol::Reply reply;
    const picturedecoder::Header header = picturedecoder::headerOf(file);
    if (!header.canDecode)
        return reply;
    reply.pixelSize = header.size;
    // Marks alone make no picture.
    reply.isScreenshot = reply.pixelSize && (imagemarks::isScreenshot(file) ||
                                             imagemarks::isScreenshot(picturedecoder::separateExif(file)));
    reply.thumbnail = encodePng(picturedecoder::decode(file, thumbnailPixels, maxArea));
    return reply;
}

} // namespace vellumry
