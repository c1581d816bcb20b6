// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace vellumry {

/// Seconds since 1970-01-01 00:00:00 UTC, with their fraction; the unit of every stored date.
using Date = double;

/// Answers "what time is it"; injected wherever time matters, so that a test can hold it still.
using Clock = std::function<Date()>;

/// The wall clock now. Any thread.
[[nodiscard]] Date currentDate();

/// A date later than any other in use; stands for "without end".
inline constexpr Date distantFuture = 64'092'211'200.0;

} // namespace vellumry
