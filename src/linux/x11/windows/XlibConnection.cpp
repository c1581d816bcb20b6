// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XlibConnection.h"

#include "linux/x11/windows/XErrorTrap.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QSocketNotifier>
#include <algorithm>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xfixes.h>

namespace vellumry {

OrReason<std::shared_ptr<XlibConnection>> XlibConnection::create(const QByteArray& displayName) {
    if (displayName.isEmpty() && qEnvironmentVariableIsEmpty("DISPLAY"))
        return std::unexpected(Reason{QStringLiteral("DISPLAY is not set")});
    Display* display = XOpenDisplay(displayName.isEmpty() ? nullptr : displayName.constData());
    if (display == nullptr)
        return std::unexpected(Reason{QStringLiteral("the X server does not let us in or does not run")});
    XErrorTrap::install();
    return std::shared_ptr<XlibConnection>(new XlibConnection(display));
}

bool XlibConnection::canOpenDisplay() {
    Display* display = qEnvironmentVariableIsEmpty("DISPLAY") ? nullptr : XOpenDisplay(nullptr);
    if (display != nullptr)
        XCloseDisplay(display);
    return display != nullptr;
}

XlibConnection::XlibConnection(Display* display)
    : m_display(display)
    , m_root(DefaultRootWindow(display))
    , m_screen(DefaultScreen(display)) {
    queryExtensions();
    auto* notifier = new QSocketNotifier(ConnectionNumber(display), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &XlibConnection::dispatchPending);
    // A round trip leaves events in Xlib's own queue, where no descriptor announces them.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        XFlush(m_display);
        if (XEventsQueued(m_display, QueuedAlready) > 0)
            QMetaObject::invokeMethod(this, &XlibConnection::dispatchPending, Qt::QueuedConnection);
    });
}

XlibConnection::~XlibConnection() {
    XCloseDisplay(m_display);
}

void XlibConnection::queryExtensions() {
    int opcode = 0;
    int event = 0;
    int error = 0;
    int major = 2;
    int minor = 2;
    if (XQueryExtension(m_display, "XInputExtension", &opcode, &event, &error) &&
        XIQueryVersion(m_display, &major, &minor) == Success)
        m_inputOpcode = opcode;
    if (XFixesQueryExtension(m_display, &event, &error))
        m_fixesEvents = event;
    major = XkbMajorVersion;
    minor = XkbMinorVersion;
    if (XkbQueryExtension(m_display, &opcode, &event, &error, &major, &minor))
        m_keyboardEvents = event;
    m_hasTest = XTestQueryExtension(m_display, &event, &error, &major, &minor);
    // Menus of other programs grab the whole server; keys that we press must reach it all the same.
    if (m_hasTest)
        XTestGrabControl(m_display, True);
}

XAtom XlibConnection::atom(const char* name) {
    const QByteArray key = QByteArray::fromRawData(name, qsizetype(qstrlen(name)));
    if (const auto known = m_atoms.find(key); known != m_atoms.end())
        return known->second;
    return m_atoms.emplace(QByteArray(name), XInternAtom(m_display, name, False)).first->second;
}

void XlibConnection::listen(XWindow window, long mask) {
    m_masks.emplace(window, mask);
    select(window);
}

void XlibConnection::ignore(XWindow window, long mask) {
    const auto [begin, end] = m_masks.equal_range(window);
    const auto found = std::find_if(begin, end, [mask](const auto& row) { return row.second == mask; });
    if (found == end)
        return;
    m_masks.erase(found);
    select(window);
}

void XlibConnection::select(XWindow window) {
    long all = NoEventMask;
    const auto [begin, end] = m_masks.equal_range(window);
    for (auto row = begin; row != end; ++row)
        all |= row->second;
    XErrorTrap trap(m_display);
    XSelectInput(m_display, window, all);
    // An id of a window that is gone may come back for another one.
    if (trap.finish() != 0)
        m_masks.erase(window);
}

void XlibConnection::dispatchPending() {
    const QPointer<XlibConnection> guard(this);
    while (guard != nullptr && XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        const bool hasData = event.type == GenericEvent && XGetEventData(m_display, &event.xcookie);
        Display* display = m_display;
        Q_EMIT eventArrived(&event);
        if (guard == nullptr)
            return;
        if (hasData)
            XFreeEventData(display, &event.xcookie);
    }
}

void XlibConnection::flush() {
    XFlush(m_display);
}

} // namespace vellumry
