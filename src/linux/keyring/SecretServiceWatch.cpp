// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/SecretServiceWatch.h"

#include <QDBusConnection>

namespace vellumry {

namespace {

const auto connectionName = QStringLiteral("keyring");

} // namespace

SecretServiceWatch::SecretServiceWatch(std::function<void()> onChanged)
    : m_onChanged(std::move(onChanged)) {
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
    const auto listen = [&](const char* interface, const char* signal, const char* argument) {
        // No sender is named: the bus would be asked for its owner, and would have to answer first.
        bus.connect(QString(), QString(), QString::fromLatin1(interface), QString::fromLatin1(signal),
                    argument ? QStringList{QString::fromLatin1(argument)} : QStringList(), QString(), this,
                    SLOT(heard(QDBusMessage)));
    };
    listen("org.freedesktop.DBus", "NameOwnerChanged", "org.freedesktop.secrets");
    // gnome-keyring announces an unlocked collection by its property, KeePassXC by the service's own signals.
    listen("org.freedesktop.DBus.Properties", "PropertiesChanged", "org.freedesktop.Secret.Collection");
    for (const char* signal : {"CollectionCreated", "CollectionChanged", "CollectionDeleted"})
        listen("org.freedesktop.Secret.Service", signal, nullptr);
}

SecretServiceWatch::~SecretServiceWatch() {
    QDBusConnection::disconnectFromBus(connectionName);
}

void SecretServiceWatch::heard(const QDBusMessage&) {
    m_onChanged();
}

} // namespace vellumry
