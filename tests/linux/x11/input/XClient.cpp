// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/input/XClient.h"

#include "support/Eventually.h"

#include <string>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

namespace vellumry {

namespace {

constexpr unsigned int offset = 8;

int lastError = 0;

} // namespace

XClient::XClient()
    : m_display(XOpenDisplay(nullptr)) {}

XClient::~XClient() {
    XCloseDisplay(m_display);
}

bool XClient::open(const char* instance, const char* className, long process) {
    m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 10, 10, 200, 100, 0, 0, 0);
    std::string name(instance);
    std::string type(className);
    XClassHint hint{name.data(), type.data()};
    XSetClassHint(m_display, m_window, &hint);
    // Where it is shown is ours to say.
    XSizeHints place{};
    place.flags = USPosition;
    XSetWMNormalHints(m_display, m_window, &place);
    XWMHints hints{};
    hints.flags = InputHint;
    hints.input = True;
    XSetWMHints(m_display, m_window, &hints);
    if (process != 0)
        XChangeProperty(m_display, m_window, XInternAtom(m_display, "_NET_WM_PID", False), XA_CARDINAL, 32,
                        PropModeReplace, reinterpret_cast<unsigned char*>(&process), 1);
    XSelectInput(m_display, m_window, KeyPressMask | KeyReleaseMask);
    XMapWindow(m_display, m_window);
    XSync(m_display, False);
    // The window manager gives a new window the keyboard. One that it holds back is asked for once: a request too many
    // would be answered in the middle of what the test does next.
    return eventually([this] { return hasFocus(); }) || (focus(), eventually([this] { return hasFocus(); }));
}

void XClient::close() {
    XDestroyWindow(m_display, m_window);
    XSync(m_display, False);
    m_window = 0;
}

void XClient::hide() {
    XWithdrawWindow(m_display, m_window, DefaultScreen(m_display));
    XSync(m_display, False);
}

void XClient::moveTo(int x, int y) {
    XMoveWindow(m_display, m_window, x, y);
    XSync(m_display, False);
}

void XClient::focus() {
    XEvent request{};
    request.xclient.type = ClientMessage;
    request.xclient.window = m_window;
    request.xclient.message_type = XInternAtom(m_display, "_NET_ACTIVE_WINDOW", False);
    request.xclient.format = 32;
    request.xclient.data.l[0] = 2;
    XSendEvent(m_display, DefaultRootWindow(m_display), False, SubstructureNotifyMask | SubstructureRedirectMask,
               &request);
    XSync(m_display, False);
}

bool XClient::hasFocus() const {
    Window focus = 0;
    int revert = 0;
    XGetInputFocus(m_display, &focus, &revert);
    return m_window != 0 && focus == m_window;
}

std::vector<XClient::Key> XClient::takeKeys() {
    std::vector<Key> keys;
    while (XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == MappingNotify)
            XRefreshKeyboardMapping(&event.xmapping);
        if (event.type == KeyPress || event.type == KeyRelease)
            keys.push_back({event.type == KeyPress, XLookupKeysym(&event.xkey, 0), event.xkey.state});
    }
    return keys;
}

void XClient::press(unsigned int evdevCode) {
    XTestFakeKeyEvent(m_display, evdevCode + offset, True, CurrentTime);
    XSync(m_display, False);
}

void XClient::release(unsigned int evdevCode) {
    XTestFakeKeyEvent(m_display, evdevCode + offset, False, CurrentTime);
    XSync(m_display, False);
}

void XClient::chord(const std::vector<unsigned int>& evdevCodes) {
    for (const unsigned int code : evdevCodes)
        press(code);
    for (auto code = evdevCodes.rbegin(); code != evdevCodes.rend(); ++code)
        release(*code);
}

void XClient::movePointer(int x, int y) {
    XTestFakeMotionEvent(m_display, 0, x, y, CurrentTime);
    XSync(m_display, False);
}

void XClient::click(unsigned int button) {
    XTestFakeButtonEvent(m_display, button, True, CurrentTime);
    XTestFakeButtonEvent(m_display, button, False, CurrentTime);
    XSync(m_display, False);
}

unsigned long XClient::windowUnderPointer() const {
    Window root = 0;
    Window child = 0;
    int x = 0;
    int y = 0;
    unsigned int mask = 0;
    XQueryPointer(m_display, DefaultRootWindow(m_display), &root, &child, &x, &y, &x, &y, &mask);
    return child;
}

bool XClient::grabKeyboard() {
    return XGrabKeyboard(m_display, DefaultRootWindow(m_display), False, GrabModeAsync, GrabModeAsync, CurrentTime) ==
           GrabSuccess;
}

void XClient::ungrabKeyboard() {
    XUngrabKeyboard(m_display, CurrentTime);
    XSync(m_display, False);
}

bool XClient::grabKey(unsigned int evdevCode, unsigned int mask) {
    XSync(m_display, False);
    lastError = 0;
    const auto before = XSetErrorHandler([](Display*, XErrorEvent* error) { return lastError = error->error_code; });
    XGrabKey(m_display, int(evdevCode + offset), mask, DefaultRootWindow(m_display), False, GrabModeAsync,
             GrabModeAsync);
    XSync(m_display, False);
    XSetErrorHandler(before);
    return lastError == 0;
}

void XClient::own(const char* selection) {
    const Window holder = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
    XSetSelectionOwner(m_display, XInternAtom(m_display, selection, False), holder, CurrentTime);
    XSync(m_display, False);
}

void XClient::disown(const char* selection) {
    XSetSelectionOwner(m_display, XInternAtom(m_display, selection, False), None, CurrentTime);
    XSync(m_display, False);
}

void XClient::setRootProperty(const char* name, unsigned long value) {
    XChangeProperty(m_display, DefaultRootWindow(m_display), XInternAtom(m_display, name, False), XA_WINDOW, 32,
                    PropModeReplace, reinterpret_cast<unsigned char*>(&value), 1);
    XSync(m_display, False);
}

} // namespace vellumry
