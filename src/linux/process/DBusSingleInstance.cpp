// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/DBusSingleInstance.h"

#include "linux/process/ActionInterface.h"
#include "linux/process/ApplicationInterface.h"
#include "linux/process/StatusInterface.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

namespace vellumry {

namespace {

/// What lets the running copy take the focus that the user gave to this start.
QVariantMap platformData() {
    QVariantMap data;
    const auto add = [&data](const QString& key, const char* variable) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            data.insert(key, value);
    };
    add(QStringLiteral("desktop-startup-id"), "DESKTOP_STARTUP_ID");
    add(QStringLiteral("activation-token"), "XDG_ACTIVATION_TOKEN");
    return data;
}

} // namespace

QString DBusSingleInstance::busName() {
    return QStringLiteral("com.vellumry.Vellumry");
}

QString DBusSingleInstance::objectPath() {
    return QStringLiteral("/com/vellumry/Vellumry");
}

DBusSingleInstance::DBusSingleInstance(QDBusConnection bus, const QString& lockPath)
    : m_bus(std::move(bus))
    , m_lock(lockPath) {
    auto* interface = new ApplicationInterface(&m_object);
    interface->onActivate = [this] {
        if (onReopen)
            onReopen();
    };
    const auto act = [this](const QString& name) {
        if (onAction)
            onAction(name);
    };
    interface->onAction = act;
    auto* actions = new ActionInterface(&m_object);
    actions->onAction = act;
    auto* status = new StatusInterface(&m_object);
    status->onReport = [this] { return onStatus ? onStatus() : QString(); };
}

DBusSingleInstance::~DBusSingleInstance() {
    if (!m_ownsName)
        return;
    m_bus.unregisterObject(objectPath());
    m_bus.unregisterService(busName());
}

bool DBusSingleInstance::isAnotherCopyRunning() {
    const bool isLocked = m_lock.acquire();
    if (!m_bus.isConnected())
        return !isLocked;
    if (isLocked && claimName())
        return false;
    activateOther();
    return true;
}

bool DBusSingleInstance::claimName() {
    // The object first: callers may come as soon as the name is there.
    m_bus.registerObject(objectPath(), &m_object, QDBusConnection::ExportAdaptors);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply = m_bus.interface()->registerService(
        busName(), QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    // A bus that refuses us the name (a sandbox without the permission) has no other copy to show; the lock decided.
    m_ownsName = !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!m_ownsName)
        m_bus.unregisterObject(objectPath());
    return m_ownsName;
}

bool DBusSingleInstance::askForAction(const QDBusConnection& bus, const QString& action) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        busName(), objectPath(), QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
    call.setAutoStartService(false);
    call << action << QVariantList() << platformData();
    return bus.call(call, QDBus::Block, activationTimeoutMilliseconds).type() == QDBusMessage::ReplyMessage;
}

void DBusSingleInstance::activateOther() {
    QDBusMessage call = QDBusMessage::createMethodCall(
        busName(), objectPath(), QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    // A bus that knows how to start the program must not do so now.
    call.setAutoStartService(false);
    call << platformData();
    // This process ends next, so waiting is what makes sure that the message has left.
    m_bus.call(call, QDBus::Block, activationTimeoutMilliseconds);
}

} // namespace vellumry
