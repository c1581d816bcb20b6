// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/DateTimer.h"

#include <QTimer>
#include <chrono>

namespace vellumry {

/// A date timer out of intervals, for where the system offers none. Its timer stands still while the machine sleeps and
/// knows nothing of a clock that is set, so it looks again at least once a minute. Main thread; wakes in every event
/// loop.
class IntervalDateTimer : public DateTimer {
public:
    explicit IntervalDateTimer(Clock clock);

    void arm(Date date) override;
    void disarm() override;

    /// How long to wait at `now` before looking at the clock.
    [[nodiscard]] static std::chrono::milliseconds wait(Date date, Date now);

private:
    Clock m_clock;
    QTimer m_timer;
};

} // namespace vellumry
