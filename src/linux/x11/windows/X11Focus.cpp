// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11Focus.h"

#include "linux/x11/windows/XErrorTrap.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <X11/Xlib.h>
#include <algorithm>

namespace vellumry {

namespace {

/// Longer than a paste needs from the panel's end to its key press, shorter than a user needs for the next thing.
constexpr std::chrono::milliseconds rememberedFor{1500};

/// Window managers that focus what the pointer is on (i3, and others when told to) take the end of the panel for the
/// pointer's coming to the window beneath it. They do so at once; a user who means that window needs longer.
constexpr std::chrono::milliseconds heldFor{300};
constexpr int mostHolds = 3;

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
    m_active = windowproperties::activeWindow(*m_connection);
    m_client = windowproperties::clientOf(*m_connection, m_focus);
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
    m_holdsLeft = 0;
}

void X11Focus::giveBack(XWindow ours, unsigned long time) {
    if (m_focus == 0)
        return;
    m_givenBack = m_clock();
    m_holdsLeft = isPointerOn(ours) ? mostHolds : 0;
    if (m_holdsLeft > 0)
        m_topLevels = topLevels();
    // A window manager gives the keyboard to any window when the remembered one closes. What the user chose for that
    // one must not be typed into another, so it stays remembered for its while.
    if (windowproperties::focusWindow(*m_connection) != ours)
        return;
    Display* display = m_connection->display();
    XErrorTrap trap(display);
    // The server leaves out a request that is older than the last one it obeyed: the window manager's request, of the
    // click's own time, wins over ours.
    XSetInputFocus(display, m_focus, m_revertTo, time == 0 ? CurrentTime : time - 1);
    if (trap.finish() != 0)
        activate();
}

bool X11Focus::isPointerOn(XWindow window) const {
    Display* display = m_connection->display();
    XErrorTrap trap(display);
    XWindow root = 0;
    XWindow child = 0;
    int rootX = 0;
    int rootY = 0;
    int x = 0;
    int y = 0;
    unsigned int mask = 0;
    XWindowAttributes attributes{};
    const bool isKnown = XQueryPointer(display, window, &root, &child, &rootX, &rootY, &x, &y, &mask) != 0 &&
                         XGetWindowAttributes(display, window, &attributes) != 0;
    return trap.finish() == 0 && isKnown && x >= 0 && y >= 0 && x < attributes.width && y < attributes.height;
}

/// The children of the root: frames of the window manager, and windows without one.
std::vector<XWindow> X11Focus::topLevels() const {
    XWindow root = 0;
    XWindow parent = 0;
    XWindow* children = nullptr;
    unsigned int count = 0;
    XErrorTrap trap(m_connection->display());
    const bool isKnown =
        XQueryTree(m_connection->display(), m_connection->root(), &root, &parent, &children, &count) != 0;
    std::vector<XWindow> result;
    if (trap.finish() == 0 && isKnown)
        result.assign(children, children + count);
    if (children)
        XFree(children);
    return result;
}

/// The child of the root that `window` lies in; 0 when it has gone.
XWindow X11Focus::topLevelOf(XWindow window) const {
    XErrorTrap trap(m_connection->display());
    while (window != 0) {
        XWindow root = 0;
        XWindow parent = 0;
        XWindow* children = nullptr;
        unsigned int count = 0;
        if (XQueryTree(m_connection->display(), window, &root, &parent, &children, &count) == 0)
            window = parent = 0;
        if (children)
            XFree(children);
        if (parent == root)
            break;
        window = parent;
    }
    return trap.finish() == 0 ? window : 0;
}

/// Takes the keyboard back from a window that got it because the panel over it went away. A pressed button means that
/// the user chose that window.
void X11Focus::hold() {
    if (m_holdsLeft == 0 || !m_givenBack || m_clock() - *m_givenBack > heldFor)
        return;
    const XWindow focus = windowproperties::focusWindow(*m_connection);
    if (isSameClient(focus))
        return;
    // A window that opened since takes the keyboard by right, wherever the pointer lies.
    if (focus > 1 && std::ranges::find(m_topLevels, topLevelOf(focus)) == m_topLevels.end())
        return;
    XWindow root = 0;
    XWindow child = 0;
    int place[4];
    unsigned int mask = 0;
    XQueryPointer(m_connection->display(), m_connection->root(), &root, &child, &place[0], &place[1], &place[2],
                  &place[3], &mask);
    if ((mask & (Button1Mask | Button2Mask | Button3Mask)) != 0)
        return;
    --m_holdsLeft;
    // The window manager is asked as well: it would go on to show the other window as the active one.
    activate();
    XErrorTrap trap(m_connection->display());
    XSetInputFocus(m_connection->display(), m_focus, m_revertTo, CurrentTime);
}

void X11Focus::activate() {
    if (m_active <= 1)
        return;
    Display* display = m_connection->display();
    XErrorTrap trap(display);
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
    return windowproperties::clientOf(*m_connection, focus) == m_client;
}

X11Focus::Standing X11Focus::standing() {
    const XWindow focus = windowproperties::focusWindow(*m_connection);
    if (!isRemembered())
        return focus == 0 ? Standing::away : Standing::returned;
    if (isSameClient(focus))
        return Standing::returned;
    // A toolkit may have made its inner focus window anew; the program's own window is what counts.
    const XWindow lasting = m_client != 0 ? m_client : m_focus;
    return lasting > 1 && !windowproperties::exists(*m_connection, lasting) ? Standing::gone : Standing::away;
}

void X11Focus::handleEvent(XEvent* event) {
    const bool activeChanged = event->type == PropertyNotify && event->xproperty.window == m_connection->root() &&
                               event->xproperty.atom == m_connection->atom("_NET_ACTIVE_WINDOW");
    const bool focusChanged = m_focus > 1 && event->xany.window == m_focus &&
                              (event->type == FocusIn || event->type == FocusOut || event->type == DestroyNotify);
    const bool isTaken = focusChanged && event->type == FocusOut && event->xfocus.mode != NotifyGrab &&
                         event->xfocus.mode != NotifyUngrab && event->xfocus.detail != NotifyInferior;
    if (isTaken)
        hold();
    if (activeChanged || focusChanged)
        Q_EMIT moved();
}

} // namespace vellumry
