// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/TimerfdDateTimer.h"

#include "support/Awaited.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class TimerfdDateTimerTest : public testing::Test {
protected:
    void SetUp() override {
        m_timer = TimerfdDateTimer::create().value();
        ASSERT_TRUE(m_timer);
        m_timer->onWake = [this] { ++m_woken; };
    }
    std::unique_ptr<TimerfdDateTimer> m_timer;
    int m_woken = 0;
};

TEST_F(TimerfdDateTimerTest, ADateThatHasPassedWakesButNotWhileArming) {
    for (const Date past : {currentDate(), 5.0, 0.0, -1e300}) {
        const int before = m_woken;
        m_timer->arm(past);
        EXPECT_EQ(m_woken, before);
        runUntil([&] { return m_woken > before; });
        EXPECT_EQ(m_woken, before + 1);
    }
}

TEST_F(TimerfdDateTimerTest, NeverWakesBeforeTheDate) {
    for (int i = 0; i < 20; ++i) {
        const Date date = currentDate() + 0.0101;
        m_timer->arm(date);
        const int before = m_woken;
        runUntil([&] { return m_woken > before; });
        EXPECT_GE(currentDate(), date);
    }
}

TEST_F(TimerfdDateTimerTest, TheLatestDateHolds) {
    m_timer->arm(5);
    m_timer->arm(distantFuture);
    auto other = TimerfdDateTimer::create().value();
    bool isOver = false;
    other->onWake = [&] { isOver = true; };
    other->arm(currentDate() + 0.01);
    runUntil([&] { return isOver; });
    EXPECT_EQ(m_woken, 0);
}

TEST_F(TimerfdDateTimerTest, DisarmedItKeepsStill) {
    m_timer->arm(5);
    m_timer->disarm();
    auto other = TimerfdDateTimer::create().value();
    bool isOver = false;
    other->onWake = [&] { isOver = true; };
    other->arm(5);
    runUntil([&] { return isOver; });
    EXPECT_EQ(m_woken, 0);
}

TEST_F(TimerfdDateTimerTest, ADateBeyondAllClocksIsNoError) {
    m_timer->arm(1e300);
    auto other = TimerfdDateTimer::create().value();
    bool isOver = false;
    other->onWake = [&] { isOver = true; };
    other->arm(5);
    runUntil([&] { return isOver; });
    EXPECT_EQ(m_woken, 0);
}

} // namespace
} // namespace vellumry
