// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/IntervalDateTimer.h"

#include <algorithm>
#include <cmath>

namespace vellumry {

IntervalDateTimer::IntervalDateTimer(Clock clock)
    : m_clock(std::move(clock)) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { onWake(); });
}

void IntervalDateTimer::arm(Date date) {
    m_timer.start(wait(date, m_clock()));
}

void IntervalDateTimer::disarm() {
    m_timer.stop();
}

std::chrono::milliseconds IntervalDateTimer::wait(Date date, Date now) {
    constexpr double longest = 60;
    const double seconds = std::clamp(date - now, 0.0, longest);
    return std::chrono::milliseconds(static_cast<qint64>(std::ceil(seconds * 1000)));
}

} // namespace vellumry
