// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PageBands.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// Lines of text, eight rows of ink and two of paper each.
QImage page(int width, int height) {
    QImage image(width, height, QImage::Format_Grayscale8);
    for (int y = 0; y < height; ++y)
        std::fill_n(image.scanLine(y), width, static_cast<uchar>(y % 10 < 8 ? 40 : 255));
    return image;
}

TEST(PageBands, AnOrdinaryPageIsOne) {
    EXPECT_EQ(pagebands::of(page(100, 100), 10'000, 3'000), std::vector({QRect(0, 0, 100, 100)}));
}

TEST(PageBands, ALargePageIsCutBetweenItsLines) {
    const std::vector<QRect> bands = pagebands::of(page(100, 101), 10'000, 3'500);
    ASSERT_EQ(bands.size(), 4U);
    int top = 0;
    for (const QRect& band : bands) {
        EXPECT_EQ(band.top(), top);
        EXPECT_EQ(band.width(), 100);
        EXPECT_LE(band.height(), 35);
        top = band.bottom() + 1;
        EXPECT_TRUE(top == 101 || top % 10 == 9) << "no paper left on both sides of the cut: " << top;
    }
    EXPECT_EQ(top, 101);
}

TEST(PageBands, APageWithoutPaperBetweenIsCutAllTheSame) {
    QImage black(50, 100, QImage::Format_Grayscale8);
    black.fill(Qt::black);
    const std::vector<QRect> bands = pagebands::of(black, 1'000, 1'000);
    EXPECT_EQ(bands.size(), 5U);
    EXPECT_EQ(bands.back().bottom(), 99);
}

TEST(PageBands, APageWiderThanABandHasBandsOfOneRow) {
    EXPECT_EQ(pagebands::of(page(100, 3), 10, 50).size(), 3U);
}

} // namespace
} // namespace vellumry
