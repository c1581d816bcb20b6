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

} // namespace detachedrun

/// Runs a job that may block for good, such as a look at a disk that has gone, on a thread of its own, which is left
/// behind when the deadline passes. Main thread. The job's result, or nothing after the deadline, without a thread, and
/// while too many threads were left behind. The job must own what it uses and must not throw.
template <typename Job>
QCoro::Task<std::optional<std::invoke_result_t<Job&>>> runDetached(Job job, std::chrono::milliseconds deadline) {
    const OneShot<std::optional<std::invoke_result_t<Job&>>> result;
    if (detachedrun::leftBehind >= detachedrun::mostLeftBehind)
        co_return std::nullopt;
    try {
        std::thread([result, job = std::move(job)]() mutable {
            const bool isInTime = result.deliver(std::make_optional(job()));
            if (!isInTime)
                postToMain([] { --detachedrun::leftBehind; });
        }).detach();
    } catch (const std::system_error&) {
        co_return std::nullopt;
    }
    result.deliverAfter(deadline);
    auto outcome = co_await result;
    if (!outcome)
        ++detachedrun::leftBehind;
    co_return outcome;
}

} // namespace vellumry
