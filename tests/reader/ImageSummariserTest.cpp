// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageSummariser.h"

#include "reader/PictureBytes.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace picturebytes;

readerprotocol::Reply summarise(const QByteArray& file, int pixels = 160) {
    const ImageSummariser summariser;
    return summariser.summarise(file, pixels);
}

QImage thumbnailOf(const readerprotocol::Reply& reply) {
    return QImage::fromData(reply.thumbnail.value_or(QByteArray()), "PNG");
}

bool isAbout(const QColor& colour, const QColor& expected) {
    constexpr int tolerance = 40;
    return std::abs(colour.red() - expected.red()) < tolerance &&
           std::abs(colour.green() - expected.green()) < tolerance &&
           std::abs(colour.blue() - expected.blue()) < tolerance;
}

class ImageSummariserFormat : public testing::TestWithParam<const char*> {};

TEST_P(ImageSummariserFormat, GivesSizeAndThumbnail) {
    const QByteArray file = encode(twoColours(640, 320), GetParam());
    ASSERT_FALSE(file.isEmpty());
    const auto reply = summarise(file);
    EXPECT_EQ(reply.pixelSize, QSize(640, 320));
    const QImage thumbnail = thumbnailOf(reply);
    ASSERT_EQ(thumbnail.size(), QSize(160, 80));
    EXPECT_TRUE(isAbout(thumbnail.pixelColor(20, 40), Qt::red));
    EXPECT_TRUE(isAbout(thumbnail.pixelColor(140, 40), Qt::blue));
    EXPECT_FALSE(reply.isScreenshot);
}

