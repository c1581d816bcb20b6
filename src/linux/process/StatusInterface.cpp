// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/StatusInterface.h"

#include "linux/process/DBusSingleInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace vellumry {

namespace {

constexpr int answerMilliseconds = 5000;

} // namespace

StatusInterface::StatusInterface(QObject* parent)
    : QDBusAbstractAdaptor(parent) {
    setAutoRelaySignals(false);
}

QString StatusInterface::Report() {
    return onReport ? onReport() : QString();
}

std::expected<QString, NoStatus> askForStatus(const QDBusConnection& bus) {
    if (!bus.isConnected())
        return std::unexpected(NoStatus::noBus);
    if (!bus.interface()->isServiceRegistered(DBusSingleInstance::busName()))
        return std::unexpected(NoStatus::notRunning);
    QDBusMessage call =
        QDBusMessage::createMethodCall(DBusSingleInstance::busName(), DBusSingleInstance::objectPath(),
                                       QStringLiteral("com.vellumry.Vellumry.Status"), QStringLiteral("Report"));
    call.setAutoStartService(false);
    const QDBusMessage answer = bus.call(call, QDBus::Block, answerMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return std::unexpected(NoStatus::noAnswer);
    return answer.arguments().value(0).toString();
}

} // namespace vellumry
