// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>

namespace vellumry {

/// Calls back once when a date has passed by the wall clock. Main thread; fires in every event loop, a menu's included.
class ExpiryTimer {
public:
    /// How far behind the date the call comes, in seconds, so that the date is truly past then.
    static constexpr double margin = 0.05;

    ExpiryTimer(Clock clock, std::function<void()> onDue);

    /// Forgets the date before. A date that is past already is due after the margin; nothing stops the timer.
    void arm(std::optional<Date> date);
    [[nodiscard]] bool isArmed() const { return m_timer.isActive(); }
    [[nodiscard]] std::optional<Date> date() const { return m_date; }
    void setClock(Clock clock) { m_clock = std::move(clock); }

    /// How long to wait at `now` before looking again: the time left, and an hour at the most, since a wall clock can
    /// be set and a machine can sleep while a timer stands still.
    [[nodiscard]] static std::chrono::milliseconds wait(Date date, Date now);

private:
    void start();
    void timeout();

    Clock m_clock;
    std::function<void()> m_onDue;
    std::optional<Date> m_date;
    QTimer m_timer;
};

} // namespace vellumry
