// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SerialExecutor.h"

#include <QCoro/QCoroTask>
#include <atomic>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace vellumry {

namespace {

/// What a coroutine that awaited a job saw.
struct Outcome {
    std::optional<int> result;
    std::string error;
    std::thread::id resumedOn;
};

QCoro::Task<> awaitJob(SerialExecutor* executor, std::function<int()> job, std::shared_ptr<Outcome> outcome) {
    try {
        auto running = executor->run(std::move(job));
        const int result = co_await running;
        outcome->result = result;
    } catch (const std::runtime_error& error) {
        outcome->error = error.what();
    }
    outcome->resumedOn = std::this_thread::get_id();
}

QCoro::Task<> awaitVoidJob(SerialExecutor* executor, std::function<void()> job, std::shared_ptr<Outcome> outcome) {
    auto running = executor->run(std::move(job));
    co_await running;
    outcome->resumedOn = std::this_thread::get_id();
}

/// The same, with the job at hand until its end.
QCoro::Task<> awaitNamedJob(SerialExecutor* executor, std::function<void()> job) {
    auto running = executor->run(std::move(job));
    co_await running;
}

/// Ends the executor, so that all its jobs are done, and delivers what they posted to the main thread.
void finish(std::optional<SerialExecutor>& executor) {
    executor.reset();
    QCoreApplication::sendPostedEvents();
}

} // namespace

TEST(SerialExecutor, RunsJobsInOrderOnOneThreadOfItsOwn) {
    std::vector<int> order;
    std::vector<std::thread::id> threads;
    {
        SerialExecutor executor("test");
        for (int i = 0; i < 1000; ++i) {
            executor.post([&order, &threads, i] {
                order.push_back(i);
                threads.push_back(std::this_thread::get_id());
            });
        }
    }
    ASSERT_EQ(order.size(), 1000u);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(order[static_cast<std::size_t>(i)], i);
        ASSERT_EQ(threads[static_cast<std::size_t>(i)], threads.front());
    }
    EXPECT_NE(threads.front(), std::this_thread::get_id());
}

TEST(SerialExecutor, RunsWhatAJobPostsWhileItEnds) {
    bool ran = false;
    {
        SerialExecutor executor("test", true);
        executor.post([&executor, &ran] { executor.post([&ran] { ran = true; }); });
    }
    EXPECT_TRUE(ran);
}

TEST(SerialExecutor, WhatAJobHoldsGoesOnItsThread) {
    std::optional<SerialExecutor> executor(std::in_place, "test");
    std::thread::id freedOn;
    const auto free = [&freedOn](const int* memory) {
        freedOn = std::this_thread::get_id();
        delete memory;
    };
    std::shared_ptr<int> held(new int(1), free);
    std::function<void()> job = [large = std::move(held)] {};
    awaitNamedJob(&*executor, std::move(job));
    finish(executor);
    EXPECT_NE(freedOn, std::thread::id());
    EXPECT_NE(freedOn, std::this_thread::get_id());
}

TEST(SerialExecutor, KnowsItsOwnThread) {
    bool inside = false;
    std::optional<SerialExecutor> executor(std::in_place, "test");
    EXPECT_FALSE(executor->isCurrent());
    executor->post([&executor, &inside] { inside = executor->isCurrent(); });
    finish(executor);
    EXPECT_TRUE(inside);
}

TEST(SerialExecutor, ResumesOnTheMainThreadWithTheResult) {
    const auto outcome = std::make_shared<Outcome>();
    std::optional<SerialExecutor> executor(std::in_place, "test");
    std::function<int()> job = [] { return 42; };
    const QCoro::Task<> task = awaitJob(&*executor, job, outcome);
    EXPECT_FALSE(outcome->result) << "nothing resumes before the event loop turns";
    finish(executor);
    EXPECT_EQ(outcome->result, 42);
    EXPECT_EQ(outcome->resumedOn, std::this_thread::get_id());
    EXPECT_TRUE(task.isReady());
}

TEST(SerialExecutor, CarriesAnExceptionToTheWaiter) {
    const auto outcome = std::make_shared<Outcome>();
    std::optional<SerialExecutor> executor(std::in_place, "test");
    std::function<int()> job = []() -> int { throw std::runtime_error("disk full"); };
    const QCoro::Task<> task = awaitJob(&*executor, job, outcome);
    finish(executor);
    EXPECT_EQ(outcome->error, "disk full");
    EXPECT_FALSE(outcome->result);
    EXPECT_EQ(outcome->resumedOn, std::this_thread::get_id());
}

TEST(SerialExecutor, AwaitsJobsWithoutAResult) {
    const auto outcome = std::make_shared<Outcome>();
    std::atomic<bool> ran = false;
    std::optional<SerialExecutor> executor(std::in_place, "test");
    std::function<void()> job = [&ran] { ran = true; };
    const QCoro::Task<> task = awaitVoidJob(&*executor, job, outcome);
    finish(executor);
    EXPECT_TRUE(ran);
    EXPECT_EQ(outcome->resumedOn, std::this_thread::get_id());
}

TEST(SerialExecutor, PostToMainKeepsTheOrder) {
    std::vector<int> order;
    std::optional<SerialExecutor> executor(std::in_place, "test");
    for (int i = 0; i < 10; ++i)
        executor->post([&order, i] { postToMain([&order, i] { order.push_back(i); }); });
    finish(executor);
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

} // namespace vellumry
