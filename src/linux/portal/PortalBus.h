// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QString>
#include <chrono>

/// The connection to the session bus that portals are asked by, and by nothing else: a portal takes a name only from a
/// connection that has asked for nothing yet.
namespace vellumry::portalbus {

/// The name of our desktop file, by which portals know us: their dialogs name the program, and permissions are
/// remembered for it.
inline const QString applicationID = QStringLiteral("com.vellumry.Vellumry");

[[nodiscard]] QDBusConnection connection();

/// Lets a portal that runs see who we are, `limit` at most. It looks us up in /proc, where we are hidden but for this
/// moment (ProcessHardening.h), and remembers it as long as both of us run; without it every request is refused. At the
/// start, before there are secrets in memory; a second call does no harm.
void introduce(QDBusConnection bus, std::chrono::milliseconds limit);

} // namespace vellumry::portalbus
