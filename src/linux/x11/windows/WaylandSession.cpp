// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/WaylandSession.h"

#include "linux/x11/windows/XlibConnection.h"

#include <X11/Xlib.h>

namespace vellumry {

bool isWaylandSession(const XlibConnection& connection) {
    int opcode = 0;
    int event = 0;
    int error = 0;
    if (XQueryExtension(connection.display(), "XWAYLAND", &opcode, &event, &error))
        return true;
    // A display that is not the session's own (an X server in a window, a remote one) has no part in it, but cannot be
    // told from an older Xwayland.
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && qgetenv("XDG_SESSION_TYPE") == "wayland";
}

} // namespace vellumry
