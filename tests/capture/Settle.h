// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Eventually.h"

#include <QCoroTask>
#include <memory>
#include <optional>

namespace vellumry {

namespace detail {

template <typename Result>
QCoro::Task<void> keep(QCoro::Task<Result> task, std::shared_ptr<std::optional<Result>> result) {
    *result = co_await task;
}

} // namespace detail

/// What `task` gives in the end; nothing when it hangs.
template <typename Result>
std::optional<Result> settle(QCoro::Task<Result> task) {
    auto result = std::make_shared<std::optional<Result>>();
    detail::keep(std::move(task), result);
    (void)eventually([result] { return result->has_value(); });
    return *result;
}

/// What `task` gives without a suspension; nothing when it suspended.
template <typename Result>
std::optional<Result> atOnce(QCoro::Task<Result> task) {
    auto result = std::make_shared<std::optional<Result>>();
    detail::keep(std::move(task), result);
    return *result;
}

} // namespace vellumry
