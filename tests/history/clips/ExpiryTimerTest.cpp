// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ExpiryTimer.h"

#include "support/FakeTime.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class ExpiryTimerTest : public testing::Test {
protected:
    void SetUp() override { m_timer.setTimer(std::make_unique<FakeTime::Timer>(m_time)); }
    FakeTime m_time{1000};
    int m_fired = 0;
    ExpiryTimer m_timer{m_time.clock(), [this] { ++m_fired; }};
};

TEST_F(ExpiryTimerTest, WaitsForTheDateAndALittle) {
    m_timer.arm(1010);
    EXPECT_EQ(m_time.waitsFor(), 1010.05);
    m_time.pass(10);
    EXPECT_EQ(m_fired, 0);
    m_time.pass(0.06);
    EXPECT_EQ(m_fired, 1);
    EXPECT_FALSE(m_timer.isArmed());
}

TEST_F(ExpiryTimerTest, ADateInThePastIsDueAfterALittle) {
    m_timer.arm(10);
    EXPECT_EQ(m_time.waitsFor(), 1000.05);
    m_time.pass(0.05);
    EXPECT_EQ(m_fired, 1);
}

TEST_F(ExpiryTimerTest, IsArmedOnlyWhileThereIsADate) {
    EXPECT_FALSE(m_timer.isArmed());
    m_timer.arm(1100);
    EXPECT_TRUE(m_timer.isArmed());
    EXPECT_EQ(m_timer.date(), 1100);
    m_timer.arm(std::nullopt);
    EXPECT_FALSE(m_timer.isArmed());
    EXPECT_EQ(m_time.waitsFor(), std::nullopt);
}

TEST_F(ExpiryTimerTest, FiresOnceForTheLatestDate) {
    m_timer.arm(1010);
    m_timer.arm(1020);
    m_time.pass(15);
    EXPECT_EQ(m_fired, 0);
    m_time.pass(3600);
    EXPECT_EQ(m_fired, 1);
    m_time.pass(3600);
    EXPECT_EQ(m_fired, 1);
}

TEST_F(ExpiryTimerTest, ADateSleptThroughIsDueOnWaking) {
    m_timer.arm(1060);
    m_time.pass(8 * 3600);
    EXPECT_EQ(m_fired, 1);
}

TEST_F(ExpiryTimerTest, AClockSetBackPutsTheDateOff) {
    m_timer.arm(1060);
    m_time.set(500);
    EXPECT_EQ(m_fired, 0);
    EXPECT_EQ(m_time.waitsFor(), 1060.05);
    m_time.pass(560);
    EXPECT_EQ(m_fired, 0);
    m_time.pass(1);
    EXPECT_EQ(m_fired, 1);
}

TEST_F(ExpiryTimerTest, AClockSetForwardPastTheDateIsObeyedAtOnce) {
    m_timer.arm(1060);
    m_time.set(1061);
    EXPECT_EQ(m_fired, 1);
}

TEST_F(ExpiryTimerTest, AClockSetForwardShortOfTheDateLeavesIt) {
    m_timer.arm(1060);
    m_time.set(1059);
    EXPECT_EQ(m_fired, 0);
    m_time.pass(1.1);
    EXPECT_EQ(m_fired, 1);
}

TEST_F(ExpiryTimerTest, AnotherTimerOrClockTakesTheDateOver) {
    m_timer.arm(1060);
    m_timer.setTimer(std::make_unique<FakeTime::Timer>(m_time));
    EXPECT_EQ(m_time.waitsFor(), 1060.05);
    FakeTime later(2000);
    m_timer.setClock(later.clock());
    EXPECT_EQ(m_time.waitsFor(), 2000.05);
}

} // namespace
} // namespace vellumry
