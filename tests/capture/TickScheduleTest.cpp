// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/TickSchedule.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(TickSchedule, TicksAMomentAfterTheOnlyNotification) {
    TickSchedule schedule;
    EXPECT_EQ(schedule.notified(1000), 1020);
}

TEST(TickSchedule, EachNotificationOfABurstPutsTheTickOff) {
    TickSchedule schedule;
    EXPECT_EQ(schedule.notified(1000), 1020);
    EXPECT_EQ(schedule.notified(1010), 1030);
    EXPECT_EQ(schedule.notified(1029), 1049);
}

TEST(TickSchedule, ABurstWithoutEndIsTickedInTime) {
    TickSchedule schedule;
    qint64 due = 0;
    for (qint64 now = 1000; now <= 1240; now += 10)
        due = schedule.notified(now);
    EXPECT_EQ(due, 1250);
    EXPECT_EQ(schedule.notified(1249), 1250);
}

TEST(TickSchedule, IsNeverDueInThePast) {
    TickSchedule schedule;
    EXPECT_EQ(schedule.notified(1000), 1020);
    EXPECT_EQ(schedule.notified(1400), 1400);
}

TEST(TickSchedule, ATickEndsTheBurst) {
    TickSchedule schedule;
    EXPECT_EQ(schedule.notified(1000), 1020);
    schedule.ticked();
    EXPECT_EQ(schedule.notified(1300), 1320);
}

} // namespace
} // namespace vellumry
