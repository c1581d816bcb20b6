// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <array>
#include <chrono>
#include <utility>

namespace vellumry {

/// Which portals of use to us this desktop has: the versions of their interfaces, 0 where there is none. A value.
struct PortalSurvey {
    quint32 globalShortcuts = 0;
    quint32 remoteDesktop = 0;

    enum class Start : quint8 {
        wanted,  ///< a portal that does not run yet is started
        unwanted ///< and counts as missing
    };
    /// Whether it is worth asking: a portal runs, or can be started and may be. Asks the bus.
    [[nodiscard]] static bool canBeThere(const QDBusConnection& bus, Start start);
    /// Asks the portal and waits for `limit` at most: a portal that does not answer has nothing. For programs that ask
    /// it nothing else; `PortalLink::survey` does not wait. `bus` is not the connection that portals are used by.
    [[nodiscard]] static PortalSurvey take(QDBusConnection bus, Start start, std::chrono::milliseconds limit);

    /// Each interface with its place here.
    [[nodiscard]] std::array<std::pair<QString, quint32*>, 2> interfaces();
    /// Asks `portal`, a name on the bus, for the version of an interface.
    [[nodiscard]] static QDBusMessage question(const QString& portal, const QString& interface);
    /// 0 in an error.
    [[nodiscard]] static quint32 versionIn(const QDBusMessage& answer);

    bool operator==(const PortalSurvey&) const = default;
};

} // namespace vellumry
