// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageSummariser.h"
#include "reader/PictureBytes.h"
#include "reader/PictureDecoder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace vellumry {
namespace {

using namespace picturebytes;

constexpr int usual = 8192;

readerprotocol::Reply summarise(const QByteArray& file) {
    const ImageSummariser summariser;
    return summariser.summarise(file, 160);
}

QImage thumbnailOf(const QByteArray& file) {
    return QImage::fromData(summarise(file).thumbnail.value_or(QByteArray()), "PNG");
}

QImage filled(int width, int height, const QColor& colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

/// Megabytes of memory that this process has had at most.
long most() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    return used.ru_maxrss / 1024;
}

TEST(UnusualPictures, AJpegMadeForPrintHasItsColours) {
    const auto reply = summarise(jpegForPrint());
    EXPECT_EQ(reply.pixelSize, QSize(16, 8));
    const QImage thumbnail = thumbnailOf(jpegForPrint());
    ASSERT_EQ(thumbnail.size(), QSize(16, 8));
    EXPECT_GT(thumbnail.pixelColor(3, 4).red(), 200);
    EXPECT_LT(thumbnail.pixelColor(3, 4).blue(), 60);
    EXPECT_GT(thumbnail.pixelColor(12, 4).blue(), 200);
    EXPECT_LT(thumbnail.pixelColor(12, 4).red(), 60);
}

TEST(UnusualPictures, AnimationsGiveTheirFirstFrame) {
    // Large enough for the thumbnail to be made while the file is read, and small enough for it not to be.
    for (const QSize size : {QSize(800, 400), QSize(40, 20)}) {
        const QList<QImage> frames{filled(size.width(), size.height(), Qt::red),
                                   filled(size.width(), size.height(), Qt::blue)};
        for (const QByteArray& file : {animatedPng(frames), animatedWebp(frames)}) {
            EXPECT_EQ(summarise(file).pixelSize, size) << file.first(4).toStdString();
            const QImage thumbnail = thumbnailOf(file);
            ASSERT_EQ(thumbnail.size(), size.boundedTo(QSize(160, 80))) << file.first(4).toStdString();
            EXPECT_GT(thumbnail.pixelColor(10, 10).red(), 200);
            EXPECT_LT(thumbnail.pixelColor(10, 10).blue(), 60);
            EXPECT_EQ(picturedecoder::imageForReading(file, usual).size(), size);
        }
    }
}

TEST(UnusualPictures, SixteenBitsAChannelKeepTheirColours) {
    for (const QSize size : {QSize(1200, 600), QSize(400, 200)}) {
        QImage deep(size, QImage::Format_RGBX64);
        deep.fill(QColor::fromRgba64(0xFFFF, 0x8080, 0x0101));
        const QColor colour = thumbnailOf(encode(deep, "PNG")).pixelColor(80, 40);
        EXPECT_NEAR(colour.red(), 255, 1);
        EXPECT_NEAR(colour.green(), 128, 1);
        EXPECT_NEAR(colour.blue(), 1, 1);
    }
}

TEST(UnusualPictures, HeadersOfAnyShapeAreBoundedByTheirAreaBeforeAnythingIsDecoded) {
    const long before = most();
    for (const QSize size : {QSize(20'000, 20'000), QSize(1'000'000, 251), QSize(251, 1'000'000)}) {
        const auto reply =
            summarise(pngHeader(static_cast<quint32>(size.width()), static_cast<quint32>(size.height())));
        EXPECT_EQ(reply.pixelSize, size);
        EXPECT_EQ(reply.thumbnail, std::nullopt) << size.width();
    }
    // Not beyond the area: begun, and found to have no pixels.
    EXPECT_EQ(summarise(pngHeader(1, 100'000)).thumbnail, std::nullopt);
    EXPECT_EQ(summarise(pngHeader(100'000, 1)).thumbnail, std::nullopt);
    EXPECT_TRUE(picturedecoder::imageForReading(pngHeader(20'001, 20'000), usual).isNull());
    constexpr long room = 64;
    EXPECT_LT(most() - before, room) << "megabytes, where 20,000 x 20,000 pixels are 1,600";
}

TEST(UnusualPictures, AThumbnailOfALargePictureTakesNoMemoryToSpeakOf) {
    QImage plain(15'000, 15'000, QImage::Format_Mono);
    plain.fill(0);
    const QByteArray file = encode(plain, "PNG");
    plain = QImage();
    const long before = most();
    EXPECT_EQ(thumbnailOf(file).size(), QSize(160, 160));
    constexpr long room = 32;
    EXPECT_LT(most() - before, room) << "megabytes, where 15,000 x 15,000 pixels are 900";
}

TEST(UnusualPictures, ASideOfNothingIsNoSize) {
    for (const QByteArray& file : {pngHeader(0, 0), pngHeader(0, 10), pngHeader(10, 0)}) {
        EXPECT_EQ(summarise(file).pixelSize, std::nullopt);
        EXPECT_EQ(summarise(file).thumbnail, std::nullopt);
        EXPECT_TRUE(picturedecoder::imageForReading(file, usual).isNull());
    }
    // A GIF that says 0 x 0, with a frame that says so too.
    const QByteArray gif = QByteArray::fromHex("4749463839610000000080000000ff00000000ff"
                                               "2c000000000000000000020144003b");
    EXPECT_EQ(summarise(gif).pixelSize, std::nullopt);
}

TEST(UnusualPictures, EachFormatCutOffAnywhereIsNoTrouble) {
    const QImage image = twoColours(640, 320);
    const QList<QByteArray> files{encode(image, "PNG"),        encode(image, "JPEG"),       encode(image, "TIFF"),
                                  encode(image, "WEBP"),       encode(image, "BMP"),        jpegForPrint(),
                                  animatedPng({image, image}), animatedWebp({image, image})};
    const ImageSummariser summariser;
    constexpr qsizetype places = 40;
    for (const QByteArray& whole : files) {
        ASSERT_FALSE(whole.isEmpty());
        for (qsizetype place = 0; place < places; ++place) {
            const auto reply = summariser.summarise(whole.first(whole.size() * place / places), 160);
            // What of it can be shown is shown; what is shown has the shape of the whole.
            EXPECT_TRUE(!reply.pixelSize || *reply.pixelSize == image.size() || *reply.pixelSize == QSize(16, 8));
        }
        EXPECT_TRUE(summariser.summarise(whole, 160).thumbnail.has_value());
    }
}

TEST(UnusualPictures, TheBytesCountNotTheNameOfTheType) {
    // A program that calls its JPEG a PNG: the request holds the bytes alone, and they say what they are.
    const QByteArray jpeg = encode(twoColours(640, 320), "JPEG");
    EXPECT_EQ(thumbnailOf(jpeg).size(), QSize(160, 80));
    // Bytes of one kind inside the frame of another.
    EXPECT_EQ(summarise(encode(twoColours(640, 320), "PNG").first(33) + jpeg).thumbnail, std::nullopt);
    EXPECT_EQ(summarise("BM" + jpeg).thumbnail, std::nullopt);
    EXPECT_EQ(summarise(QByteArray("II*\0", 4) + jpeg).thumbnail, std::nullopt);
    EXPECT_EQ(summarise("GIF89a" + jpeg).thumbnail, std::nullopt);
}

} // namespace
} // namespace vellumry
