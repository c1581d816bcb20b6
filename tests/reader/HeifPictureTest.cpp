// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/HeifPicture.h"

#include "reader/HeifBytes.h"
#include "reader/ImageSummariser.h"
#include "reader/PictureBytes.h"
#include "reader/PictureDecoder.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using picturebytes::twoColours;

QByteArray typeBox(const QByteArray& major, const QByteArray& compatible) {
    QByteArray box = QByteArray(4, '\0') + "ftyp" + major + QByteArray(4, '\0') + compatible;
    qToBigEndian(static_cast<quint32>(box.size()), box.data());
    return box;
}

/// `file` with another extent in its `ispe` box (ISO/IEC 23008-12, 6.5.3): name, four bytes, width, height.
QByteArray withExtent(QByteArray file, quint32 width, quint32 height) {
    for (auto at = file.indexOf("ispe"); at >= 0; at = file.indexOf("ispe", at + 1)) {
        qToBigEndian(width, file.data() + at + 8);
        qToBigEndian(height, file.data() + at + 12);
    }
    return file;
}

/// 400 x 200 pixels as a camera held upright stores them. The encoder writes the extent as turned, cameras as stored.
QByteArray turnedRight(const QByteArray& exif = {}) {
    return withExtent(heifbytes::encode(twoColours(400, 200), 6, exif), 400, 200);
}

bool isReddish(const QColor& colour) {
    return colour.red() > 200 && colour.blue() < 60;
}

bool isBluish(const QColor& colour) {
    return colour.blue() > 200 && colour.red() < 60;
}

/// What the summary of a file shows.
QImage thumbnailOf(const QByteArray& file) {
    return QImage::fromData(ImageSummariser().summarise(file, 160).thumbnail.value_or(QByteArray()), "PNG");
}

TEST(HeifPicture, IsToldByTheBrandsOfItsTypeBox) {
    EXPECT_TRUE(HeifPicture::isOne(typeBox("heic", "mif1heic")));
    EXPECT_TRUE(HeifPicture::isOne(typeBox("heix", "")));
    EXPECT_TRUE(HeifPicture::isOne(typeBox("mif1", "miafheic")));
    EXPECT_FALSE(HeifPicture::isOne(typeBox("avif", "mif1miaf"))) << "another coding";
    EXPECT_FALSE(HeifPicture::isOne(typeBox("isom", "iso2avc1"))) << "a film";
    EXPECT_FALSE(HeifPicture::isOne(typeBox("mif1", "miaf") + "heic")) << "behind the box";
    EXPECT_FALSE(HeifPicture::isOne(typeBox("mif1", QByteArray(4000, 'x') + "heic"))) << "no real file names so many";
    EXPECT_FALSE(HeifPicture::isOne({}));
    const QByteArray whole = typeBox("mif1", "miafheic");
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(HeifPicture::isOne(whole.first(length))) << length;
}

TEST(HeifPicture, HasASizeAndAThumbnail) {
    const QByteArray file = heifbytes::encode(twoColours(640, 320));
    ASSERT_FALSE(file.isEmpty()) << "libheif has no encoder: see scripts/install-deps --test";
    const auto reply = ImageSummariser().summarise(file, 160);
    EXPECT_EQ(reply.pixelSize, QSize(640, 320));
    EXPECT_FALSE(reply.isScreenshot);
    const QImage thumbnail = thumbnailOf(file);
    ASSERT_EQ(thumbnail.size(), QSize(160, 80));
    EXPECT_TRUE(isReddish(thumbnail.pixelColor(20, 40)));
    EXPECT_TRUE(isBluish(thumbnail.pixelColor(140, 40)));
}

TEST(HeifPicture, StandsUprightAndKeepsTheSizeAsStored) {
    const QByteArray file = turnedRight();
    EXPECT_EQ(ImageSummariser().summarise(file, 160).pixelSize, QSize(400, 200));
    const QImage thumbnail = thumbnailOf(file);
    ASSERT_EQ(thumbnail.size(), QSize(80, 160));
    EXPECT_TRUE(isReddish(thumbnail.pixelColor(40, 20)));
    EXPECT_TRUE(isBluish(thumbnail.pixelColor(40, 140)));
    EXPECT_EQ(picturedecoder::imageForReading(file, 8192).size(), QSize(200, 400));
}

TEST(HeifPicture, IsNotTurnedTwiceByItsExif) {
    EXPECT_EQ(thumbnailOf(turnedRight(picturebytes::exifOrientation(6))).size(), QSize(80, 160));
}

TEST(HeifPicture, AMarkedOneIsAScreenshot) {
    for (const bool isBigEndian : {false, true}) {
        const QByteArray exif = picturebytes::exif(QByteArray("ASCII\0\0\0Screenshot", 18), isBigEndian);
        EXPECT_TRUE(ImageSummariser().summarise(heifbytes::encode(twoColours(64, 64), 1, exif), 160).isScreenshot);
    }
    const QByteArray other = picturebytes::exif(QByteArray("ASCII\0\0\0Holiday", 15), true);
    EXPECT_FALSE(ImageSummariser().summarise(heifbytes::encode(twoColours(64, 64), 1, other), 160).isScreenshot);
}

TEST(HeifPicture, IsBoundedByItsAreaBeforeItIsDecoded) {
    const QByteArray file = heifbytes::encode(twoColours(100, 80));
    EXPECT_TRUE(picturedecoder::decode(file, 8192, 7999).isNull());
    EXPECT_EQ(picturedecoder::decode(file, 8192, 8000).size(), QSize(100, 80));
    const QByteArray liar = withExtent(file, 20'000, 20'000);
    const auto reply = ImageSummariser().summarise(liar, 160);
    EXPECT_EQ(reply.pixelSize, QSize(20'000, 20'000));
    EXPECT_EQ(reply.thumbnail, std::nullopt);
    EXPECT_TRUE(picturedecoder::imageForReading(liar, 8192).isNull());
}

TEST(HeifPicture, OneCutOffOrSpoiltIsNoTrouble) {
    const QByteArray whole = heifbytes::encode(twoColours(200, 200));
    ASSERT_FALSE(whole.isEmpty());
    for (qsizetype length = 0; length < whole.size(); length += 5) {
        const QImage picture = picturedecoder::decode(whole.first(length), 8192, 1'000'000);
        EXPECT_TRUE(picture.isNull() || picture.size() == QSize(200, 200)) << length;
    }
    for (qsizetype at = 0; at < whole.size(); at += 3) {
        QByteArray spoilt = whole;
        spoilt[at] = static_cast<char>(~spoilt[at]);
        const auto reply = ImageSummariser().summarise(spoilt, 160);
        EXPECT_TRUE(!reply.thumbnail || reply.pixelSize) << at;
    }
}

} // namespace
} // namespace vellumry
