// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QString>

/// The connection to the session bus that portals are asked by, and by nothing else: a portal takes a name only from a
/// connection that has asked for nothing yet (PortalIntroduction).
namespace vellumry::portalbus {

/// The name of our desktop file, by which portals know us: their dialogs name the program, and permissions are
/// remembered for it.
inline const QString applicationID = QStringLiteral("com.vellumry.Vellumry");

[[nodiscard]] QDBusConnection connection();

/// The answer to a call, or the error that took its place. Main thread.
[[nodiscard]] OneShot<QDBusMessage> answerTo(const QDBusPendingCall& call);

} // namespace vellumry::portalbus
