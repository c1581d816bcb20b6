// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMetaType>
#include <QSet>
#include <QString>
#include <QVariantMap>

namespace vellumry {

/// A shortcut in the arguments of org.freedesktop.portal.GlobalShortcuts: (sa{sv}).
struct PortalShortcut {
    QString name;
    QVariantMap values;
};

/// Makes lists of shortcuts known to Qt's D-Bus. Before the first is sent or read; any number of times.
void registerPortalShortcut();

/// The names of the shortcuts that have a key, from the results of BindShortcuts: the user may have left one without.
/// Empty when there is no list of the documented shape.
[[nodiscard]] QSet<QString> givenShortcuts(const QVariantMap& results);

} // namespace vellumry

Q_DECLARE_METATYPE(vellumry::PortalShortcut)
