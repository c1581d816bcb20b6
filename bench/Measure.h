// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace vellumry::bench {

/// How long `work` takes, in milliseconds.
template <typename Work>
[[nodiscard]] double milliseconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// `values` may not be empty.
[[nodiscard]] inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Keeps the compiler from leaving out what made `value`.
template <typename Value>
void keep(const Value& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

} // namespace vellumry::bench
