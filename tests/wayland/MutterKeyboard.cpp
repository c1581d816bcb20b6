// SPDX-License-Identifier: GPL-3.0-or-later
#include "MutterKeyboard.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <linux/input-event-codes.h>

namespace {

const QString mutter = QStringLiteral("org.gnome.Mutter.RemoteDesktop");

QDBusMessage asked(const QString& path, const QString& interface, const QString& method,
                   const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(mutter, path, interface, method);
    call.setAutoStartService(false);
    call.setArguments(arguments);
    return QDBusConnection::sessionBus().call(call);
}

} // namespace

bool MutterKeyboard::open() {
    const QDBusMessage answer =
        asked(QStringLiteral("/org/gnome/Mutter/RemoteDesktop"), mutter, QStringLiteral("CreateSession"), {});
    m_session = answer.arguments().value(0).value<QDBusObjectPath>().path();
    if (!isOpen())
        return false;
    asked(m_session, mutter + QStringLiteral(".Session"), QStringLiteral("Start"), {});
    // The keyboard comes with its first key; without one no window is told that it has the keyboard.
    press(KEY_LEFTSHIFT, true);
    press(KEY_LEFTSHIFT, false);
    return true;
}

void MutterKeyboard::press(quint32 evdevCode, bool isDown) {
    asked(m_session, mutter + QStringLiteral(".Session"), QStringLiteral("NotifyKeyboardKeycode"), {evdevCode, isDown});
}
