// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/TimerfdDateTimer.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>

namespace vellumry {

namespace {

/// Never before the date, and never zero, which would mean "no date".
itimerspec at(Date date) {
    // Within what every kernel can hold; no wait is that long.
    const double seconds = std::clamp(date, 1.0, distantFuture);
    itimerspec setting{};
    setting.it_value.tv_sec = static_cast<time_t>(std::floor(seconds));
    setting.it_value.tv_nsec = static_cast<long>(std::ceil((seconds - std::floor(seconds)) * 999'999'999));
    return setting;
}

} // namespace

OrReason<std::unique_ptr<TimerfdDateTimer>> TimerfdDateTimer::create() {
    const int descriptor = timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    if (descriptor < 0)
        return std::unexpected(Reason{QStringLiteral("no timer of the kernel, error %1").arg(errno)});
    return std::unique_ptr<TimerfdDateTimer>(new TimerfdDateTimer(descriptor));
}

TimerfdDateTimer::TimerfdDateTimer(int descriptor)
    : m_descriptor(descriptor)
    , m_notifier(descriptor, QSocketNotifier::Read) {
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { wake(); });
}

TimerfdDateTimer::~TimerfdDateTimer() {
    m_notifier.setEnabled(false);
    close(m_descriptor);
}

void TimerfdDateTimer::arm(Date date) {
    const itimerspec setting = at(date);
    m_isArmed = true;
    // The kernel reports a clock that was set since the last call as an error, though the new date holds.
    if (timerfd_settime(m_descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &setting, nullptr) < 0 &&
        errno == ECANCELED)
        (void)timerfd_settime(m_descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &setting, nullptr);
}

void TimerfdDateTimer::disarm() {
    const itimerspec none{};
    m_isArmed = false;
    (void)timerfd_settime(m_descriptor, 0, &none, nullptr);
}

void TimerfdDateTimer::wake() {
    std::uint64_t expirations = 0;
    const bool isOver = read(m_descriptor, &expirations, sizeof expirations) == sizeof expirations;
    const bool isClockSet = !isOver && errno == ECANCELED;
    if (!m_isArmed || (!isOver && !isClockSet))
        return;
    m_isArmed = false;
    onWake();
}

} // namespace vellumry
