// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

namespace vellumry {

/// Delivers the main thread's events until `isDone` holds, for at most `milliseconds`; answers whether it does. The
/// condition is asked again after each event and every other millisecond, since other processes send none.
inline bool eventually(const std::function<bool()>& isDone, int milliseconds = 10'000) {
    const QDeadlineTimer deadline(milliseconds);
    QTimer turn;
    turn.start(2);
    while (!isDone() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return isDone();
}

} // namespace vellumry
