// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QStringList>
#include <QVariantMap>

/// What goes over the bus for a menu (com.canonical.dbusmenu, version 3). Values; the names of the fields are that
/// interface's.
namespace vellumry {

/// "(ia{sv}av)": an entry with what is below it.
struct MenuNode {
    int id = 0;
    QVariantMap properties{};
    QList<MenuNode> children{};
};

/// "(ia{sv})"
struct MenuProperties {
    int id = 0;
    QVariantMap properties{};
};

/// "(ias)"
struct MenuPropertyNames {
    int id = 0;
    QStringList names{};
};

/// "(isvu)": something that happened to an entry.
struct MenuEvent {
    int id = 0;
    QString name{};
    QDBusVariant data{};
    uint timestamp = 0;
};

/// "aas": chords, of which a menu shows the first.
using MenuShortcut = QList<QStringList>;

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuPropertyNames& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuPropertyNames& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

/// Tells QtDBus of them. As often as wanted.
void registerMenuTypes();

} // namespace vellumry

Q_DECLARE_METATYPE(vellumry::MenuNode)
Q_DECLARE_METATYPE(vellumry::MenuProperties)
Q_DECLARE_METATYPE(vellumry::MenuPropertyNames)
Q_DECLARE_METATYPE(vellumry::MenuEvent)
