// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/OneShot.h"

#include "support/Awaited.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace vellumry {
namespace {

using namespace std::chrono_literals;

template <typename Value>
QCoro::Task<Value> valueOf(OneShot<Value> shot) {
    co_return co_await shot;
}

QCoro::Task<std::thread::id> resumedOn(OneShot<int> shot) {
    (void)co_await shot;
    co_return std::this_thread::get_id();
}

TEST(OneShot, WhatTheMainThreadDeliveredBeforeIsTakenWithoutSuspending) {
    const OneShot<int> shot;
    shot.deliver(7);
    EXPECT_EQ(atOnce(valueOf(shot)), 7);
}

TEST(OneShot, ADeliveryOnTheMainThreadResumesTheWaiterInsideIt) {
    const OneShot<QString> shot;
    const auto task = valueOf(shot);
    EXPECT_FALSE(task.isReady());
    shot.deliver(QStringLiteral("here"));
    EXPECT_TRUE(task.isReady());
}

TEST(OneShot, TheFirstDeliveryCounts) {
    const OneShot<int> shot;
    shot.deliver(1);
    shot.deliver(2);
    shot.deliverError(std::make_exception_ptr(std::runtime_error("late")));
    EXPECT_EQ(awaited(valueOf(shot)), 1);
}

TEST(OneShot, ADeliveryOfAnotherThreadResumesOnTheMainOneWhicheverCameFirst) {
    for (const bool isDeliveredFirst : {true, false}) {
        const OneShot<int> shot;
        std::optional<QCoro::Task<std::thread::id>> task;
        if (!isDeliveredFirst)
            task = resumedOn(shot);
        std::thread([shot] { shot.deliver(7); }).join();
        if (isDeliveredFirst)
            task = resumedOn(shot);
        EXPECT_FALSE(task->isReady()) << "nothing resumes before the event loop turns";
        EXPECT_EQ(awaited(*std::move(task)), std::this_thread::get_id());
    }
}

TEST(OneShot, AnErrorIsThrownToTheWaiter) {
    const OneShot<int> shot;
    const auto fail = [shot] { shot.deliverError(std::make_exception_ptr(std::runtime_error("disk full"))); };
    std::thread(fail).join();
    EXPECT_THROW(awaited(valueOf(shot)), std::runtime_error);
}

TEST(OneShot, TheDeadlineDeliversWhatItWasGiven) {
    const OneShot<int> shot;
    shot.deliverAfter(1ms, -1);
    EXPECT_EQ(awaited(valueOf(shot)), -1);
}

TEST(OneShot, ADeadlineThatWasNotNeededLeavesNothingBehind) {
    const auto held = std::make_shared<int>(7);
    {
        const OneShot<std::shared_ptr<int>> shot;
        shot.deliverAfter(1h, held);
        shot.deliver(nullptr);
        EXPECT_EQ(awaited(valueOf(shot)), nullptr);
    }
    EXPECT_TRUE(eventually([&] { return held.use_count() == 1; }));
}

TEST(OneShot, ADeadlineThatIsNotAwaitedEndsByItself) {
    const auto held = std::make_shared<int>(7);
    OneShot<std::shared_ptr<int>>().deliverAfter(1ms, held);
    EXPECT_TRUE(eventually([&] { return held.use_count() == 1; }));
}

TEST(OneShot, BlocksForAnotherThreadAtMostAsLongAsAllowed) {
    const OneShot<int> shot;
    EXPECT_EQ(shot.waitFor(1ms), std::nullopt);
    std::thread other([shot] { shot.deliver(7); });
    EXPECT_EQ(shot.waitFor(60s), 7);
    other.join();
}

TEST(OneShot, AResultWithoutAValueIsAwaitedToo) {
    const OneShot<void> shot;
    std::thread([shot] { shot.deliver(); }).join();
    EXPECT_NO_THROW(awaited(valueOf(shot)));
}

} // namespace
} // namespace vellumry
