// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Alarm.h"

#include <QTimer>

namespace vellumry {

/// An alarm by the event loop's clock, exact to a few milliseconds or as `type` says.
class TimerAlarm : public Alarm {
public:
    explicit TimerAlarm(Qt::TimerType type = Qt::PreciseTimer);
    void ring(std::chrono::milliseconds delay, std::function<void()> action) override;
    void cancel() override;

private:
    QTimer m_timer;
    std::function<void()> m_action;
};

} // namespace vellumry
