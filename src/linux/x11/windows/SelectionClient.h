// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XWindowProperties.h"

namespace vellumry {

/// What a program says of itself by one of its windows; empty where it says nothing.
struct SelectionClient {
    windowproperties::WindowClass windowClass;
    qint64 process = 0;     ///< _NET_WM_PID
    QString gtkApplication; ///< _GTK_APPLICATION_ID
    QString kdeDesktopFile; ///< _KDE_NET_WM_DESKTOP_FILE

    /// The owner of the selection of that name. Toolkits own selections with an unmapped window that says nothing; the
    /// program's other windows do, be they hidden or iconified by now: the first that bears a class counts, of those
    /// that the window manager knows and then of those at the top that it does not. Nothing for an owner without any.
    /// Each copy asks this: it takes the server two trips, however many windows there are. Main thread.
    [[nodiscard]] static std::optional<SelectionClient> of(XlibConnection& connection, const char* selection);
};

} // namespace vellumry
