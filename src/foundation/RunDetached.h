// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"

#include <QCoroTask>
#include <system_error>

namespace vellumry {

namespace detachedrun {

/// Threads whose deadline has passed and that still run. Main thread.
inline int leftBehind = 0;
/// With so many of them whatever they wait for has gone for good, and further jobs are not begun.
constexpr int mostLeftBehind = 32;

template <typename Job>
using Outcome = OneShot<std::optional<std::invoke_result_t<Job&>>>;

/// False without a thread, and while too many were left behind.
template <typename Job>
[[nodiscard]] bool begin(Job job, const Outcome<Job>& result) {
    if (leftBehind >= mostLeftBehind)
        return false;
    try {
        std::thread([result, job = std::move(job)]() mutable {
            const bool isInTime = result.deliver(std::make_optional(job()));
            if (!isInTime)
                postToMain([] { --leftBehind; });
        }).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

} // namespace detachedrun

/// Runs a job that may block for good, such as a look at a disk that has gone, on a thread of its own, which is left
/// behind when the deadline passes. Main thread. The job's result, or nothing after the deadline, without a thread, and
/// while too many threads were left behind. The job must own what it uses and must not throw.
template <typename Job>
QCoro::Task<std::optional<std::invoke_result_t<Job&>>> runDetached(Job job, std::chrono::milliseconds deadline) {
    const detachedrun::Outcome<Job> result;
    if (!detachedrun::begin(std::move(job), result))
        co_return std::nullopt;
    result.deliverAfter(deadline);
    auto outcome = co_await result;
    if (!outcome)
        ++detachedrun::leftBehind;
    co_return outcome;
}

/// The same for a caller that cannot wait in a coroutine: blocks for at most `limit`.
template <typename Job>
[[nodiscard]] std::optional<std::invoke_result_t<Job&>> runDetachedNow(Job job, std::chrono::milliseconds limit) {
    const detachedrun::Outcome<Job> result;
    if (!detachedrun::begin(std::move(job), result))
        return std::nullopt;
    if (auto outcome = result.waitFor(limit).value_or(std::nullopt))
        return outcome;
    if (result.deliver(std::nullopt)) {
        ++detachedrun::leftBehind;
        return std::nullopt;
    }
    // It came in this very moment.
    return result.waitFor(limit).value_or(std::nullopt);
}

} // namespace vellumry
