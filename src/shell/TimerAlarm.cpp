// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TimerAlarm.h"

#include <utility>

namespace vellumry {

TimerAlarm::TimerAlarm(Qt::TimerType type) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(type);
    m_timer.callOnTimeout([this] {
        // The action may set the alarm anew.
        const auto action = std::exchange(m_action, nullptr);
        if (action)
            action();
    });
}

void TimerAlarm::ring(std::chrono::milliseconds delay, std::function<void()> action) {
    m_action = std::move(action);
    m_timer.start(delay);
}

void TimerAlarm::cancel() {
    m_timer.stop();
    m_action = nullptr;
}

} // namespace vellumry
