// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ExpiryTimer.h"

#include "history/clips/IntervalDateTimer.h"

#include <algorithm>

namespace vellumry {

ExpiryTimer::ExpiryTimer(Clock clock, std::function<void()> onDue)
    : m_clock(std::move(clock))
    , m_onDue(std::move(onDue)) {
    setTimer(std::make_unique<IntervalDateTimer>([this] { return m_clock(); }));
}

void ExpiryTimer::arm(std::optional<Date> date) {
    m_date = date;
    start();
}

void ExpiryTimer::setClock(Clock clock) {
    m_clock = std::move(clock);
    start();
}

void ExpiryTimer::setTimer(std::unique_ptr<DateTimer> timer) {
    m_timer = std::move(timer);
    m_timer->onWake = [this] { wake(); };
    start();
}

void ExpiryTimer::start() {
    if (m_date)
        m_timer->arm(std::max(*m_date, m_clock()) + margin);
    else
        m_timer->disarm();
}

void ExpiryTimer::wake() {
    if (!m_date)
        return;
    if (m_clock() < *m_date) {
        start();
        return;
    }
    m_date.reset();
    m_onDue();
}

} // namespace vellumry
