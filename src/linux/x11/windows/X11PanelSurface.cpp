// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11PanelSurface.h"

#include "linux/x11/windows/XErrorTrap.h"
#include "linux/x11/windows/XSettings.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <QCursor>
#include <QGuiApplication>
#include <QSurfaceFormat>
#include <array>
#include <cstdlib>
#include <xcb/xcb.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>
#include <X11/extensions/Xfixes.h>
#include <X11/extensions/shape.h>

namespace vellumry {

namespace {

constexpr int firstWheelButton = 4;
constexpr int lastWheelButton = 7;
constexpr long panelEvents = FocusChangeMask | EnterWindowMask | LeaveWindowMask;

/// Waits until the server has done what Qt asked of it: our own connection is another one, and may be served first.
void settleQt() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (native == nullptr || native->connection() == nullptr)
        return;
    xcb_connection_t* connection = native->connection();
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace

X11PanelSurface::X11PanelSurface(std::shared_ptr<XlibConnection> connection, std::shared_ptr<X11Focus> focus,
                                 std::unique_ptr<WindowManagerFence> fence)
    : m_connection(std::move(connection))
    , m_focus(std::move(focus))
    , m_fence(std::move(fence))
    , m_screens(m_connection) {
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &X11PanelSurface::handleEvent);
    followCompositor();
}

// A compositing manager owns a selection named after the screen (Extended Window Manager Hints).
void X11PanelSurface::followCompositor() {
    Display* display = m_connection->display();
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(m_connection->screen());
    m_compositor = m_connection->atom(name.constData());
    if (m_connection->fixesEvents().has_value())
        XFixesSelectSelectionInput(display, m_connection->root(), m_compositor,
                                   XFixesSetSelectionOwnerNotifyMask | XFixesSelectionWindowDestroyNotifyMask |
                                       XFixesSelectionClientCloseNotifyMask);
    m_canBlend = XGetSelectionOwner(display, m_compositor) != 0;
}

void X11PanelSurface::adopt(QWindow* window) {
    window->setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::BypassWindowManagerHint |
                     Qt::NoDropShadowWindowHint);
    if (window->handle() == nullptr) {
        QSurfaceFormat format = window->requestedFormat();
        format.setAlphaBufferSize(8);
        window->setFormat(format);
    }
    window->create();
    settleQt();
    setHints(window->winId());
}

// The window manager leaves the window alone, but compositors, pagers and screen readers look at these.
void X11PanelSurface::setHints(XWindow window) {
    const auto set = [&](const char* property, std::vector<XAtom> values) {
        XChangeProperty(m_connection->display(), window, m_connection->atom(property), XA_ATOM, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(values.data()), int(values.size()));
    };
    XErrorTrap trap(m_connection->display());
    set("_NET_WM_WINDOW_TYPE", {m_connection->atom("_NET_WM_WINDOW_TYPE_UTILITY")});
    set("_NET_WM_STATE", {m_connection->atom("_NET_WM_STATE_ABOVE"), m_connection->atom("_NET_WM_STATE_SKIP_TASKBAR"),
                          m_connection->atom("_NET_WM_STATE_SKIP_PAGER")});
}

void X11PanelSurface::present(QWindow* window, std::optional<QRect> frame) {
    if (m_presented != nullptr && m_presented != window)
        dismiss(m_presented);
    m_focus->remember();
    if (frame.has_value())
        window->setGeometry(*frame);
    window->show();
    window->raise();
    settleQt();
    const XWindow id = window->winId();
    if (m_presented != window) {
        m_connection->listen(id, panelEvents);
        listenForClicks(true);
        m_isPointerIn = isOver(window);
    }
    m_presented = window;
    m_presentedID = id;
    if (m_fence)
        m_fence->await([this] { takeKeyboard(); });
    else
        takeKeyboard();
}

void X11PanelSurface::takeKeyboard() {
    XErrorTrap trap(m_connection->display());
    XSetInputFocus(m_connection->display(), m_presentedID, RevertToParent, CurrentTime);
}

void X11PanelSurface::dismiss(QWindow* window) {
    if (window == m_presented) {
        if (m_fence)
            m_fence->abandon();
        m_presented = nullptr;
        m_connection->ignore(m_presentedID, panelEvents);
        listenForClicks(false);
        // A Wayland window had the keyboard, then: giving it to the window manager's own X11 window would leave that
        // one without it. The window manager finds the next window itself when ours is gone.
        if (m_fence && !m_focus->isProgramRemembered()) {
            window->hide();
            settleQt();
        }
        m_focus->giveBack(m_presentedID, m_clickTime);
        m_presentedID = 0;
    }
    window->hide();
}

void X11PanelSurface::presentPassive(QWindow* window, QRect frame, bool clickThrough) {
    window->setFlag(Qt::WindowDoesNotAcceptFocus);
    window->setGeometry(frame);
    window->create();
    if (clickThrough)
        setInputArea(window, QRect());
    else if (m_inputAreas.remove(window))
        shapeInput(window, std::nullopt);
    window->show();
    window->raise();
}

