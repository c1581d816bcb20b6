// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PngThumbnail.h"

#include "reader/PictureBytes.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace picturebytes;

/// Grows from the left to the right and from the top to the bottom, so that each pixel has its own mean.
QImage gradient(QImage::Format format) {
    QImage image(640, 400, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 255 / 639, y * 255 / 399, 128, 255 - x / 4));
    }
    return image.convertToFormat(format);
}

class PngThumbnailFormat : public testing::TestWithParam<QImage::Format> {};

TEST_P(PngThumbnailFormat, EachPixelIsTheMeanOfThoseItStandsFor) {
    const QSize size(80, 50);
    const QImage whole = gradient(GetParam());
    const QByteArray file = encode(whole, "PNG");
    ASSERT_TRUE(pngthumbnail::isFor(file, size));
    const QImage small = pngthumbnail::shrunk(file, size);
    ASSERT_EQ(small.size(), size);
    EXPECT_EQ(small.hasAlphaChannel(), whole.hasAlphaChannel());
    for (const QPoint point : {QPoint(0, 0), QPoint(79, 49), QPoint(40, 10), QPoint(13, 37)}) {
        const QColor mean = small.pixelColor(point);
        const QColor middle = whole.pixelColor(point * 8 + QPoint(4, 4));
        constexpr int tolerance = 6;
        EXPECT_NEAR(mean.red(), middle.red(), tolerance);
        EXPECT_NEAR(mean.green(), middle.green(), tolerance);
        EXPECT_NEAR(mean.blue(), middle.blue(), tolerance);
        EXPECT_NEAR(mean.alpha(), middle.alpha(), tolerance);
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, PngThumbnailFormat,
                         testing::Values(QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBX64,
                                         QImage::Format_RGBA64, QImage::Format_Grayscale8, QImage::Format_Grayscale16));

TEST(PngThumbnail, PicturesOfFewColoursAreMixed) {
    const QImage checked = [] {
        QImage image(400, 400, QImage::Format_Mono);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, static_cast<uint>((x + y) % 2));
        }
        return image;
    }();
    for (const QImage& image : {checked, checked.convertToFormat(QImage::Format_Indexed8)}) {
        const QImage small = pngthumbnail::shrunk(encode(image, "PNG"), QSize(100, 100));
        ASSERT_EQ(small.size(), QSize(100, 100));
        EXPECT_NEAR(small.pixelColor(50, 50).green(), 128, 1);
    }
}

TEST(PngThumbnail, WhatCannotBeSeenColoursNothing) {
    QImage half(400, 400, QImage::Format_ARGB32);
    half.fill(QColor(0, 255, 0, 255));
    for (int y = 0; y < half.height(); y += 2) {
        for (int x = 0; x < half.width(); ++x)
            half.setPixelColor(x, y, QColor(255, 0, 0, 0));
    }
    const QColor mixed = pngthumbnail::shrunk(encode(half, "PNG"), QSize(100, 100)).pixelColor(50, 50);
    EXPECT_EQ(mixed.red(), 0);
    EXPECT_EQ(mixed.green(), 255);
    EXPECT_NEAR(mixed.alpha(), 128, 1);
}

TEST(PngThumbnail, SidesThatAreNoMultiplesAreCoveredWhole) {
    const QImage small = pngthumbnail::shrunk(encode(twoColours(997, 463), "PNG"), QSize(160, 74));
    ASSERT_EQ(small.size(), QSize(160, 74));
    EXPECT_EQ(small.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(small.pixelColor(159, 73), QColor(Qt::blue));
}

TEST(PngThumbnail, LittleShrinkingAndOtherFilesAreForOthers) {
    const QByteArray file = encode(twoColours(400, 200), "PNG");
    EXPECT_TRUE(pngthumbnail::isFor(file, QSize(100, 50)));
    EXPECT_FALSE(pngthumbnail::isFor(file, QSize(160, 50)));
    EXPECT_FALSE(pngthumbnail::isFor(file, QSize(100, 80)));
    EXPECT_FALSE(pngthumbnail::isFor(file, QSize()));
    EXPECT_FALSE(pngthumbnail::isFor(file.first(20), QSize(100, 50)));
    EXPECT_FALSE(pngthumbnail::isFor(encode(twoColours(400, 200), "JPEG"), QSize(100, 50)));
    QByteArray interlaced = file;
    interlaced[28] = 1;
    EXPECT_FALSE(pngthumbnail::isFor(interlaced, QSize(100, 50)));
}

TEST(PngThumbnail, AFileCutOffAnywhereGivesNothing) {
    const QByteArray whole = encode(gradient(QImage::Format_RGB32), "PNG");
    const qsizetype lastRowBytes = 64;
    for (qsizetype length = 0; length < whole.size() - lastRowBytes; length += 101)
        EXPECT_TRUE(pngthumbnail::shrunk(whole.first(length), QSize(160, 100)).isNull()) << length;
    EXPECT_FALSE(pngthumbnail::shrunk(whole, QSize(160, 100)).isNull());
}

TEST(PngThumbnail, SpoiltBytesAreNoTrouble) {
    const QByteArray whole = encode(gradient(QImage::Format_ARGB32), "PNG");
    for (qsizetype at = 8; at < whole.size(); at += 37) {
        QByteArray spoilt = whole;
        spoilt[at] = static_cast<char>(spoilt[at] ^ 0xFF);
        const QImage small = pngthumbnail::shrunk(spoilt, QSize(160, 100));
        EXPECT_TRUE(small.isNull() || small.size() == QSize(160, 100)) << at;
    }
}

} // namespace
} // namespace vellumry
