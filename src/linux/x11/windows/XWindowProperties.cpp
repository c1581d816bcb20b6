// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XWindowProperties.h"

#include "linux/x11/windows/XErrorTrap.h"

#include <QByteArrayList>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace vellumry::windowproperties {

namespace {

/// More than any property read here may need, in 32-bit units: a foreign window may carry megabytes.
constexpr long maxPropertyLength = 4096;

struct Property {
    int format = 0;
    QByteArray bytes;
    std::vector<unsigned long> numbers;
};

Property read(XlibConnection& connection, XWindow window, const char* name) {
    Property result;
    if (window <= 1)
        return result;
    Atom type = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    XErrorTrap trap(connection.display());
    const int status = XGetWindowProperty(connection.display(), window, connection.atom(name), 0, maxPropertyLength,
                                          False, AnyPropertyType, &type, &result.format, &count, &left, &data);
    if (status == Success && data != nullptr) {
        if (result.format == 8)
            result.bytes = QByteArray(reinterpret_cast<const char*>(data), qsizetype(count));
        if (result.format == 32) {
            const auto* values = reinterpret_cast<const unsigned long*>(data);
            for (unsigned long i = 0; i < count; ++i)
                result.numbers.push_back(values[i] & 0xffffffffUL);
        }
    }
    if (data != nullptr)
        XFree(data);
    return result;
}

XWindow parentOf(XlibConnection& connection, XWindow window) {
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    XErrorTrap trap(connection.display());
    if (!XQueryTree(connection.display(), window, &root, &parent, &children, &count))
        return 0;
    if (children != nullptr)
        XFree(children);
    return parent;
}

} // namespace

std::vector<unsigned long> numbers(XlibConnection& connection, XWindow window, const char* property) {
    return read(connection, window, property).numbers;
}

QString text(XlibConnection& connection, XWindow window, const char* property) {
    const QByteArray bytes = read(connection, window, property).bytes;
    return QString::fromUtf8(bytes.constData(), qsizetype(qstrnlen(bytes.constData(), size_t(bytes.size()))));
}

WindowClass windowClass(XlibConnection& connection, XWindow window) {
    const QByteArrayList parts = read(connection, window, "WM_CLASS").bytes.split('\0');
    return {QString::fromUtf8(parts.value(0)), QString::fromUtf8(parts.value(1))};
}

qint64 processOf(XlibConnection& connection, XWindow window) {
    const auto values = numbers(connection, window, "_NET_WM_PID");
    return values.empty() ? 0 : qint64(values.front());
}

XWindow activeWindow(XlibConnection& connection) {
    const auto values = numbers(connection, connection.root(), "_NET_ACTIVE_WINDOW");
    return values.empty() ? 0 : XWindow(values.front());
}

XWindow focusWindow(XlibConnection& connection) {
    Window focus = 0;
    int revert = 0;
    XGetInputFocus(connection.display(), &focus, &revert);
    return focus;
}

XWindow clientOf(XlibConnection& connection, XWindow window) {
    for (XWindow at = window; at > 1 && at != connection.root(); at = parentOf(connection, at)) {
        if (windowClass(connection, at) != WindowClass())
            return at;
    }
    return 0;
}

XWindow topLevelOf(XlibConnection& connection, XWindow window) {
    XWindow at = window;
    while (at > 1 && at != connection.root()) {
        const XWindow parent = parentOf(connection, at);
        if (parent == connection.root())
            return at;
        at = parent;
    }
    return 0;
}

bool exists(XlibConnection& connection, XWindow window) {
    if (window <= 1)
        return false;
    XErrorTrap trap(connection.display());
    XWindowAttributes attributes;
    return XGetWindowAttributes(connection.display(), window, &attributes) != 0;
}

} // namespace vellumry::windowproperties
