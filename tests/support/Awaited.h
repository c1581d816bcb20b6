// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Eventually.h"

#include <QCoroTask>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <type_traits>

namespace vellumry {

namespace detail {

template <typename Result>
struct AwaitedOutcome {
    std::optional<std::conditional_t<std::is_void_v<Result>, bool, Result>> value;
    std::exception_ptr error;
    [[nodiscard]] bool isDone() const { return value.has_value() || error; }
};

template <typename Result>
QCoro::Task<void> watchTask(QCoro::Task<Result> task, std::shared_ptr<AwaitedOutcome<Result>> outcome) {
    try {
        if constexpr (std::is_void_v<Result>) {
            co_await task;
            outcome->value = true;
        } else {
            outcome->value.emplace(co_await task);
        }
    } catch (...) {
        outcome->error = std::current_exception();
    }
}

} // namespace detail

/// Delivers the main thread's events until `isDone` holds. Throws when it does not within `milliseconds`: a test that
/// hangs fails.
inline void runUntil(const std::function<bool()>& isDone, int milliseconds = 60'000) {
    if (!eventually(isDone, milliseconds))
        throw std::runtime_error("What is waited for has not come.");
}

/// What `task` gives without a suspension; nothing when it suspended.
template <typename Result>
std::optional<Result> atOnce(QCoro::Task<Result> task) {
    const auto outcome = std::make_shared<detail::AwaitedOutcome<Result>>();
    const auto watching = detail::watchTask(std::move(task), outcome);
    if (outcome->error)
        std::rethrow_exception(outcome->error);
    return outcome->value;
}

/// The task's result, or the exception that it ended with. The main thread's events are delivered meanwhile.
template <typename Result>
Result awaited(QCoro::Task<Result> task) {
    const auto outcome = std::make_shared<detail::AwaitedOutcome<Result>>();
    const auto watching = detail::watchTask(std::move(task), outcome);
    runUntil([&] { return outcome->isDone(); });
    if (outcome->error)
        std::rethrow_exception(outcome->error);
    if constexpr (!std::is_void_v<Result>)
        return *std::move(outcome->value);
}

} // namespace vellumry
