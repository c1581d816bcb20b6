// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ExpiryTimer.h"

#include <algorithm>
#include <cmath>

namespace vellumry {

ExpiryTimer::ExpiryTimer(Clock clock, std::function<void()> onDue)
    : m_clock(std::move(clock))
    , m_onDue(std::move(onDue)) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { timeout(); });
}

void ExpiryTimer::arm(std::optional<Date> date) {
    m_date = date;
    m_timer.stop();
    if (m_date)
        start();
}

std::chrono::milliseconds ExpiryTimer::wait(Date date, Date now) {
    constexpr double longest = 3600;
    const double seconds = std::min(std::max(date, now) + margin - now, longest);
    return std::chrono::milliseconds(static_cast<qint64>(std::ceil(seconds * 1000)));
}

void ExpiryTimer::start() {
    m_timer.start(wait(*m_date, m_clock()));
}

void ExpiryTimer::timeout() {
    if (m_clock() < *m_date) {
        start();
        return;
    }
    m_date.reset();
    m_onDue();
}

} // namespace vellumry
