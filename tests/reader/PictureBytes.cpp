// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PictureBytes.h"

#include <QBuffer>
#include <QtEndian>
#include <array>
#include <map>

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

QByteArray riffChunk(const QByteArray& name, const QByteArray& content) {
    const QByteArray padding(content.size() % 2, '\0');
    return name + bytesOf(static_cast<quint32>(content.size()), false) + content + padding;
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

QImage drawnWord(const QByteArray& word, QRgb ground, QRgb ink) {
    static const std::map<char, std::array<quint8, 7>> font{{'H', {0x11, 0x11, 0x11, 0x1F, 0x11, 0x11, 0x11}},
                                                            {'E', {0x1F, 0x10, 0x10, 0x1E, 0x10, 0x10, 0x1F}},
                                                            {'L', {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x1F}},
                                                            {'O', {0x0E, 0x11, 0x11, 0x11, 0x11, 0x11, 0x0E}},
                                                            {'T', {0x1F, 0x04, 0x04, 0x04, 0x04, 0x04, 0x04}}};
    QImage points(static_cast<int>(word.size()) * 6 + 14, 21, QImage::Format_RGB32);
    points.fill(ground);
    int x = 7;
    for (const char letter : word) {
        for (int row = 0; row < 7; ++row) {
            for (int column = 0; column < 5; ++column) {
                if (font.at(letter)[static_cast<std::size_t>(row)] >> (4 - column) & 1)
                    points.setPixel(x + column, 7 + row, ink);
            }
        }
        x += 6;
    }
    return points.scaled(points.size() * 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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

QByteArray jpegForPrint() {
    // Made by ImageMagick: two squares side by side, -colorspace CMYK -sampling-factor 1x1 -quality 60 -strip.
    return QByteArray::fromHex(
        "ffd8ffee000e41646f626500640000000002ffdb0043000d090a0b0a080d0b0a0b0e0e0d0f13201513121213271c1e17202e"
        "2931302e292d2c333a4a3e333646372c2d405741464c4e525352323e5a615a50604a51524fffdb0043010e0e0e1311132615"
        "15264f352d354f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f"
        "4f4f4f4f4f4fffc00014080008001004011100021101031101041100ffc40016000101010000000000000000000000000005"
        "0007ffc40014100100000000000000000000000000000000ffc4001501010100000000000000000000000000000705ffc400"
        "14110100000000000000000000000000000000ffda000e040100021103110400003f007d646cd38e874aa9ffd9");
}

QByteArray animatedPng(const QList<QImage>& frames) {
    quint32 number = 0;
    QByteArray pictures;
    QByteArray header;
    for (const QImage& frame : frames) {
        const QByteArray still = encode(frame.convertToFormat(QImage::Format_RGB32), "PNG");
        const qsizetype start = still.indexOf("IDAT");
        const QByteArray data = still.sliced(start + 4, qFromBigEndian<quint32>(still.constData() + start - 4));
        // Behind place and size: how long it is shown (1/10 s), and what becomes of it.
        pictures += pngChunk("fcTL", bytesOf(number, true) + bytesOf(static_cast<quint32>(frame.width()), true) +
                                         bytesOf(static_cast<quint32>(frame.height()), true) + QByteArray(8, '\0') +
                                         bytesOf<quint16>(1, true) + bytesOf<quint16>(10, true) + QByteArray(2, '\0'));
        ++number;
        if (header.isEmpty()) {
            header = headerChunk(static_cast<quint32>(frame.width()), static_cast<quint32>(frame.height()));
            pictures += pngChunk("IDAT", data);
        } else {
            pictures += pngChunk("fdAT", bytesOf(number, true) + data);
            ++number;
        }
    }
    const auto count = static_cast<quint32>(frames.size());
    return pngSignature + header + pngChunk("acTL", bytesOf(count, true) + bytesOf<quint32>(0, true)) + pictures +
           pngChunk("IEND", QByteArray());
}

QByteArray animatedWebp(const QList<QImage>& frames) {
    const auto threeBytes = [](int number) { return bytesOf(static_cast<quint32>(number), false).first(3); };
    const QSize size = frames.first().size();
    constexpr char isAnimation = 2;
    QByteArray chunks = riffChunk("VP8X", isAnimation + QByteArray(3, '\0') + threeBytes(size.width() - 1) +
                                              threeBytes(size.height() - 1));
    chunks += riffChunk("ANIM", QByteArray(6, '\0'));
    for (const QImage& frame : frames) {
        constexpr qsizetype beforeChunks = 12;
        const QByteArray still = encode(frame, "WEBP").sliced(beforeChunks);
        chunks += riffChunk("ANMF", QByteArray(6, '\0') + threeBytes(size.width() - 1) + threeBytes(size.height() - 1) +
                                        threeBytes(100) + '\0' + still);
    }
    return riffChunk("RIFF", "WEBP" + chunks);
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
