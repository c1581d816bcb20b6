// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/StoredPng.h"

#include "reader/PictureBytes.h"

#include <csetjmp>
#include <cstring>
#include <gtest/gtest.h>
#include <png.h>
#include <utility>
#include <vector>

namespace vellumry {
namespace {

using namespace picturebytes;

constexpr int width = 331;
constexpr int height = 207;

/// Each row of it differs from the one above, so that rows are filtered in several ways.
QImage picture(QImage::Format format) {
    QImage image(width, height, QImage::Format_ARGB32);
    quint32 state = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            state = state * 1664525 + 1013904223;
            const QRgb smooth = qRgba(x % 256, y, (x + y) / 4, 255 - x % 128);
            image.setPixel(x, y, x < width / 2 ? smooth : state);
        }
    }
    return image.convertToFormat(format);
}

void fail(png_structp png, png_const_charp message) {
    ADD_FAILURE() << message;
    png_longjmp(png, 1);
}

struct Bytes {
    StoredPng png;
};

void readStored(png_structp png, png_bytep to, std::size_t count) {
    if (!static_cast<Bytes*>(png_get_io_ptr(png))->png.read(to, count))
        png_error(png, "no more bytes");
}

/// The rows as the PNG library sees them.
std::vector<png_byte> rowsOf(Bytes& bytes) {
    std::vector<png_byte> rows;
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, nullptr);
    png_infop info = png_create_info_struct(png);
    if (setjmp(png_jmpbuf(png)) == 0) {
        png_set_read_fn(png, &bytes, readStored);
        png_set_crc_action(png, PNG_CRC_QUIET_USE, PNG_CRC_QUIET_USE);
#ifdef PNG_IGNORE_ADLER32
        png_set_option(png, PNG_IGNORE_ADLER32, PNG_OPTION_ON);
#endif
        png_read_info(png, info);
        png_set_expand(png);
        png_read_update_info(png, info);
        const std::size_t length = png_get_rowbytes(png, info);
        rows.resize(length * height);
        for (std::size_t row = 0; row < height; ++row)
            png_read_row(png, rows.data() + row * length, nullptr);
        png_read_end(png, nullptr);
    }
    png_destroy_read_struct(&png, &info, nullptr);
    return rows;
}

class StoredPngFormat : public testing::TestWithParam<QImage::Format> {};

TEST_P(StoredPngFormat, TheLibraryReadsTheSamePixels) {
    const QImage image = picture(GetParam());
    const QByteArray file = encode(image, "PNG");
    auto stored = StoredPng::of(file);
    ASSERT_TRUE(stored);
    Bytes bytes{*std::move(stored)};
    const std::vector<png_byte> rows = rowsOf(bytes);
    ASSERT_EQ(rows.size() % height, 0U);
    const std::size_t length = rows.size() / height;
    const std::size_t channels = length / width;
    const QImage expected = image.convertToFormat(channels == 1   ? QImage::Format_Grayscale8
                                                  : channels == 3 ? QImage::Format_RGB888
                                                                  : QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y)
        ASSERT_EQ(std::memcmp(rows.data() + static_cast<std::size_t>(y) * length, expected.constScanLine(y), length), 0)
            << "row " << y;
}

INSTANTIATE_TEST_SUITE_P(Formats, StoredPngFormat,
                         testing::Values(QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_Grayscale8,
                                         QImage::Format_Indexed8));

TEST(StoredPng, WhatIsNotWholeIsLeftToTheLibrary) {
    const QByteArray file = encode(picture(QImage::Format_RGB32), "PNG");
    ASSERT_TRUE(StoredPng::of(file));
    constexpr qsizetype end = 12; // IEND, which no pixel needs
    for (qsizetype size = 0; size < file.size() - end; size += 97)
        EXPECT_FALSE(StoredPng::of(QByteArrayView(file).first(size))) << size;
    EXPECT_FALSE(StoredPng::of(QByteArrayView(file).chopped(end + 1)));
}

TEST(StoredPng, StreamsThatDoNotFillTheirRowsAreLeftToTheLibrary) {
    QByteArray file = encode(picture(QImage::Format_RGB32), "PNG");
    for (const char rows : {char(height - 1), char(height + 1)}) {
        file[23] = rows;
        EXPECT_FALSE(StoredPng::of(file)) << int(static_cast<quint8>(rows)) << " rows";
    }
}

TEST(StoredPng, InterlacedOnesVeryLargeOnesAndOthersAreLeftToTheLibrary) {
    QByteArray file = encode(picture(QImage::Format_RGB32), "PNG");
    EXPECT_FALSE(StoredPng::of(pngHeader(20'000, 20'000)));
    EXPECT_FALSE(StoredPng::of(pngHeader(0xFFFFFFFF, 0xFFFFFFFF)));
    EXPECT_FALSE(StoredPng::of(encode(picture(QImage::Format_RGB32), "JPEG")));
    file[28] = 1;
    EXPECT_FALSE(StoredPng::of(file));
}

TEST(StoredPng, ItEndsWhereThePngDoes) {
    const QByteArray file = encode(picture(QImage::Format_RGB32), "PNG");
    auto stored = StoredPng::of(file);
    ASSERT_TRUE(stored);
    std::vector<unsigned char> all(width * height * 3 + height + 4'096);
    EXPECT_FALSE(stored->read(all.data(), all.size())) << "there are not so many";
    unsigned char more = 0;
    EXPECT_FALSE(stored->read(&more, 1));
}

} // namespace
} // namespace vellumry
