// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PictureBytes.h"

#include <QBuffer>
#include <QtEndian>
#include <array>

namespace vellumry::picturebytes {

namespace {

/// CRC-32 as PNG has it (PNG 1.2, annex D).
quint32 checksum(const QByteArray& bytes) {
    quint32 value = 0xFFFFFFFF;
    for (const char byte : bytes) {
        value ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            value = value & 1 ? 0xEDB88320 ^ (value >> 1) : value >> 1;
    }
    return ~value;
}

template <typename Number>
QByteArray bytesOf(Number number, bool isBigEndian) {
    QByteArray bytes(sizeof(Number), '\0');
    if (isBigEndian)
        qToBigEndian(number, bytes.data());
    else
        qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray entry(quint16 tag, quint16 type, quint32 count, quint32 value, bool isBigEndian) {
    return bytesOf(tag, isBigEndian) + bytesOf(type, isBigEndian) + bytesOf(count, isBigEndian) +
           bytesOf(value, isBigEndian);
}

QByteArray folder(const QByteArray& onlyEntry, bool isBigEndian) {
    return bytesOf<quint16>(1, isBigEndian) + onlyEntry + bytesOf<quint32>(0, isBigEndian);
}

QByteArray tiffStart(bool isBigEndian) {
    return (isBigEndian ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4)) + bytesOf<quint32>(8, isBigEndian);
}

const QByteArray pngSignature("\x89PNG\r\n\x1a\n", 8);

QByteArray headerChunk(quint32 width, quint32 height) {
    return pngChunk("IHDR", bytesOf(width, true) + bytesOf(height, true) + QByteArray("\x08\x02\0\0\0", 5));
}

} // namespace

QByteArray encode(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format) ? bytes : QByteArray();
}

QImage twoColours(int width, int height, QImage::Format format) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, x < width / 2 ? Qt::red : Qt::blue);
    }
    return image.convertToFormat(format);
}

QByteArray pngChunk(const QByteArray& name, const QByteArray& content) {
    return bytesOf(static_cast<quint32>(content.size()), true) + name + content +
           bytesOf(checksum(name + content), true);
}

QByteArray pngWith(const QByteArray& chunks) {
    const QByteArray plain = encode(twoColours(1, 1), "PNG");
    constexpr qsizetype afterHeader = 8 + 25;
    return plain.first(afterHeader) + chunks + plain.sliced(afterHeader);
}

QByteArray pngHeader(quint32 width, quint32 height) {
    return pngSignature + headerChunk(width, height) + pngChunk("IDAT", QByteArray::fromHex("789c03000000000001")) +
           pngChunk("IEND", QByteArray());
}

QByteArray jpegWith(const QByteArray& jpeg, quint8 marker, const QByteArray& content) {
    return jpeg.first(2) + '\xFF' + static_cast<char>(marker) +
           bytesOf(static_cast<quint16>(content.size() + 2), true) + content + jpeg.sliced(2);
}

QByteArray exif(const QByteArray& comment, bool isBigEndian) {
    constexpr quint32 exifFolder = 8 + 18;
    constexpr quint32 commentStart = exifFolder + 18;
    return tiffStart(isBigEndian) + folder(entry(0x8769, 4, 1, exifFolder, isBigEndian), isBigEndian) +
           folder(entry(0x9286, 7, static_cast<quint32>(comment.size()), commentStart, isBigEndian), isBigEndian) +
           comment;
}

QByteArray exifOrientation(quint16 orientation) {
    return tiffStart(false) + folder(entry(0x0112, 3, 1, orientation, false), false);
}

} // namespace vellumry::picturebytes
