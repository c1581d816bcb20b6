// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/DarkOnWhite.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr QRect mark(100, 50, 4, 9);

/// A ground with a mark of the size of a letter.
QImage marked(QRgb ground, QRgb ink, const QSize& size = QSize(200, 100)) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter(&picture).fillRect(mark, QColor(ink));
    return picture;
}

int greyAt(const QImage& picture, const QPoint& point) {
    return qGray(picture.pixel(point));
}

class DarkOnWhiteColours : public testing::TestWithParam<std::pair<QRgb, QRgb>> {};

TEST_P(DarkOnWhiteColours, InkIsBlackAndTheGroundIsWhite) {
    const QImage clean = darkonwhite::cleaned(marked(GetParam().first, GetParam().second));
    EXPECT_EQ(clean.format(), QImage::Format_Grayscale8);
    EXPECT_EQ(clean.size(), QSize(200, 100));
    EXPECT_EQ(greyAt(clean, mark.center()), 0);
    EXPECT_EQ(greyAt(clean, QPoint(10, 10)), 255);
    EXPECT_EQ(greyAt(clean, mark.topLeft() - QPoint(1, 1)), 255);
}

INSTANTIATE_TEST_SUITE_P(Themes, DarkOnWhiteColours,
                         testing::Values(std::pair{0xFFFFFFFF, 0xFF000000}, std::pair{0xFF1E1E1E, 0xFFD4D4D4},
                                         std::pair{0xFF002B36, 0xFF93A1A1}, std::pair{0xFF2563EB, 0xFFFFFFFF},
                                         std::pair{0xFFFFFFFF, 0xFF9A9AA2}, std::pair{0xFF808080, 0xFFB04080}));

TEST(DarkOnWhite, EachMarkIsSeenAgainstTheGroundItStandsOn) {
    QImage picture = marked(0xFFFFFFFF, 0xFF000000, QSize(400, 200));
    QPainter painter(&picture);
    painter.fillRect(QRect(200, 80, 120, 28), QColor(0xFF2563EB));
    painter.fillRect(QRect(250, 90, 4, 9), Qt::white);
    painter.end();
    const QImage clean = darkonwhite::cleaned(picture);
    EXPECT_EQ(greyAt(clean, QPoint(252, 94)), 0) << "white on a blue button";
    EXPECT_EQ(greyAt(clean, QPoint(220, 94)), 255) << "the button";
    EXPECT_EQ(greyAt(clean, QPoint(200, 80)), 255) << "the corner of the button";
    EXPECT_EQ(greyAt(clean, mark.center()), 0) << "black on the white page";
}

TEST(DarkOnWhite, RulesAndBordersGo) {
    QImage picture(300, 100, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.fillRect(QRect(20, 40, 260, 1), Qt::black);
    painter.fillRect(QRect(20, 10, 2, 80), Qt::gray);
    painter.end();
    const QImage clean = darkonwhite::cleaned(picture);
    EXPECT_EQ(greyAt(clean, QPoint(150, 40)), 255);
    EXPECT_EQ(greyAt(clean, QPoint(21, 80)), 255);
}

TEST(DarkOnWhite, AGradientIsAGround) {
    QImage picture(256, 100, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x / 2, x / 2, 120));
    }
    QPainter(&picture).fillRect(QRect(200, 50, 4, 9), Qt::white);
    const QImage clean = darkonwhite::cleaned(picture);
    EXPECT_EQ(greyAt(clean, QPoint(20, 20)), 255);
    EXPECT_EQ(greyAt(clean, QPoint(230, 20)), 255);
    EXPECT_LT(greyAt(clean, QPoint(202, 54)), 16);
}

TEST(DarkOnWhite, FaintInkIsAsBlackAsStrongInkButNoiseIsNot) {
    EXPECT_EQ(greyAt(darkonwhite::cleaned(marked(0xFFFFFFFF, 0xFFC8C8C8)), mark.center()), 0);
    EXPECT_GT(greyAt(darkonwhite::cleaned(marked(0xFFFFFFFF, 0xFFF2F2F2)), mark.center()), 150);
}

TEST(DarkOnWhite, PicturesTooSmallForAnythingAreNoTrouble) {
    for (const QSize size : {QSize(1, 1), QSize(1, 5000), QSize(5000, 1), QSize(3, 3)}) {
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        EXPECT_EQ(darkonwhite::cleaned(picture).size(), size);
    }
}

TEST(DarkOnWhite, TheHeightOfLettersIsTheMedian) {
    QImage picture(400, 60, QImage::Format_Grayscale8);
    picture.fill(Qt::white);
    EXPECT_EQ(darkonwhite::letterHeight(picture), 0);
    QPainter painter(&picture);
    for (int letter = 0; letter < 9; ++letter)
        painter.fillRect(QRect(10 + 12 * letter, 20, 6, letter < 3 ? 12 : 8), Qt::black);
    painter.fillRect(QRect(150, 5, 200, 50), Qt::black); // too wide for a letter
    painter.fillRect(QRect(380, 20, 1, 2), Qt::black);   // a dot
    painter.end();
    EXPECT_EQ(darkonwhite::letterHeight(picture), 8);
}

TEST(DarkOnWhite, SmallLettersAreEnlargedWithinTheArea) {
    const QSize screen(1000, 1000);
    EXPECT_EQ(darkonwhite::enlargement(0, screen), 1);
    EXPECT_EQ(darkonwhite::enlargement(5, screen), 3);
    EXPECT_DOUBLE_EQ(darkonwhite::enlargement(11, screen), 2);
    EXPECT_EQ(darkonwhite::enlargement(40, screen), 1);
    EXPECT_DOUBLE_EQ(darkonwhite::enlargement(5, screen, 4'000'000), 2);
    EXPECT_EQ(darkonwhite::enlargement(5, screen, 500'000), 1);
}

} // namespace
} // namespace vellumry
