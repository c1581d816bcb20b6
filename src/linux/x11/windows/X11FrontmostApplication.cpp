// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11FrontmostApplication.h"

#include "linux/applications/ApplicationIdentifiers.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <X11/Xlib.h>

namespace vellumry {

namespace {

constexpr long windowEvents = StructureNotifyMask | PropertyChangeMask;

/// A sandbox writes its application's id where the process sees its root folder.
QString sandboxedID(qint64 process) {
    QFile info(QStringLiteral("/proc/%1/root/.flatpak-info").arg(process));
    if (process <= 0 || !info.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : info.read(64 * 1024).split('\n')) {
        if (line.startsWith("name="))
            return QString::fromUtf8(line.mid(5).trimmed());
    }
    return {};
}

QString firstOf(std::initializer_list<QString> candidates) {
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty())
            return candidate;
    }
    return {};
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
    // Some programs say who they are only after they were shown.
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
    const XWindow active = XWindowProperties::activeWindow(*m_connection);
    const bool isKnown = active == m_window && m_hints != ApplicationHints();
    if (active <= 1 || isKnown)
        return;
    const qint64 process = XWindowProperties::processOf(*m_connection, active);
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

ApplicationHints X11FrontmostApplication::hintsOf(XWindow window, qint64 process) {
    const auto windowClass = XWindowProperties::windowClass(*m_connection, window);
    ApplicationHints hints;
    hints.applicationID =
        firstOf({XWindowProperties::text(*m_connection, window, "_GTK_APPLICATION_ID"),
                 XWindowProperties::text(*m_connection, window, "_KDE_NET_WM_DESKTOP_FILE"), sandboxedID(process)});
    hints.className = windowClass.name;
    hints.instanceName = windowClass.instance;
    if (process > 0)
        hints.program = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process))).fileName();
    return hints;
}

std::optional<DesktopEntry> X11FrontmostApplication::currentEntry() const {
    return m_hints == ApplicationHints() ? std::nullopt : m_entries->index()->find(m_hints);
}

SourceApp X11FrontmostApplication::current() const {
    if (m_hints == ApplicationHints())
        return {};
    const auto entry = currentEntry();
    const QString id =
        entry.has_value() ? entry->id : firstOf({m_hints.applicationID, m_hints.className, m_hints.program});
    SourceApp source;
    for (const QString& name : {id, m_hints.applicationID, m_hints.className, m_hints.instanceName}) {
        source.bundleID = ApplicationIdentifiers::standing(name);
        if (source.bundleID.has_value())
            break;
    }
    if (!source.bundleID.has_value() && !id.isEmpty())
        source.bundleID = id;
    const QString name = entry.has_value() ? entry->name : firstOf({m_hints.className, m_hints.program, id});
    if (!name.isEmpty())
        source.name = name;
    return source;
}

} // namespace vellumry
