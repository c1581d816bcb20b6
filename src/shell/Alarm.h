// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

namespace vellumry {

/// One call that waits for its time. Main thread.
class Alarm {
public:
    virtual ~Alarm() = default;

    /// Calls `action` once, `delay` from now. What waited before is forgotten.
    virtual void ring(std::chrono::milliseconds delay, std::function<void()> action) = 0;
    /// What waits is not called any more.
    virtual void cancel() = 0;
};

} // namespace vellumry
