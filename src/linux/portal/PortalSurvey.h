// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <chrono>

namespace vellumry {

/// Which portals of use to us this desktop has: the versions of their interfaces, 0 where there is none. A value.
struct PortalSurvey {
    quint32 globalShortcuts = 0;
    quint32 remoteDesktop = 0;

    enum class Start : quint8 {
        wanted,  ///< a portal that does not run yet is started
        unwanted ///< and counts as missing
    };
    /// Asks the portal and waits for `limit` at most: a portal that does not answer has nothing. `bus` is not the
    /// connection that portals are used by (PortalLink).
    [[nodiscard]] static PortalSurvey take(QDBusConnection bus, Start start, std::chrono::milliseconds limit);

    bool operator==(const PortalSurvey&) const = default;
};

} // namespace vellumry
