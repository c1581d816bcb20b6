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

TEST(X11Screens, ADockTakesFromTheDisplayThatItStandsOnAndNotFromTheOther) {
    const QSize desktop(3840, 1080);
    const QRect first(0, 0, 1920, 1080);
    const QRect second(1920, 0, 1920, 1080);
    // A bar at the top of the second display, and a dock at the left edge of the desktop.
    const auto bar = X11Screens::strutsOf({0, 0, 32, 0, 0, 0, 0, 0, 1920, 3839, 0, 0}, desktop);
    ASSERT_EQ(bar.size(), 1U);
    EXPECT_EQ(X11Screens::withoutStruts(first, 1, desktop, bar), first);
    EXPECT_EQ(X11Screens::withoutStruts(second, 1, desktop, bar), QRect(1920, 32, 1920, 1048));
    const auto dock = X11Screens::strutsOf({64, 0, 0, 0, 0, 1079, 0, 0, 0, 0, 0, 0}, desktop);
    EXPECT_EQ(X11Screens::withoutStruts(first, 1, desktop, dock), QRect(64, 0, 1856, 1080));
    EXPECT_EQ(X11Screens::withoutStruts(second, 1, desktop, dock), second);
    // A dock at the edge between the displays counts from the edge of the desktop.
    const auto between = X11Screens::strutsOf({0, 1984, 0, 0, 0, 0, 0, 1079, 0, 0, 0, 0}, desktop);
    EXPECT_EQ(X11Screens::withoutStruts(first, 1, desktop, between), QRect(0, 0, 1856, 1080));
    EXPECT_EQ(X11Screens::withoutStruts(second, 1, desktop, between), second);
}

TEST(X11Screens, AStrutOfFourNumbersGoesAlongTheWholeEdgeAndNonsenseIsNone) {
    const QSize desktop(1920, 1080);
    const auto bottom = X11Screens::strutsOf({0, 0, 0, 40}, desktop);
    EXPECT_EQ(X11Screens::withoutStruts(QRect(0, 0, 960, 540), 2, desktop, bottom), QRect(0, 0, 960, 520));
    EXPECT_TRUE(X11Screens::strutsOf({0, 0}, desktop).empty());
    EXPECT_TRUE(X11Screens::strutsOf({~0UL, 0, 0, 0}, desktop).empty());
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
