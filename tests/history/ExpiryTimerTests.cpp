// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ExpiryTimer.h"

#include "support/Awaited.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using std::chrono::milliseconds;

TEST(ExpiryTimer, WaitsForTheDateAndALittle) {
    EXPECT_EQ(ExpiryTimer::wait(1010, 1000), milliseconds(10'050));
    EXPECT_EQ(ExpiryTimer::wait(1000, 1000), milliseconds(50));
}

TEST(ExpiryTimer, ADateInThePastIsDueAtOnce) {
    EXPECT_EQ(ExpiryTimer::wait(10, 1000), milliseconds(50));
}

TEST(ExpiryTimer, LooksAgainWithinTheHour) {
    EXPECT_EQ(ExpiryTimer::wait(distantFuture, 1000), milliseconds(3'600'000));
}

TEST(ExpiryTimer, IsArmedOnlyWhileThereIsADate) {
    ExpiryTimer timer([] { return 0.0; }, [] {});
    EXPECT_FALSE(timer.isArmed());
    timer.arm(100);
    EXPECT_TRUE(timer.isArmed());
    EXPECT_EQ(timer.date(), 100);
    timer.arm(std::nullopt);
    EXPECT_FALSE(timer.isArmed());
}

TEST(ExpiryTimer, FiresOnce) {
    int fired = 0;
    ExpiryTimer timer([] { return 1000.0; }, [&] { ++fired; });
    timer.arm(10);
    runUntil([&] { return fired > 0; });
    EXPECT_EQ(fired, 1);
    EXPECT_FALSE(timer.isArmed());
}

TEST(ExpiryTimer, DoesNotFireBeforeTheDateWhenTheClockWasSetBack) {
    Date now = 1000;
    int asked = 0;
    int fired = 0;
    ExpiryTimer timer(
        [&] {
            ++asked;
            return now;
        },
        [&] { ++fired; });
    timer.arm(1000);
    now = 999.99;
    const int before = asked;
    runUntil([&] { return asked > before; });
    EXPECT_EQ(fired, 0);
    EXPECT_TRUE(timer.isArmed());
    now = 1000.06;
    runUntil([&] { return fired > 0; });
    EXPECT_EQ(fired, 1);
}

} // namespace
} // namespace vellumry
