// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11FrontmostApplication.h"

#include "linux/applications/SourceApps.h"
#include "linux/x11/windows/SelectionClient.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <X11/Xlib.h>

namespace vellumry {

namespace {

constexpr long windowEvents = StructureNotifyMask | PropertyChangeMask;

QString firstOf(std::initializer_list<QString> candidates) {
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty())
            return candidate;
    }
    return {};
}

ApplicationHints hintsFrom(const SelectionClient& client) {
    ApplicationHints hints;
    hints.applicationID = firstOf({client.gtkApplication, client.kdeDesktopFile, sandboxedID(client.process)});
    hints.className = client.windowClass.name;
    hints.instanceName = client.windowClass.instance;
    if (client.process > 0)
        hints.program = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(client.process))).fileName();
    return hints;
}

} // namespace

X11FrontmostApplication::X11FrontmostApplication(std::shared_ptr<XlibConnection> connection,
                                                 std::shared_ptr<DesktopEntries> entries)
    : m_connection(std::move(connection))
    , m_entries(std::move(entries)) {
    m_entries->refresh();
    m_connection->listen(m_connection->root(), PropertyChangeMask);
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &X11FrontmostApplication::handleEvent);
    follow();
}

void X11FrontmostApplication::handleEvent(XEvent* event) {
    if (event->type == PropertyNotify && event->xproperty.window == m_connection->root() &&
        event->xproperty.atom == m_connection->atom("_NET_ACTIVE_WINDOW"))
        follow();
    // Some programs set their class only after their window is mapped.
    if (event->type == PropertyNotify && event->xproperty.window == m_window && m_window != 0 &&
        event->xproperty.atom != m_connection->atom("_NET_WM_USER_TIME") && m_hints == ApplicationHints())
        m_hints = hintsOf(m_window, m_process);
    if (event->type == DestroyNotify && event->xdestroywindow.window == m_window && m_window != 0) {
        m_connection->ignore(m_window, windowEvents);
        m_window = 0;
        m_process = 0;
        m_hints = {};
    }
}

void X11FrontmostApplication::follow() {
    const XWindow active = windowproperties::activeWindow(*m_connection);
    const bool isKnown = active == m_window && m_hints != ApplicationHints();
    if (active <= 1 || isKnown)
        return;
    const qint64 process = windowproperties::processOf(*m_connection, active);
    if (process == QCoreApplication::applicationPid())
        return;
    if (m_window != 0)
        m_connection->ignore(m_window, windowEvents);
    m_window = active;
    m_process = process;
    m_connection->listen(active, windowEvents);
    m_hints = hintsOf(active, process);
    m_entries->refresh();
}

ApplicationHints X11FrontmostApplication::hintsOf(XWindow window, qint64 process) const {
    SelectionClient client;
    client.windowClass = windowproperties::windowClass(*m_connection, window);
    client.process = process;
    client.gtkApplication = windowproperties::text(*m_connection, window, "_GTK_APPLICATION_ID");
    client.kdeDesktopFile = windowproperties::text(*m_connection, window, "_KDE_NET_WM_DESKTOP_FILE");
    return hintsFrom(client);
}

std::optional<DesktopEntry> X11FrontmostApplication::currentEntry() const {
    return entryOf(m_hints);
}

std::optional<DesktopEntry> X11FrontmostApplication::entryOf(const ApplicationHints& hints) const {
    return hints == ApplicationHints() ? std::nullopt : m_entries->index()->find(hints);
}

SourceApp X11FrontmostApplication::current() const {
    return applicationOf(m_hints);
}

SourceApp X11FrontmostApplication::applicationOf(const ApplicationHints& hints) const {
    return hints == ApplicationHints() ? SourceApp() : sourceAppOf(hints, *m_entries->index());
}

SourceApp X11FrontmostApplication::pasteboardOwner() const {
    const auto client = SelectionClient::of(*m_connection, "CLIPBOARD");
    if (!client || client->process == QCoreApplication::applicationPid())
        return {};
    return applicationOf(hintsFrom(*client));
}

} // namespace vellumry
