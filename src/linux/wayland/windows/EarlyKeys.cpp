// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/EarlyKeys.h"

#include <QGuiApplication>
#include <utility>

namespace vellumry {

EarlyKeys::EarlyKeys() {
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &EarlyKeys::handOver);
}

bool EarlyKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    auto* const window = static_cast<QWindow*>(watched);
    if (QGuiApplication::focusWindow() == window)
        return false;
    if (m_window != window)
        m_kept.clear();
    m_window = window;
    m_kept.emplace_back(static_cast<QKeyEvent*>(event)->clone());
    return true;
}

void EarlyKeys::handOver(QWindow* active) {
    if (active == nullptr || active != m_window)
        return;
    // What a key does may hide the window, and others are meant for it no more.
    for (const auto& key : std::exchange(m_kept, {})) {
        if (m_window != nullptr && QGuiApplication::focusWindow() == m_window)
            QCoreApplication::sendEvent(m_window, key.get());
    }
}

} // namespace vellumry
