// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/OneShot.h"

#include <QMetaObject>

namespace vellumry {

void postToMain(std::function<void()> function) {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return;
#ifdef __SANITIZE_THREAD__
    // The checker cannot see into the event queue of an uninstrumented Qt: a lock shows it that posting comes before
    // running. The lock is taken before anything that was posted is looked at, the function object included.
    static std::mutex order;
    const std::lock_guard posting(order);
    auto run = [function = std::move(function)] {
        order.lock();
        order.unlock();
        function();
    };
#else
    auto run = std::move(function);
#endif
    QMetaObject::invokeMethod(application, std::move(run), Qt::QueuedConnection);
}

} // namespace vellumry
