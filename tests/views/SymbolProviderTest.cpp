// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/SymbolProvider.h"

#include <gtest/gtest.h>

using namespace vellumry;

namespace {

/// How much of a picture is painted, from 0 to 1.
double coverage(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += image.pixelColor(x, y).alphaF();
    }
    return sum / (image.width() * image.height());
}

} // namespace

TEST(SymbolProvider, DrawsASymbolInTheColourAskedFor) {
    SymbolProvider symbols;
    QSize size;
    const QImage image = symbols.requestImage(QStringLiteral("pin.fill/ff0000"), &size, QSize(32, 32));
    EXPECT_EQ(size, QSize(32, 32));
    EXPECT_GT(coverage(image), 0.02);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 128) {
                EXPECT_EQ(image.pixelColor(x, y).rgb(), QColor(Qt::red).rgb());
            }
        }
    }
}

TEST(SymbolProvider, DrawsNothingForANameThatIsNone) {
    SymbolProvider symbols;
    EXPECT_FALSE(SymbolProvider::has(QStringLiteral("no.such.symbol")));
    EXPECT_EQ(coverage(symbols.requestImage(QStringLiteral("no.such.symbol/ff0000"), nullptr, QSize(16, 16))), 0.0);
}

TEST(SymbolProvider, TheShadowIsDarkestUnderThePanelAndEndsAtTheEdge) {
    const QImage shadow = panelShadow();
    const QPoint middle = shadow.rect().center();
    EXPECT_GT(shadow.pixelColor(middle).alpha(), 60);
    EXPECT_LT(shadow.pixelColor(0, middle.y()).alpha(), 4);
    EXPECT_LT(shadow.pixelColor(middle.x(), 0).alpha(), 4);
    EXPECT_GT(shadow.pixelColor(middle.x(), shadow.height() - 38).alpha(), shadow.pixelColor(middle.x(), 37).alpha())
        << "it lies a little lower than the panel";
}
