// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalSurvey.h"

#include "linux/portal/PortalNames.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <vector>

namespace vellumry {

bool PortalSurvey::canBeThere(const QDBusConnection& bus, Start start) {
    if (!bus.isConnected())
        return false;
    return bus.interface()->isServiceRegistered(portal::service) ||
           (start == Start::wanted && bus.interface()->activatableServiceNames().value().contains(portal::service));
}

PortalSurvey PortalSurvey::take(QDBusConnection bus, Start start, std::chrono::milliseconds limit) {
    PortalSurvey survey;
    if (!canBeThere(bus, start))
        return survey;
    // All at once: the portal may have to be started.
    std::vector<std::pair<QDBusPendingCall, quint32*>> asked;
    for (const auto& [interface, version] : survey.interfaces())
        asked.emplace_back(bus.asyncCall(question(portal::service, interface), int(limit.count())), version);
    for (auto& [call, version] : asked) {
        call.waitForFinished();
        *version = versionIn(call.reply());
    }
    return survey;
}

std::array<std::pair<QString, quint32*>, 2> PortalSurvey::interfaces() {
    return {std::pair(portal::globalShortcuts, &globalShortcuts), std::pair(portal::remoteDesktop, &remoteDesktop)};
}

QDBusMessage PortalSurvey::question(const QString& portal, const QString& interface) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(portal, portal::path, portal::properties, QStringLiteral("Get"));
    message.setArguments({interface, QStringLiteral("version")});
    return message;
}

quint32 PortalSurvey::versionIn(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("v"))
        return 0;
    return answer.arguments().constFirst().value<QDBusVariant>().variant().toUInt();
}

} // namespace vellumry
