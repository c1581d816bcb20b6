// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <functional>

namespace vellumry {

/// Wakes the program when the wall clock reaches a date, however the clock gets there: by running, by being set, or by
/// having run on while the machine slept or the process was stopped. Main thread.
class DateTimer {
public:
    virtual ~DateTimer() = default;

    /// Called once for each `arm`, when the date may have come. It may be early, so the callee looks at the clock and
    /// arms again.
    std::function<void()> onWake;

    /// Forgets the date before. A date that has passed wakes at once, though not before `arm` has returned.
    virtual void arm(Date date) = 0;
    /// `onWake` is not called any more.
    virtual void disarm() = 0;
};

} // namespace vellumry
