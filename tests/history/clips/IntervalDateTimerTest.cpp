// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/IntervalDateTimer.h"

#include "support/Awaited.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using std::chrono::milliseconds;

TEST(IntervalDateTimer, WaitsForTheTimeLeft) {
    EXPECT_EQ(IntervalDateTimer::wait(1010.0501, 1000), milliseconds(10'051));
    EXPECT_EQ(IntervalDateTimer::wait(1000, 1000), milliseconds(0));
}

TEST(IntervalDateTimer, ADateInThePastIsDueAtOnce) {
    EXPECT_EQ(IntervalDateTimer::wait(10, 1000), milliseconds(0));
}

TEST(IntervalDateTimer, LooksAgainWithinTheMinute) {
    EXPECT_EQ(IntervalDateTimer::wait(distantFuture, 1000), milliseconds(60'000));
}

TEST(IntervalDateTimer, WakesOnceForEachArming) {
    IntervalDateTimer timer([] { return 1000.0; });
    int woken = 0;
    timer.onWake = [&] { ++woken; };
    timer.arm(10);
    EXPECT_EQ(woken, 0) << "not while arming";
    runUntil([&] { return woken > 0; });
    timer.arm(10);
    runUntil([&] { return woken > 1; });
    EXPECT_EQ(woken, 2);
}

TEST(IntervalDateTimer, DisarmedItKeepsStill) {
    IntervalDateTimer timer([] { return 1000.0; });
    IntervalDateTimer other([] { return 1000.0; });
    int woken = 0;
    int others = 0;
    timer.onWake = [&] { ++woken; };
    other.onWake = [&] { ++others; };
    timer.arm(10);
    other.arm(10);
    timer.disarm();
    runUntil([&] { return others > 0; });
    EXPECT_EQ(woken, 0);
}

} // namespace
} // namespace vellumry
