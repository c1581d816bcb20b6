// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"

#include <QString>
#include <vector>

/// What windows of other programs say about themselves. Every answer is empty when the window is gone. Names and
/// meanings are those of the ICCCM and of the freedesktop.org window manager specification.
namespace vellumry::windowproperties {

/// WM_CLASS.
struct WindowClass {
    QString instance;
    QString name;
    bool operator==(const WindowClass&) const = default;
};

/// The 32-bit values of a property of any type.
[[nodiscard]] std::vector<unsigned long> numbers(XlibConnection& connection, XWindow window, const char* property);
/// The bytes of a text property, read as UTF-8.
[[nodiscard]] QString text(XlibConnection& connection, XWindow window, const char* property);
[[nodiscard]] WindowClass windowClass(XlibConnection& connection, XWindow window);
/// _NET_WM_PID, 0 when the window does not say.
[[nodiscard]] qint64 processOf(XlibConnection& connection, XWindow window);

/// _NET_ACTIVE_WINDOW, 0 when none is.
[[nodiscard]] XWindow activeWindow(XlibConnection& connection);
/// The window that gets the keys: 0 none, 1 the one under the pointer.
[[nodiscard]] XWindow focusWindow(XlibConnection& connection);
/// The program's own window that holds `window` or is it: the nearest with a WM_CLASS. 0 when there is none.
[[nodiscard]] XWindow clientOf(XlibConnection& connection, XWindow window);
/// The child of the root that holds `window` or is it, a window manager's frame often; 0 when the window is gone.
[[nodiscard]] XWindow topLevelOf(XlibConnection& connection, XWindow window);
/// True when the window exists.
[[nodiscard]] bool exists(XlibConnection& connection, XWindow window);

} // namespace vellumry::windowproperties
