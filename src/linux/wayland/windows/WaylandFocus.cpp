// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandFocus.h"

#include <QGuiApplication>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// As long as the keyboard's return belongs to the panel that went.
constexpr auto returnTime = 1000ms;

} // namespace

void settleQt() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QWaylandApplication>();
    wl_display* display = native != nullptr ? native->display() : nullptr;
    if (display == nullptr)
        return;
    // A queue of its own: Qt's events stay for Qt.
    const auto queue = owned(wl_display_create_queue(display), &wl_event_queue_destroy);
    wl_display_roundtrip_queue(display, queue.get());
}

WaylandFocus::WaylandFocus(std::shared_ptr<WaylandWindows> windows)
    : m_windows(std::move(windows)) {
    if (m_windows)
        connect(m_windows.get(), &WaylandWindows::moved, this, &WaylandFocus::moved);
}

void WaylandFocus::remember() {
    m_givenBack.reset();
    if (m_windows && !m_remembered)
        m_remembered = m_windows->active();
}

void WaylandFocus::giveBack() {
    m_givenBack = std::chrono::steady_clock::now();
}

WaylandFocus::Standing WaylandFocus::standing() {
    if (!m_windows)
        return Standing::returned;
    if (m_givenBack && std::chrono::steady_clock::now() - *m_givenBack > returnTime)
        m_remembered.reset();
    const auto active = m_windows->active();
    if (!m_remembered)
        return active ? Standing::returned : Standing::away;
    if (active == m_remembered) {
        m_remembered.reset();
        return Standing::returned;
    }
    return m_windows->find(*m_remembered) == nullptr ? Standing::gone : Standing::away;
}

const WaylandWindows::Window* WaylandFocus::inFront() const {
    const auto last = m_windows ? m_windows->last() : std::nullopt;
    return last ? m_windows->find(*last) : nullptr;
}

} // namespace vellumry
