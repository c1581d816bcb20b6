// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XSettingsLook.h"

#include "linux/x11/windows/XSettings.h"

#include <utility>

#include <X11/Xlib.h>

namespace vellumry {

namespace {

constexpr long managerEvents = PropertyChangeMask | StructureNotifyMask;

} // namespace

XSettingsLook::XSettingsLook(std::shared_ptr<XlibConnection> connection, std::function<void(const SaidLook&)> onChanged)
    : m_connection(std::move(connection))
    , m_onChanged(std::move(onChanged)) {
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &XSettingsLook::handleEvent);
    // A manager that begins tells so on the root window (Inter-Client Communication Conventions Manual, 2.8).
    m_connection->listen(m_connection->root(), StructureNotifyMask);
    followManager();
}

XSettingsLook::~XSettingsLook() {
    if (m_manager != 0)
        m_connection->ignore(m_manager, managerEvents);
    m_connection->ignore(m_connection->root(), StructureNotifyMask);
}

void XSettingsLook::followManager() {
    if (m_manager != 0)
        m_connection->ignore(m_manager, managerEvents);
    m_manager = xsettings::manager(*m_connection);
    if (m_manager != 0)
        m_connection->listen(m_manager, managerEvents);
    read();
}

void XSettingsLook::read() {
    const QByteArray property = xsettings::property(*m_connection);
    const auto text = [&property](const char* name) {
        return QString::fromUtf8(xsettings::textIn(property, name).value_or(QByteArray()));
    };
    SaidLook said = lookOfNames(text("Net/ThemeName"), text("Gtk/FontName"));
    if (const auto animations = xsettings::integerIn(property, "Gtk/EnableAnimations"))
        said.reducesMotion = *animations == 0;
    if (std::exchange(m_said, said) != said)
        m_onChanged(said);
}

void XSettingsLook::handleEvent(XEvent* event) {
    const bool isOfManager = m_manager != 0 && event->xany.window == m_manager;
    if (event->type == PropertyNotify && isOfManager)
        read();
    else if ((event->type == DestroyNotify && isOfManager) ||
             (event->type == ClientMessage && event->xclient.message_type == m_connection->atom("MANAGER")))
        followManager();
}

} // namespace vellumry
