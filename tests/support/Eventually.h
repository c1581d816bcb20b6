// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

namespace vellumry {

/// Delivers the main thread's events until `isDone` holds, for at most `milliseconds`; answers whether it does. The
/// condition is asked again after each event and every other millisecond, since other processes send none. Between
/// these the event loop blocks in poll(2), so that an event of another thread or process ends the wait at once; the
/// timer bounds each wait, the deadline all of them.
inline bool eventually(const std::function<bool()>& isDone, int milliseconds = 60'000) {
    const QDeadlineTimer deadline(milliseconds);
    QTimer turn;
    turn.start(2);
    while (!isDone()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace vellumry
