// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/XdndTarget.h"

#include "linux/x11/selection/XcbConnection.h"

#include <algorithm>
#include <optional>

namespace vellumry {

namespace {

constexpr quint32 newestVersion = 5;
constexpr quint32 oldestVersion = 3;
constexpr int deepestWindow = 32;

std::optional<quint32> number(XcbConnection& connection, xcb_window_t window, const QString& property) {
    const auto value = connection.property(window, connection.atom(property), sizeof(quint32), false);
    if (!value || value->format != 32 || value->bytes.size() < qsizetype(sizeof(quint32)))
        return std::nullopt;
    quint32 number = 0;
    std::copy_n(value->bytes.constData(), sizeof number, reinterpret_cast<char*>(&number));
    return number;
}

std::optional<XdndTarget> awareOf(XcbConnection& connection, xcb_window_t window) {
    XdndTarget target{window, window, 0};
    const QString proxyName = QStringLiteral("XdndProxy");
    // A proxy that is gone may have left its number behind: a living one names itself.
    if (const auto proxy = number(connection, window, proxyName);
        proxy && number(connection, *proxy, proxyName) == proxy)
        target.receiver = *proxy;
    const auto version = number(connection, target.receiver, QStringLiteral("XdndAware"));
    if (!version || *version < oldestVersion)
        return std::nullopt;
    target.version = std::min(*version, newestVersion);
    return target;
}

} // namespace

XdndTarget XdndTarget::at(XcbConnection& connection, int x, int y) {
    xcb_connection_t* server = connection.handle();
    xcb_window_t window = connection.root();
    for (int depth = 0; depth < deepestWindow; ++depth) {
        const XcbPointer<xcb_translate_coordinates_reply_t> below(
            xcb_translate_coordinates_reply(server,
                                            xcb_translate_coordinates(server, connection.root(), window,
                                                                      static_cast<qint16>(x), static_cast<qint16>(y)),
                                            nullptr));
        if (!below || below->child == XCB_NONE)
            break;
        window = below->child;
        if (const auto target = awareOf(connection, window))
            return *target;
    }
    return awareOf(connection, connection.root()).value_or(XdndTarget());
}

} // namespace vellumry
