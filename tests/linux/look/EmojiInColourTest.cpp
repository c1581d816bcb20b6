// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/EmojiInColour.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

/// DejaVu Sans has black faces of its own.
QFont textFont() {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(32);
    return font;
}

bool isDrawnInColour(const QString& text) {
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(textFont());
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.drawText(QPoint(8, 48), text);
    painter.end();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (QColor(picture.pixel(x, y)).saturation() > 100)
                return true;
        }
    }
    return false;
}

class EmojiInColourTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(QFontInfo(textFont()).family(), QStringLiteral("DejaVu Sans"));
        drawEmojiInColour();
    }
};

} // namespace

TEST_F(EmojiInColourTest, FacesComeFromTheFontThatHasThemInColour) {
    EXPECT_TRUE(isDrawnInColour(QStringLiteral("😀")));
    EXPECT_TRUE(isDrawnInColour(QStringLiteral("😂")));
    EXPECT_TRUE(isDrawnInColour(QStringLiteral("🎉"))) << "which the text font does not have";
}

TEST_F(EmojiInColourTest, SignsAndDigitsStayWithTheText) {
    for (const QString& text : {QStringLiteral("☺"), QStringLiteral("✔"), QStringLiteral("7"), QStringLiteral("#"),
                                QStringLiteral("©"), QStringLiteral("→")}) {
        EXPECT_FALSE(isDrawnInColour(text)) << text.toStdString();
        EXPECT_TRUE(QRawFont::fromFont(textFont()).supportsCharacter(text.at(0))) << text.toStdString();
    }
}

TEST_F(EmojiInColourTest, DigitsBesideAFaceKeepTheirWidth) {
    const QFontMetricsF metrics(textFont());
    const qreal face = metrics.horizontalAdvance(QStringLiteral("😀"));
    EXPECT_NEAR(metrics.horizontalAdvance(QStringLiteral("12 😀 34")),
                face + metrics.horizontalAdvance(QStringLiteral("12 ")) +
                    metrics.horizontalAdvance(QStringLiteral(" 34")),
                1.0);
}

} // namespace vellumry
