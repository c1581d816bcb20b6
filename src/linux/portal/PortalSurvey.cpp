// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalSurvey.h"

#include "linux/portal/PortalLink.h"
#include "linux/portal/PortalNames.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <array>

namespace vellumry {

namespace {

bool canBeThere(const QDBusConnection& bus, PortalSurvey::Start start) {
    if (!bus.isConnected())
        return false;
    return bus.interface()->isServiceRegistered(portal::service) ||
           (start == PortalSurvey::Start::wanted &&
            bus.interface()->activatableServiceNames().value().contains(portal::service));
}

} // namespace

PortalSurvey PortalSurvey::take(QDBusConnection bus, Start start, std::chrono::milliseconds limit) {
    PortalSurvey survey;
    if (!canBeThere(bus, start))
        return survey;
    // Both at once: the portal may have to be started.
    const auto ask = [&](const QString& interface) {
        return bus.asyncCall(
            PortalLink::messageFor(portal::properties, QStringLiteral("Get"), {interface, QStringLiteral("version")}),
            int(limit.count()));
    };
    std::array asked{std::pair(ask(portal::globalShortcuts), &survey.globalShortcuts),
                     std::pair(ask(portal::remoteDesktop), &survey.remoteDesktop)};
    for (auto& [call, version] : asked) {
        call.waitForFinished();
        const QDBusMessage reply = call.reply();
        if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("v"))
            *version = reply.arguments().constFirst().value<QDBusVariant>().variant().toUInt();
    }
    return survey;
}

} // namespace vellumry
