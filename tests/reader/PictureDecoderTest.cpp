// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PictureDecoder.h"

#include "reader/PictureBytes.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace picturebytes;
using picturedecoder::decode;
using picturedecoder::imageForReading;
using picturedecoder::longerSideForReading;

constexpr int usual = 8192;

TEST(PictureDecoder, ATallPictureIsBoundedByItsLongerSideALargeOneByItsArea) {
    EXPECT_EQ(longerSideForReading(QSize(100, 100'000), 1'000'000), 189'736);
    EXPECT_EQ(longerSideForReading(QSize(100, 100'000), usual), 8192);
    EXPECT_EQ(longerSideForReading(QSize(20'000, 20'000), usual), 6000);
    EXPECT_EQ(longerSideForReading(QSize(1, 100'000), usual), 8192);
    EXPECT_EQ(longerSideForReading(QSize(0, 0), usual), 8192);
    EXPECT_EQ(longerSideForReading(QSize(1920, 1080), usual), 8000);
}

TEST(PictureDecoder, AScreenIsReadAsItIs) {
    EXPECT_EQ(imageForReading(encode(twoColours(1920, 1080), "PNG"), usual).size(), QSize(1920, 1080));
}

TEST(PictureDecoder, AVeryTallPictureIsMadeShorter) {
    QImage tall(1, 30'000, QImage::Format_RGB32);
    tall.fill(Qt::white);
    EXPECT_EQ(imageForReading(encode(tall, "PNG"), usual).size(), QSize(1, 8192));
}

TEST(PictureDecoder, ABombIsRefusedByItsHeader) {
    EXPECT_TRUE(imageForReading(pngHeader(100'000, 100'000), usual).isNull());
    EXPECT_TRUE(decode(encode(twoColours(20, 20), "PNG"), usual, 399).isNull());
    EXPECT_FALSE(decode(encode(twoColours(20, 20), "PNG"), usual, 400).isNull());
}

TEST(PictureDecoder, BytesThatAreNoPictureGiveNothing) {
    EXPECT_TRUE(imageForReading("no picture", usual).isNull());
    EXPECT_TRUE(imageForReading({}, usual).isNull());
    EXPECT_TRUE(imageForReading("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", usual).isNull());
}

TEST(PictureDecoder, DepthsAndFormatsOfManyKindsAreRead) {
    for (const QImage::Format format : {QImage::Format_RGBA64, QImage::Format_Grayscale16, QImage::Format_Grayscale8,
                                        QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_ARGB32})
        EXPECT_EQ(imageForReading(encode(twoColours(40, 20, format), "PNG"), usual).size(), QSize(40, 20)) << format;
    for (const char* name : {"JPEG", "TIFF", "WEBP", "BMP"})
        EXPECT_EQ(imageForReading(encode(twoColours(40, 20), name), usual).size(), QSize(40, 20)) << name;
}

TEST(PictureDecoder, APictureThatSaysItLiesOnItsSideIsTurned) {
    constexpr quint8 exifMarker = 0xE1;
    const QByteArray marked =
        jpegWith(encode(twoColours(40, 20), "JPEG"), exifMarker, QByteArray("Exif\0\0", 6) + exifOrientation(6));
    EXPECT_EQ(imageForReading(marked, usual).size(), QSize(20, 40));
}

TEST(PictureDecoder, APictureCutOffIsNoTrouble) {
    const QByteArray whole = encode(twoColours(200, 200), "PNG");
    for (qsizetype length = 0; length < whole.size(); length += 7)
        (void)imageForReading(whole.first(length), usual);
    SUCCEED();
}

} // namespace
} // namespace vellumry
