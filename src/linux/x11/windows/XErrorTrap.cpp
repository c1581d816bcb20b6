// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XErrorTrap.h"

#include <X11/Xlib.h>

namespace vellumry {

namespace {

thread_local XErrorTrap* innermost = nullptr;

} // namespace

int handleXError(Display* display, unsigned long serial, int code) {
    for (XErrorTrap* trap = innermost; trap != nullptr; trap = trap->m_outer) {
        if (trap->m_display == display && serial >= trap->m_firstSerial) {
            if (trap->m_error == 0)
                trap->m_error = code;
            break;
        }
    }
    return 0;
}

// Qt puts a handler of its own in place when it connects, which may be after us; so each trap sees to it anew.
void XErrorTrap::install() {
    XSetErrorHandler(
        [](Display* display, XErrorEvent* error) { return handleXError(display, error->serial, error->error_code); });
}

XErrorTrap::XErrorTrap(Display* display)
    : m_display(display)
    , m_outer(innermost)
    , m_firstSerial(NextRequest(display)) {
    innermost = this;
    install();
}

XErrorTrap::~XErrorTrap() {
    settle();
    innermost = m_outer;
}

int XErrorTrap::finish() {
    settle();
    return m_error;
}

/// Behind a request that had an answer there is nothing to wait for.
void XErrorTrap::settle() {
    if (LastKnownRequestProcessed(m_display) + 1 < NextRequest(m_display))
        XSync(m_display, False);
}

} // namespace vellumry
