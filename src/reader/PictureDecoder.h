// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <optional>

/// Turns the bytes of PNG, JPEG, TIFF, WebP, BMP, GIF (the first frame) and HEIC files (the primary picture) into
/// pixels, within bounds that are checked on the header. Runs in the reader process, where a crafted file can do no
/// more than end it. One thread.
namespace vellumry::picturedecoder {

/// Loads the decoders: from here on no file is opened.
void loadDecoders();

/// The picture's size as stored; nothing for bytes that are no picture and for one that does not tell beforehand.
/// `canDecode` tells whether a decoder accepts the bytes.
struct Header {
    bool canDecode = false;
    std::optional<QSize> size;
};
[[nodiscard]] Header headerOf(QByteArrayView file);

/// The picture upright, made smaller so that its longer side has at most `longerSide` pixels; never larger than it is.
/// Null when it cannot be decoded or has more than `maxArea` pixels, a HEIC file more than `maxAreaOfHeif` too. `file`
/// must stay where it is meanwhile.
[[nodiscard]] QImage decode(QByteArrayView file, int longerSide, qint64 maxArea);

/// HEVC is decoded as a whole and slowly: with more pixels no thumbnail would come in time.
constexpr qint64 maxAreaOfHeif = 64'000'000;

/// The EXIF block of a HEIC file, which stands apart in it; empty for other files and without one.
[[nodiscard]] QByteArray separateExif(QByteArrayView file);

/// The longer side at which a picture of `size` is read: at most `maxPixelSize`, and such that the picture has at most
/// 36,000,000 pixels, so that a tall narrow one keeps its width and with that its legibility.
[[nodiscard]] int longerSideForReading(const QSize& size, int maxPixelSize);

/// The picture as it is read. A picture with more than 400,000,000 pixels is not opened.
[[nodiscard]] QImage imageForReading(QByteArrayView file, int maxPixelSize);

} // namespace vellumry::picturedecoder
