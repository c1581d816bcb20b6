// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/CopiedWindow.h"

#include "foundation/OneShot.h"

#include <QPointer>
#include <utility>

namespace vellumry {

CopiedWindow::CopiedWindow(std::shared_ptr<WaylandWindows> windows)
    : m_windows(std::move(windows)) {}

void CopiedWindow::noteCopy() {
    m_copied = m_windows ? m_windows->last() : std::nullopt;
}

QCoro::Task<bool> CopiedWindow::hasEnded() {
    const QPointer<CopiedWindow> guard(this);
    const auto deadline = std::chrono::steady_clock::now() + farewell;
    while (guard != nullptr && isThere()) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            co_return false;
        const OneShot<void> moved;
        moved.deliverAfter(left);
        const auto watching = QObject::connect(
            m_windows.get(), &WaylandWindows::moved, QCoreApplication::instance(), [moved] { moved.deliver(); },
            Qt::QueuedConnection);
        co_await moved;
        QObject::disconnect(watching);
    }
    co_return true;
}

} // namespace vellumry
