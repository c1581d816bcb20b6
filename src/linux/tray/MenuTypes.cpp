// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/MenuTypes.h"

#include <QDBusMetaType>

namespace vellumry {

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node) {
    argument.beginStructure();
    argument << node.id << node.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const MenuNode& child : node.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node) {
    argument.beginStructure();
    argument >> node.id >> node.properties;
    argument.beginArray();
    node.children.clear();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        MenuNode read;
        child.variant().value<QDBusArgument>() >> read;
        node.children.append(read);
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuPropertyNames& item) {
    argument.beginStructure();
    argument << item.id << item.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuPropertyNames& item) {
    argument.beginStructure();
    argument >> item.id >> item.names;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

void registerMenuTypes() {
    qDBusRegisterMetaType<MenuNode>();
    qDBusRegisterMetaType<MenuProperties>();
    qDBusRegisterMetaType<QList<MenuProperties>>();
    qDBusRegisterMetaType<MenuPropertyNames>();
    qDBusRegisterMetaType<QList<MenuPropertyNames>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    qDBusRegisterMetaType<MenuShortcut>();
    qDBusRegisterMetaType<QList<int>>();
}

} // namespace vellumry