INSTANTIATE_TEST_SUITE_P(Formats, ImageSummariserFormat, testing::Values("PNG", "JPEG", "TIFF", "WEBP", "BMP"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST(ImageSummariser, AnAnimationGivesItsFirstFrame) {
    // Two frames of 2 x 1 pixels, red then blue.
    const QByteArray file = QByteArray::fromHex("474946383961020001008000 00ff00000000ff"
                                                "21f904000a0000002c00000000020001000002028451003b");
    const QByteArray frame = QByteArray::fromHex("21f904000a0000002c00000000020001000002028c53 00");
    const auto reply = summarise(file.chopped(1) + frame + ';');
    EXPECT_EQ(reply.pixelSize, QSize(2, 1));
    ASSERT_EQ(thumbnailOf(reply).size(), QSize(2, 1));
    EXPECT_EQ(thumbnailOf(reply).pixelColor(0, 0), QColor(Qt::red));
}

TEST(ImageSummariser, ASmallPictureIsNotEnlarged) {
    EXPECT_EQ(thumbnailOf(summarise(encode(twoColours(20, 10), "PNG"))).size(), QSize(20, 10));
}

TEST(ImageSummariser, AnExtremelyLongPictureKeepsAPixelOfWidth) {
    const auto reply = summarise(encode(twoColours(1, 100'000), "PNG"));
    EXPECT_EQ(reply.pixelSize, QSize(1, 100'000));
    EXPECT_EQ(thumbnailOf(reply).size(), QSize(1, 160));
}

TEST(ImageSummariser, DeepAndTranslucentPicturesHaveThumbnails) {
    EXPECT_EQ(thumbnailOf(summarise(encode(twoColours(400, 200, QImage::Format_RGBA64), "PNG"))).size(),
              QSize(160, 80));
    QImage translucent(400, 200, QImage::Format_ARGB32);
    translucent.fill(QColor(0, 255, 0, 128));
    const QImage thumbnail = thumbnailOf(summarise(encode(translucent, "PNG")));
    EXPECT_NEAR(thumbnail.pixelColor(80, 40).alpha(), 128, 2);
}

TEST(ImageSummariser, AThumbnailStandsUpright) {
    constexpr quint16 turnedRight = 6;
    const QByteArray file =
        jpegWith(encode(twoColours(400, 200), "JPEG"), 0xE1, QByteArray("Exif\0\0", 6) + exifOrientation(turnedRight));
    const auto reply = summarise(file);
    EXPECT_EQ(reply.pixelSize, QSize(400, 200)) << "as stored";
    const QImage thumbnail = thumbnailOf(reply);
    ASSERT_EQ(thumbnail.size(), QSize(80, 160));
    EXPECT_TRUE(isAbout(thumbnail.pixelColor(40, 20), Qt::red));
    EXPECT_TRUE(isAbout(thumbnail.pixelColor(40, 140), Qt::blue));
}

TEST(ImageSummariser, APictureBeyondTheAreaIsMeasuredNotDecoded) {
    const auto reply = summarise(pngHeader(20'000, 20'000));
    EXPECT_EQ(reply.pixelSize, QSize(20'000, 20'000));
    EXPECT_EQ(reply.thumbnail, std::nullopt);
}

TEST(ImageSummariser, ARealPictureBeyondTheAreaIsRefusedAndOneWithinIsDecoded) {
    for (const int side : {15'000, 20'000}) {
        QImage plain(side, side, QImage::Format_Mono);
        plain.fill(1);
        const auto reply = summarise(encode(plain, "PNG"));
        EXPECT_EQ(reply.pixelSize, QSize(side, side));
        EXPECT_EQ(reply.thumbnail.has_value(), side == 15'000) << side;
    }
}

TEST(ImageSummariser, BytesOfOneFormatUnderTheBeginningOfAnotherGiveNoThumbnail) {
    const QByteArray jpeg = encode(twoColours(64, 64), "JPEG");
    EXPECT_EQ(summarise(QByteArray("\x89PNG\r\n\x1a\n", 8) + jpeg).thumbnail, std::nullopt);
    EXPECT_EQ(summarise("RIFF" + jpeg).thumbnail, std::nullopt);
    EXPECT_EQ(summarise(QByteArray("\0\0\0\x18"
                                   "ftypheic\0\0\0\0mif1heic",
                                   24) +
                        jpeg)
                  .thumbnail,
              std::nullopt);
}

TEST(ImageSummariser, APromiseWithoutPixelsGivesNoThumbnail) {
    const auto reply = summarise(pngHeader(15'000, 15'000));
    EXPECT_EQ(reply.pixelSize, QSize(15'000, 15'000));
    EXPECT_EQ(reply.thumbnail, std::nullopt);
}

TEST(ImageSummariser, BytesThatAreNoPictureGiveNothing) {
    const readerprotocol::Reply nothing;
    EXPECT_EQ(summarise("plain text"), nothing);
    EXPECT_EQ(summarise(""), nothing);
    EXPECT_EQ(summarise(QByteArray("\x89PNG\r\n\x1a\n", 8)), nothing);
    EXPECT_EQ(summarise(pngHeader(0, 10)), nothing);
    EXPECT_EQ(summarise("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"), nothing);
}

TEST(ImageSummariser, AMarkedPictureIsAScreenshot) {
    EXPECT_TRUE(summarise(pngWith(pngChunk("tEXt", QByteArray("Software\0gnome-screenshot", 25)))).isScreenshot);
    EXPECT_FALSE(
        summarise(QByteArray("\x89PNG\r\n\x1a\n", 8) + pngChunk("tEXt", QByteArray("Software\0gnome-screenshot", 25)))
            .isScreenshot)
        << "marks without a picture";
}

TEST(ImageSummariser, APreviewIsThePictureAtItsSizeAndNothingElse) {
    const ImageSummariser summariser;
    const auto reply = summariser.preview(encode(twoColours(400, 200), "PNG"), 100);
    EXPECT_EQ(reply.pixelSize, std::nullopt);
    EXPECT_EQ(thumbnailOf(reply), thumbnailOf(summarise(encode(twoColours(400, 200), "PNG"), 100)));
    EXPECT_EQ(thumbnailOf(summariser.preview(encode(twoColours(40, 20), "PNG"), 100)).size(), QSize(40, 20));
    EXPECT_EQ(summariser.preview("no picture", 100).thumbnail, std::nullopt);
}

} // namespace
} // namespace vellumry
