// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11Screens.h"

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

namespace vellumry {

TEST(X11Screens, TheKeyNamesTheDisplayWhereverItIsPluggedIn) {
    EXPECT_EQ(X11Screens::keyOf(QStringLiteral("DEL"), QStringLiteral("U2720Q"), QStringLiteral("42"),
                                QStringLiteral("DP-1"), QSize(3840, 2160)),
              u"DEL U2720Q 42 DP-1");
    EXPECT_EQ(X11Screens::keyOf({}, {}, {}, QStringLiteral("screen"), QSize(1280, 800)), u"screen 1280×800");
}

TEST(X11Screens, TheVisiblePartLeavesOutBars) {
    const QRect frame(0, 0, 1920, 1080);
    EXPECT_EQ(X11Screens::visiblePart(frame, 1, QRect(0, 30, 1920, 1050)), QRect(0, 30, 1920, 1050));
    EXPECT_EQ(X11Screens::visiblePart(frame, 1, QRect()), frame);
    EXPECT_EQ(X11Screens::visiblePart(frame, 1, QRect(5000, 0, 10, 10)), frame);
}

TEST(X11Screens, TheVisiblePartOfAScaledSecondDisplayKeepsItsOrigin) {
    const QRect second(1920, 0, 1280, 720);
    EXPECT_EQ(X11Screens::visiblePart(second, 2, QRect(0, 60, 4480, 1380)), QRect(1920, 30, 1280, 690));
}

TEST(X11Screens, FindsTheDisplayOfAFrameAndOfThePointer) {
    const X11Screens screens(XlibConnection::create().value());
    const auto under = screens.underPointer();
    ASSERT_TRUE(under.has_value());
    EXPECT_EQ(under->frame, QGuiApplication::primaryScreen()->geometry());
    EXPECT_EQ(under->visible, under->frame);
    EXPECT_EQ(screens.of(QRect(100, 100, 50, 50)), under);
    EXPECT_EQ(screens.of(QRect(9000, 9000, 50, 50)), std::nullopt);
}

} // namespace vellumry
