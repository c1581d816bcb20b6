// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReadingPage.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// White, with one black box.
QImage pageWith(const QRect& box, const QSize& size) {
    QImage page(size, QImage::Format_Grayscale8);
    page.fill(Qt::white);
    for (int y = box.top(); y <= box.bottom(); ++y)
        std::fill_n(page.scanLine(y) + box.left(), box.width(), uchar{0});
    return page;
}

QRect boxOfInk(const QImage& page) {
    QRect box;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.constScanLine(y)[x] < 128)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

TEST(ReadingPage, APartIsEnlargedAndWhatIsFoundInItIsFoundOnThePage) {
    const QRect ink(40, 60, 20, 10);
    const ReadingPage page(pageWith(ink, QSize(200, 100)), 2.5);
    const QRect band(0, 50, 200, 50);
    const QImage part = page.part(band);
    EXPECT_EQ(part.size(), QSize(500, 125));
    EXPECT_EQ(part.format(), QImage::Format_Grayscale8);
    const QRect found = page.onPage(boxOfInk(part), band.topLeft());
    EXPECT_TRUE(found.contains(ink.adjusted(1, 1, -1, -1)));
    EXPECT_TRUE(ink.adjusted(-1, -1, 1, 1).contains(found));
}

TEST(ReadingPage, APageThatIsNotEnlargedIsReadAsItIs) {
    const QImage image = pageWith(QRect(5, 5, 3, 3), QSize(40, 40));
    const ReadingPage page(image, 1);
    EXPECT_EQ(page.part(image.rect()), image);
    EXPECT_EQ(page.onPage(QRect(5, 5, 3, 3), QPoint(0, 7)), QRect(5, 12, 3, 3));
}

TEST(ReadingPage, TheBandsAreAsLargeAsAreReadAtOnceWhenTheyAreEnlarged) {
    constexpr double enlargement = 2;
    const ReadingPage page(pageWith(QRect(), QSize(2000, 2000)), enlargement);
    const std::vector<QRect> bands = page.bands();
    ASSERT_GT(bands.size(), 2U);
    int top = 0;
    for (const QRect& band : bands) {
        EXPECT_EQ(band.top(), top);
        EXPECT_LE(qint64(band.width()) * band.height() * enlargement * enlargement, 2'500'000);
        top = band.bottom() + 1;
    }
    EXPECT_EQ(top, 2000);
}

} // namespace
} // namespace vellumry
