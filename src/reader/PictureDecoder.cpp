// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PictureDecoder.h"

#include "reader/HeifPicture.h"
#include "reader/PngThumbnail.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cmath>
#include <new>

namespace vellumry::picturedecoder {

namespace {

/// Enough for 250,000,000 pixels at four bytes each.
constexpr int allocationLimitMegabytes = 1024;
constexpr double readableArea = 36'000'000;
constexpr qint64 maxAreaForReading = 400'000'000;

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

QSize bounded(const QSize& picture, int longerSide) {
    if (picture.width() <= longerSide && picture.height() <= longerSide)
        return picture;
    return picture.scaled(longerSide, longerSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage shrunk(const QImage& image, int longerSide) {
    const QSize size = bounded(image.size(), longerSide);
    return image.isNull() || size == image.size() ? image
                                                  : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// A reader over bytes that stay where they are.
class BytesReader {
public:
    explicit BytesReader(QByteArrayView file)
        : m_bytes(QByteArray::fromRawData(file.data(), file.size()))
        , m_buffer(&m_bytes) {
        const QByteArray format = formatOf(file);
        m_buffer.open(QIODevice::ReadOnly);
        m_reader.setDevice(&m_buffer);
        m_reader.setFormat(format);
        m_reader.setAutoDetectImageFormat(false);
        m_canRead = !format.isEmpty() && m_reader.canRead();
    }
    [[nodiscard]] bool canRead() const { return m_canRead; }
    QImageReader* operator->() { return &m_reader; }

private:
    QByteArray m_bytes;
    QBuffer m_buffer;
    QImageReader m_reader;
    bool m_canRead = false;
};

/// Nothing for other files, and on a system that cannot open these.
std::optional<HeifPicture> heifPicture(QByteArrayView file) {
    if (!HeifPicture::isOne(file))
        return std::nullopt;
    const std::optional<HeifLibrary> library = HeifLibrary::open();
    return library ? HeifPicture::open(*library, file) : std::nullopt;
}

/// The decoder knows no scale of its own.
QImage decodeHeif(const HeifPicture& picture, int longerSide, qint64 maxArea) {
    const QSize size = picture.size();
    if (static_cast<qint64>(size.width()) * size.height() > std::min(maxArea, maxAreaOfHeif))
        return {};
    return shrunk(picture.decode(), longerSide);
}

QImage decodeByQt(QByteArrayView file, int longerSide, qint64 maxArea) {
    BytesReader reader(file);
    if (!reader.canRead())
        return {};
    const QSize size = reader->size();
    if (static_cast<qint64>(size.width()) * size.height() > maxArea)
        return {};
    if (const QSize smaller = bounded(size, longerSide); pngthumbnail::isFor(file, smaller))
        return pngthumbnail::shrunk(file, smaller);
    reader->setAutoTransform(true);
    if (size.width() > 0 && size.height() > 0)
        reader->setScaledSize(bounded(size, longerSide));
    // A format that does not tell its size beforehand is made smaller behind that.
    return shrunk(reader->read(), longerSide);
}

} // namespace

void loadDecoders() {
    (void)HeifLibrary::open();
    QImageReader::setAllocationLimit(allocationLimitMegabytes);
    for (const Format& format : acceptedFormats) {
        QBuffer nothing;
        nothing.open(QIODevice::ReadOnly);
        QImageReader reader(&nothing, format.name);
        reader.setAutoDetectImageFormat(false);
        (void)reader.canRead();
    }
}

Header headerOf(QByteArrayView file) {
    Header header;
    if (const auto picture = heifPicture(file))
        return {true, picture->size()};
    BytesReader reader(file);
    header.canDecode = reader.canRead();
    if (!header.canDecode)
        return header;
    const QSize size = reader->size();
    if (size.width() > 0 && size.height() > 0)
        header.size = size;
    return header;
}

QImage decode(QByteArrayView file, int longerSide, qint64 maxArea) {
    try {
        if (const auto picture = heifPicture(file))
            return decodeHeif(*picture, longerSide, maxArea);
        return decodeByQt(file, longerSide, maxArea);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

QByteArray separateExif(QByteArrayView file) {
    const auto picture = heifPicture(file);
    return picture ? picture->exif() : QByteArray();
}

int longerSideForReading(const QSize& size, int maxPixelSize) {
    const double longer = std::max(size.width(), size.height());
    const double shorter = std::min(size.width(), size.height());
    if (shorter < 1)
        return maxPixelSize;
    const double bound = std::max(1.0, std::trunc(std::sqrt(longer * readableArea / shorter)));
    return bound < maxPixelSize ? static_cast<int>(bound) : maxPixelSize;
}

QImage imageForReading(QByteArrayView file, int maxPixelSize) {
    const Header header = headerOf(file);
    if (!header.canDecode)
        return {};
    return decode(file, longerSideForReading(header.size.value_or(QSize()), maxPixelSize), maxAreaForReading);
}

} // namespace vellumry::picturedecoder