void X11PanelSurface::setInputArea(QWindow* window, const QRect& area) {
    if (!m_inputAreas.contains(window))
        connect(window, &QObject::destroyed, this, [this, window] { m_inputAreas.remove(window); });
    m_inputAreas.insert(window, area);
    shapeInput(window, area);
}

/// Without an area the whole window takes the pointer, whatever its size becomes.
void X11PanelSurface::shapeInput(const QWindow* window, const std::optional<QRect>& area) {
    if (!m_connection->fixesEvents().has_value())
        return;
    settleQt();
    Display* display = m_connection->display();
    XErrorTrap trap(display);
    XserverRegion region = 0;
    if (area) {
        const qreal scale = window->devicePixelRatio();
        const QRect pixels = QRectF(area->topLeft() * scale, QSizeF(area->size()) * scale).toAlignedRect();
        XRectangle rectangle{static_cast<short>(pixels.x()), static_cast<short>(pixels.y()),
                             static_cast<unsigned short>(pixels.width()), static_cast<unsigned short>(pixels.height())};
        region = XFixesCreateRegion(display, &rectangle, pixels.isEmpty() ? 0 : 1);
    }
    XFixesSetWindowShapeRegion(display, window->winId(), ShapeInput, 0, 0, region);
    if (region != 0)
        XFixesDestroyRegion(display, region);
}

bool X11PanelSurface::isOver(const QWindow* window) const {
    const QRect area = m_inputAreas.value(window, QRect(QPoint(), window->size()));
    return window->isVisible() && area.translated(window->position()).contains(QCursor::pos());
}

bool X11PanelSurface::isOverPassiveWindow() const {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [this](const QWindow* window) { return window != m_presented && isOver(window); });
}

bool X11PanelSurface::reducesMotion() const {
    return xsettings::integer(*m_connection, "Gtk/EnableAnimations") == 0;
}

// Raw button presses are told whichever window gets the click. Where no window takes the keyboard on a click (the bare
// desktop), the panel would stay otherwise.
void X11PanelSurface::listenForClicks(bool isListening) {
    if (!m_connection->inputExtension().has_value())
        return;
    std::array<unsigned char, XIMaskLen(XI_LASTEVENT)> bits{};
    if (isListening) {
        XISetMask(bits.data(), XI_RawButtonPress);
        XISetMask(bits.data(), XI_RawButtonRelease);
    }
    XIEventMask mask{XIAllMasterDevices, int(bits.size()), bits.data()};
    XISelectEvents(m_connection->display(), m_connection->root(), &mask, 1);
    m_connection->flush();
}

void X11PanelSurface::handleEvent(XEvent* event) {
    if (m_connection->fixesEvents().has_value() &&
        event->type == *m_connection->fixesEvents() + XFixesSelectionNotify) {
        const auto* change = reinterpret_cast<const XFixesSelectionNotifyEvent*>(event);
        if (change->selection == m_compositor)
            m_canBlend = change->owner != 0;
        return;
    }
    if (m_presented == nullptr)
        return;
    if (event->type == GenericEvent && event->xcookie.extension == m_connection->inputExtension() &&
        event->xcookie.data != nullptr) {
        const auto* click = static_cast<const XIRawEvent*>(event->xcookie.data);
        if (click->evtype == XI_RawButtonPress)
            handleClick(click->detail, click->time);
        else if (click->evtype == XI_RawButtonRelease)
            m_isPointerIn = isOver(m_presented); // while a button was down, only the window that has it was told
        return;
    }
    if ((event->type == EnterNotify || event->type == LeaveNotify) && event->xcrossing.window == m_presentedID) {
        m_isPointerIn = event->type == EnterNotify;
        return;
    }
    // A grab (a hot key of anybody's held down, a menu) takes the keyboard for a moment and gives it back.
    const bool isLost = event->type == FocusOut && event->xfocus.window == m_presentedID &&
                        event->xfocus.mode != NotifyGrab && event->xfocus.mode != NotifyUngrab &&
                        event->xfocus.detail != NotifyPointer && event->xfocus.detail != NotifyInferior;
    if (isLost && windowproperties::focusWindow(*m_connection) != m_presentedID)
        loseFocus();
}

/// Where the pointer lies by now says nothing of where it was: a quick hand drags a row out of the panel before we hear
/// of the press. The server tells of entering, leaving and pressing in their order.
void X11PanelSurface::handleClick(int button, unsigned long time) {
    if ((button >= firstWheelButton && button <= lastWheelButton) || m_isPointerIn || isOverPassiveWindow())
        return;
    m_clickTime = time;
    loseFocus();
    m_clickTime = 0;
}

void X11PanelSurface::loseFocus() {
    if (onFocusLost)
        onFocusLost(m_presented);
}

} // namespace vellumry
