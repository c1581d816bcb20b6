// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/DateTimer.h"

#include <memory>
#include <optional>

namespace vellumry {

/// Calls back once when a date has passed by the wall clock, never before. Main thread.
class ExpiryTimer {
public:
    /// How far behind the date the call comes, in seconds, so that the date is truly past then.
    static constexpr double margin = 0.05;

    /// Waits by intervals until `setTimer` gives it something better.
    ExpiryTimer(Clock clock, std::function<void()> onDue);

    /// Forgets the date before. A date that is past already is due after the margin; nothing stops the timer.
    void arm(std::optional<Date> date);
    [[nodiscard]] bool isArmed() const { return m_date.has_value(); }
    [[nodiscard]] std::optional<Date> date() const { return m_date; }

    /// What the date is compared with; and how to wait for it. Either takes over the date that is armed.
    void setClock(Clock clock);
    void setTimer(std::unique_ptr<DateTimer> timer);

private:
    void start();
    void wake();

    Clock m_clock;
    std::function<void()> m_onDue;
    std::optional<Date> m_date;
    std::unique_ptr<DateTimer> m_timer;
};

} // namespace vellumry
