// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/GnomeIdleTime.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

namespace vellumry {

namespace {

const QString service = QStringLiteral("org.gnome.Mutter.IdleMonitor");
const QString path = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");
const QString interface = QStringLiteral("org.gnome.Mutter.IdleMonitor");

} // namespace

GnomeIdleTime::GnomeIdleTime(QDBusConnection bus, std::chrono::milliseconds rest)
    : m_bus(std::move(bus))
    , m_rest(rest) {
    m_bus.connect(service, path, interface, QStringLiteral("WatchFired"), this, SLOT(hearWatch(uint)));
    add(QStringLiteral("AddIdleWatch"), {qulonglong(rest.count())}, m_restWatch);
}

// Mutter drops the watches of a connection that ends.
GnomeIdleTime::~GnomeIdleTime() = default;

void GnomeIdleTime::add(const QString& method, const QVariantList& arguments, uint& watch) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setAutoStartService(false);
    call.setArguments(arguments);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [&watch](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<uint> reply = *finished;
        finished->deleteLater();
        watch = reply.isValid() ? reply.value() : 0;
    });
}

void GnomeIdleTime::hearWatch(uint watch) {
    if (watch == 0)
        return;
    if (watch == m_returnWatch) {
        m_returnWatch = 0;
        m_since.reset();
    } else if (watch == m_restWatch) {
        m_since = std::chrono::steady_clock::now() - m_rest;
        add(QStringLiteral("AddUserActiveWatch"), {}, m_returnWatch);
    }
}

double GnomeIdleTime::seconds() const {
    if (!m_since)
        return 0;
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - *m_since).count();
}

} // namespace vellumry
