// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandWindows.h"

#include "linux/wayland/windows/ForeignToplevels.h"
#include "linux/wayland/windows/PlasmaWindows.h"

namespace vellumry {

std::unique_ptr<WaylandWindows> WaylandWindows::create(const std::shared_ptr<WaylandConnection>& connection) {
    if (auto windows = PlasmaWindows::create(connection))
        return windows;
    return ForeignToplevels::create(connection);
}

std::optional<WaylandWindows::ID> WaylandWindows::active() const {
    for (auto window = m_windows.cbegin(); window != m_windows.cend(); ++window) {
        if (window->isActive)
            return window.key();
    }
    return std::nullopt;
}

const WaylandWindows::Window* WaylandWindows::find(ID id) const {
    const auto found = m_windows.constFind(id);
    return found == m_windows.constEnd() ? nullptr : &*found;
}

WaylandWindows::ID WaylandWindows::add() {
    m_windows.insert(m_nextID, Window());
    return m_nextID++;
}

void WaylandWindows::update(ID id, const Window& window) {
    const auto found = m_windows.find(id);
    if (found == m_windows.end())
        return;
    const bool isMove = found->isActive != window.isActive;
    *found = window;
    if (window.isActive)
        m_last = id;
    if (isMove)
        Q_EMIT moved();
}

void WaylandWindows::remove(ID id) {
    m_windows.remove(id);
    if (m_last == id)
        m_last.reset();
    Q_EMIT moved();
}

} // namespace vellumry
