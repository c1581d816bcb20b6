// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageSummariser.h"

#include "reader/ImageMarks.h"
#include "reader/PictureDecoder.h"

#include <QBuffer>
#include <new>

namespace vellumry {

namespace {

/// Qt's numbers for how hard a PNG is packed. A preview is looked at once: tight packing takes as long as all the rest.
enum class Packing { tight = -1, quick = 80 };

std::optional<QByteArray> encodePng(const QImage& image, Packing packing) {
    try {
        QByteArray png;
        QBuffer buffer(&png);
        if (image.isNull() || !buffer.open(QIODevice::WriteOnly) ||
            !image.save(&buffer, "PNG", static_cast<int>(packing)))
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
    reply.thumbnail = encodePng(picturedecoder::decode(file, thumbnailPixels, maxArea), Packing::tight);
    return reply;
}

readerprotocol::Reply ImageSummariser::preview(QByteArrayView file, int longerSide) const {
    readerprotocol::Reply reply;
    if (picturedecoder::headerOf(file).canDecode)
        reply.thumbnail = encodePng(picturedecoder::decode(file, longerSide, maxArea), Packing::quick);
    return reply;
}

} // namespace vellumry
