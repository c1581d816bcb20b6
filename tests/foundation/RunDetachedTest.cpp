// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RunDetached.h"

#include "support/Awaited.h"

#include <QThread>
#include <future>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace std::chrono_literals;

QCoro::Task<std::optional<int>> resultOf(std::function<int()> job, std::chrono::milliseconds deadline) {
    auto running = runDetached(std::move(job), deadline);
    const std::optional<int> result = co_await running;
    EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
    co_return result;
}

TEST(RunDetached, GivesTheResultOfAJobDoneElsewhere) {
    QThread* worker = nullptr;
    std::function<int()> job = [&worker] {
        worker = QThread::currentThread();
        return 7;
    };
    EXPECT_EQ(awaited(resultOf(job, 60s)), 7);
    EXPECT_NE(worker, QThread::currentThread());
}

TEST(RunDetached, LeavesAJobBehindThatDoesNotEnd) {
    // What the job waits for is shared: it comes only after the waiting has been given up.
    auto release = std::make_shared<std::promise<void>>();
    std::function<int()> job = [release] {
        release->get_future().wait();
        return 7;
    };
    EXPECT_EQ(awaited(resultOf(std::move(job), 1ms)), std::nullopt);
    release->set_value();
    EXPECT_TRUE(eventually([&release] { return release.use_count() == 1; }))
        << "its thread has told the result and ends";
    EXPECT_TRUE(eventually([] { return detachedrun::leftBehind == 0; })) << "the late result finds no waiter";
}

/// A server that has gone must not cost a thread for each file that was ever copied from it.
TEST(RunDetached, BeginsNothingWhileTooManyThreadsWereLeftBehind) {
    auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    for (int i = 0; i < detachedrun::mostLeftBehind; ++i)
        EXPECT_EQ(awaited(resultOf([released] { return released.wait(), 7; }, 1ms)), std::nullopt);
    bool hasRun = false;
    EXPECT_EQ(awaited(resultOf([&hasRun] { return hasRun = true, 7; }, 60s)), std::nullopt);
    EXPECT_FALSE(hasRun);
    release->set_value();
    EXPECT_TRUE(eventually([] { return detachedrun::leftBehind == 0; }));
    EXPECT_EQ(awaited(resultOf([] { return 7; }, 60s)), 7);
}

TEST(RunDetached, ABlockingCallerIsGivenUpOnAndItsThreadCounted) {
    EXPECT_EQ(runDetachedNow([] { return 7; }, 60s), 7);
    auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    for (int i = 0; i < detachedrun::mostLeftBehind; ++i)
        EXPECT_EQ(runDetachedNow([released] { return released.wait(), 7; }, 1ms), std::nullopt);
    EXPECT_EQ(detachedrun::leftBehind, detachedrun::mostLeftBehind);
    EXPECT_EQ(runDetachedNow([] { return 7; }, 60s), std::nullopt) << "too many were left behind";
    release->set_value();
    EXPECT_TRUE(eventually([] { return detachedrun::leftBehind == 0; }));
    EXPECT_EQ(runDetachedNow([] { return 7; }, 60s), 7);
}

} // namespace
} // namespace vellumry
