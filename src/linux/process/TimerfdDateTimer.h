// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "platform/desktop/DateTimer.h"

#include <QSocketNotifier>
#include <memory>

namespace vellumry {

/// A timer of the kernel's on the wall clock itself (timerfd_create(2), CLOCK_REALTIME, TFD_TIMER_CANCEL_ON_SET): a
/// date that passed in a suspend or while the process was stopped wakes at once afterwards, and so does every setting
/// of the clock, after which the callee arms anew. Main thread; wakes in every event loop.
class TimerfdDateTimer : public DateTimer {
public:
    /// Fails when the kernel refuses.
    [[nodiscard]] static OrReason<std::unique_ptr<TimerfdDateTimer>> create();
    ~TimerfdDateTimer() override;
    TimerfdDateTimer(const TimerfdDateTimer&) = delete;
    TimerfdDateTimer& operator=(const TimerfdDateTimer&) = delete;

    void arm(Date date) override;
    void disarm() override;

private:
    explicit TimerfdDateTimer(int descriptor);
    void wake();

    int m_descriptor;
    bool m_isArmed = false;
    QSocketNotifier m_notifier;
};

} // namespace vellumry
