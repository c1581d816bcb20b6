// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalBus.h"

#include <QDBusPendingCallWatcher>

namespace vellumry::portalbus {

QDBusConnection connection() {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("vellumry-portal"));
}

OneShot<QDBusMessage> answerTo(const QDBusPendingCall& call) {
    const OneShot<QDBusMessage> answer;
    // A watcher would not be told.
    if (call.isFinished()) {
        answer.deliver(call.reply());
        return answer;
    }
    auto* watcher = new QDBusPendingCallWatcher(call);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, answer] {
        watcher->deleteLater();
        answer.deliver(watcher->reply());
    });
    return answer;
}

} // namespace vellumry::portalbus
