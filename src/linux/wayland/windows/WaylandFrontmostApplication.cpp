// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandFrontmostApplication.h"

#include "linux/applications/SourceApps.h"

#include <QFileInfo>
#include <QGuiApplication>

namespace vellumry {

WaylandFrontmostApplication::WaylandFrontmostApplication(std::shared_ptr<WaylandWindows> windows,
                                                         std::shared_ptr<DesktopEntries> entries)
    : m_windows(std::move(windows))
    , m_entries(std::move(entries)) {
    m_entries->refresh();
    if (!m_windows)
        return;
    connect(m_windows.get(), &WaylandWindows::moved, this, &WaylandFrontmostApplication::follow);
    follow();
}

void WaylandFrontmostApplication::follow() {
    const auto active = m_windows->active();
    const WaylandWindows::Window* window = active ? m_windows->find(*active) : nullptr;
    if (window == nullptr || window->applicationID == QGuiApplication::desktopFileName())
        return;
    m_hints = {};
    const QString sandboxed = sandboxedID(window->process);
    m_hints.applicationID = sandboxed.isEmpty() ? window->applicationID : sandboxed;
    // Programs of Xwayland give their window class for it.
    m_hints.className = window->applicationID;
    // An interpreter's own program says less than the name that its window bears.
    if (window->applicationID.isEmpty() && window->process > 0)
        m_hints.program =
            QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(window->process))).fileName();
    m_entries->refresh();
}

SourceApp WaylandFrontmostApplication::current() const {
    return m_hints == ApplicationHints() ? SourceApp() : sourceAppOf(m_hints, *m_entries->index());
}

} // namespace vellumry
