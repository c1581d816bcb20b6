// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalBus.h"

#include "linux/portal/PortalNames.h"
#include "linux/process/ProcessHardening.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariantMap>

namespace vellumry::portalbus {

QDBusConnection connection() {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("vellumry-portal"));
}

void introduce(QDBusConnection bus, std::chrono::milliseconds limit) {
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(portal::service))
        return;
    QDBusMessage call =
        QDBusMessage::createMethodCall(portal::service, portal::path, portal::registry, QStringLiteral("Register"));
    call.setAutoStartService(false);
    call.setArguments({applicationID, QVariantMap()});
    // Portals before 1.20 know no such method, and those of a confined program take no name; they have looked by then.
    const VisibleProcess visible;
    bus.call(call, QDBus::Block, int(limit.count()));
}

} // namespace vellumry::portalbus
