// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QPointer>
#include <chrono>
#include <memory>

namespace vellumry {

/// Waits until the window that is pasted into has the keyboard back: true then, false when it has gone, when it did not
/// get the keyboard within `limit`, or when `target`, which waits for it, has gone. `Focus` is the display server's
/// own: it tells the standing, and that it may be another one (`moved`). Main thread.
template <typename Focus>
[[nodiscard]] QCoro::Task<bool> focusReturned(std::shared_ptr<Focus> focus, QPointer<QObject> target,
                                              std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (target != nullptr) {
        const auto standing = focus->standing();
        if (standing != Focus::Standing::away)
            co_return standing == Focus::Standing::returned;
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            co_return false;
        const OneShot<void> moved;
        moved.deliverAfter(left);
        // Queued: the wait does not end amid the focus's own doings.
        const auto watching = QObject::connect(
            focus.get(), &Focus::moved, QCoreApplication::instance(), [moved] { moved.deliver(); },
            Qt::QueuedConnection);
        co_await moved;
        QObject::disconnect(watching);
    }
    co_return false;
}

} // namespace vellumry
