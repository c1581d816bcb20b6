// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelPlacement.h"

#include <gtest/gtest.h>

using namespace vellumry;
using placement::Fractions;

namespace {

const QSizeF panel(780, 500);
const QRectF display(0, 0, 1920, 1080);

} // namespace

TEST(PanelPlacement, OpensCentredAndSixteenPercentBelowTheTop) {
    EXPECT_EQ(placement::defaultFrame(panel, display), QRectF(570, 173, 780, 500));
}

TEST(PanelPlacement, KeepsAwayFromTheBottomOfALowDisplay) {
    const QRectF low(0, 0, 1024, 560);
    EXPECT_EQ(placement::defaultFrame(panel, low).bottom(), 548);
}

TEST(PanelPlacement, LeavesAtLeast24AboveOnASmallShareOfHeight) {
    const QRectF flat(0, 0, 2000, 140);
    EXPECT_EQ(placement::defaultFrame({100, 50}, flat).top(), 24);
}

TEST(PanelPlacement, ADraggedPanelSurvivesAChangeOfResolution) {
    const QRectF frame(1000, 40, 780, 500);
    const auto saved = placement::rememberable(frame, display);
    ASSERT_TRUE(saved);
    EXPECT_EQ(placement::placement(saved, panel, display), frame);
    const QRectF half = placement::placement(saved, panel, {0, 0, 960, 540});
    EXPECT_TRUE(QRectF(0, 0, 960, 540).contains(half));
}

TEST(PanelPlacement, NearTheDefaultNothingIsRemembered) {
    const QRectF home = placement::defaultFrame(panel, display);
    EXPECT_EQ(placement::rememberable(home.translated(20, 0), display), std::nullopt);
    EXPECT_EQ(placement::rememberable(home.translated(0, 28), display), std::nullopt);
    EXPECT_TRUE(placement::rememberable(home.translated(0, 29), display));
}

TEST(PanelPlacement, DraggedOffTheTopItIsRememberedInside) {
    const auto saved = placement::rememberable({600, -300, 780, 500}, display);
    ASSERT_TRUE(saved);
    EXPECT_EQ(placement::placement(saved, panel, display).top(), 0);
    EXPECT_DOUBLE_EQ(saved->second, 1.0 - 250.0 / 1080.0);
}

TEST(PanelPlacement, ADisplayWithoutAreaRemembersNothing) {
    EXPECT_EQ(placement::rememberable({0, 0, 780, 500}, {}), std::nullopt);
}

TEST(PanelPlacement, WhatIsTooLargeKeepsItsTopLeftInView) {
    const QRectF small(100, 50, 400, 300);
    EXPECT_EQ(placement::clampedFrame({0, 0, 780, 500}, small).topLeft(), QPointF(100, 50));
}

TEST(PanelPlacement, ADisplayToTheLeftHasItsOwnCoordinates) {
    const QRectF left(-1920, 0, 1920, 1080);
    EXPECT_EQ(placement::defaultFrame(panel, left).left(), -1350);
    EXPECT_EQ(placement::placement(Fractions{0.0, 1.0}, panel, left).topLeft(), QPointF(-1920, 0));
}
