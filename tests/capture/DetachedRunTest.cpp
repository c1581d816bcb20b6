// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DetachedRun.h"

#include "capture/Settle.h"

#include <QThread>
#include <future>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace std::chrono_literals;

QCoro::Task<std::optional<int>> run(std::function<int()> job, std::chrono::milliseconds deadline) {
    DetachedRun<int> detached(std::move(job), deadline);
    const std::optional<int> result = co_await detached;
    EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
    co_return result;
}

TEST(DetachedRun, GivesTheResultOfAJobDoneElsewhere) {
    QThread* worker = nullptr;
    std::function<int()> job = [&worker] {
        worker = QThread::currentThread();
        return 7;
    };
    EXPECT_EQ(settle(run(job, 10s)).value(), 7);
    EXPECT_NE(worker, QThread::currentThread());
}

TEST(DetachedRun, LeavesAJobBehindThatDoesNotEnd) {
    // What the job waits for is shared: it comes only after the waiting has been given up.
    auto release = std::make_shared<std::promise<void>>();
    std::function<int()> job = [release] {
        release->get_future().wait();
        return 7;
    };
    EXPECT_EQ(settle(run(std::move(job), 1ms)).value(), std::nullopt);
    release->set_value();
    EXPECT_TRUE(eventually([&release] { return release.use_count() == 1; }))
        << "its thread has told the result and ends";
    QCoreApplication::processEvents(); // the late result finds nobody waiting
}

/// A server that has gone must not cost a thread for each file that was ever copied from it.
TEST(DetachedRun, BeginsNothingWhileTooManyThreadsWereLeftBehind) {
    auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    for (int i = 0; i < detachedrun::mostLeftBehind; ++i)
        EXPECT_EQ(settle(run([released] { return released.wait(), 7; }, 1ms)).value(), std::nullopt);
    bool hasRun = false;
    EXPECT_EQ(settle(run([&hasRun] { return hasRun = true, 7; }, 10s)).value(), std::nullopt);
    EXPECT_FALSE(hasRun);
    release->set_value();
    EXPECT_TRUE(eventually([] { return detachedrun::leftBehind == 0; }));
    EXPECT_EQ(settle(run([] { return 7; }, 10s)).value(), 7);
}

} // namespace
} // namespace vellumry
