// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the desktop's portals are on the session bus.
namespace vellumry::portal {

inline const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
inline const QString globalShortcuts = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
inline const QString remoteDesktop = QStringLiteral("org.freedesktop.portal.RemoteDesktop");
inline const QString registry = QStringLiteral("org.freedesktop.host.portal.Registry");
inline const QString request = QStringLiteral("org.freedesktop.portal.Request");
inline const QString session = QStringLiteral("org.freedesktop.portal.Session");
inline const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace vellumry::portal
