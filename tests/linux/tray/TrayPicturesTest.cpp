// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/TrayPictures.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class TrayPicturesTest : public ::testing::Test {
protected:
    int drawn = 0;
    TrayPictures pictures{[this](const QString&, const QColor& colour, const QSize& size) {
        ++drawn;
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(colour);
        return image;
    }};
};

TEST_F(TrayPicturesTest, ASymbolIsDrawnOnceAndSentAsPng) {
    const ActionMenuItem item{.text = QStringLiteral("Delete"), .symbol = QStringLiteral("trash")};
    const QImage image = QImage::fromData(pictures.pictureOf(item), "PNG");
    EXPECT_EQ(image.pixelColor(0, 0).rgba(), TrayPictures::colour);
    EXPECT_EQ(pictures.pictureOf(item), pictures.pictureOf(item));
    EXPECT_EQ(drawn, 1);
    EXPECT_TRUE(pictures.pictureOf({.text = QStringLiteral("Plain")}).isEmpty());
}

TEST_F(TrayPicturesTest, AColourIsPaintedInThePlaceOfTheSymbol) {
    const QByteArray png = pictures.pictureOf({.text = QStringLiteral("#ff8800"),
                                               .symbol = QStringLiteral("paintpalette"),
                                               .swatch = QStringLiteral("#ffff8800")});
    const QImage image = QImage::fromData(png, "PNG");
    EXPECT_EQ(image.pixelColor(image.rect().center()).rgba(), 0xffff8800);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(drawn, 0);
}

TEST_F(TrayPicturesTest, APixmapIsSentAsStraightBigEndianAlphaRedGreenBlue) {
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixel(0, 0, qPremultiply(qRgba(255, 0, 128, 128)));
    image.setPixel(1, 0, qRgba(1, 2, 3, 255));
    const TrayPixmap pixmap = trayPixmap(image);
    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.bytes.mid(4), QByteArray("\xff\x01\x02\x03", 4));
    EXPECT_EQ(pixmap.bytes.left(2), QByteArray("\x80\xff", 2));
}

TEST_F(TrayPicturesTest, TheMarkComesInTheSizesOfPanels) {
    QList<int> sides;
    for (const TrayPixmap& pixmap : pictures.mark()) {
        sides.append(pixmap.width);
        EXPECT_EQ(pixmap.bytes.size(), pixmap.width * pixmap.height * 4);
    }
    EXPECT_EQ(sides, (QList<int>{16, 22, 24, 32, 48}));
}

} // namespace
} // namespace vellumry
