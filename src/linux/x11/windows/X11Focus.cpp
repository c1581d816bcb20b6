// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11Focus.h"

#include "linux/x11/windows/XErrorTrap.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <X11/Xlib.h>

namespace vellumry {

namespace {

/// Longer than a paste needs from the panel's end to its key press, shorter than a user needs for the next thing.
constexpr std::chrono::milliseconds rememberedFor{1500};

constexpr long focusEvents = FocusChangeMask | StructureNotifyMask;

} // namespace

X11Focus::X11Focus(std::shared_ptr<XlibConnection> connection, Clock clock)
    : m_connection(std::move(connection))
    , m_clock(std::move(clock)) {
    m_connection->listen(m_connection->root(), PropertyChangeMask);
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &X11Focus::handleEvent);
}

X11Focus::~X11Focus() {
    forget();
}

bool X11Focus::isRemembered() {
    if (m_givenBack.has_value() && m_clock() - *m_givenBack > rememberedFor)
        forget();
    return m_focus != 0;
}

void X11Focus::remember() {
    if (isRemembered() && !m_givenBack.has_value())
        return;
    forget();
    XGetInputFocus(m_connection->display(), &m_focus, &m_revertTo);
    m_active = XWindowProperties::activeWindow(*m_connection);
    m_client = XWindowProperties::clientOf(*m_connection, m_focus);
    if (m_focus > 1)
        m_connection->listen(m_focus, focusEvents);
}

void X11Focus::forget() {
    if (m_focus > 1)
        m_connection->ignore(m_focus, focusEvents);
    m_focus = 0;
    m_client = 0;
    m_active = 0;
    m_givenBack.reset();
}

void X11Focus::giveBack(XWindow ours) {
    if (m_focus == 0)
        return;
    m_givenBack = m_clock();
    // A window manager gives the keyboard to any window when the remembered one closes. What the user chose for that
    // one must not be typed into another, so it stays remembered for its while.
    if (XWindowProperties::focusWindow(*m_connection) != ours)
        return;
    Display* display = m_connection->display();
    XErrorTrap trap(display);
    XSetInputFocus(display, m_focus, m_revertTo, CurrentTime);
    if (trap.finish() == 0 || m_active <= 1)
        return;
    XEvent request{};
    request.xclient.type = ClientMessage;
    request.xclient.window = m_active;
    request.xclient.message_type = m_connection->atom("_NET_ACTIVE_WINDOW");
    request.xclient.format = 32;
    request.xclient.data.l[0] = 2;
    XSendEvent(display, m_connection->root(), False, SubstructureNotifyMask | SubstructureRedirectMask, &request);
}

bool X11Focus::isSameClient(XWindow focus) {
    if (focus == m_focus)
        return true;
    if (focus <= 1 || m_client == 0)
        return false;
    return XWindowProperties::clientOf(*m_connection, focus) == m_client;
}

X11Focus::Standing X11Focus::standing() {
    const XWindow focus = XWindowProperties::focusWindow(*m_connection);
    if (!isRemembered())
        return focus == 0 ? Standing::away : Standing::returned;
    if (isSameClient(focus))
        return Standing::returned;
    // A toolkit may have made its inner focus window anew; the program's own window is what counts.
    const XWindow lasting = m_client != 0 ? m_client : m_focus;
    return lasting > 1 && !XWindowProperties::exists(*m_connection, lasting) ? Standing::gone : Standing::away;
}

void X11Focus::handleEvent(XEvent* event) {
    const bool activeChanged = event->type == PropertyNotify && event->xproperty.window == m_connection->root() &&
                               event->xproperty.atom == m_connection->atom("_NET_ACTIVE_WINDOW");
    const bool focusChanged = m_focus > 1 && event->xany.window == m_focus &&
                              (event->type == FocusIn || event->type == FocusOut || event->type == DestroyNotify);
    if (activeChanged || focusChanged)
        Q_EMIT moved();
}

} // namespace vellumry
