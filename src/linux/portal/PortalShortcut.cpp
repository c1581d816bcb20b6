// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalShortcut.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace vellumry {

static QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.name << shortcut.values;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.name >> shortcut.values;
    argument.endStructure();
    return argument;
}

void registerPortalShortcut() {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
}

QSet<QString> givenShortcuts(const QVariantMap& results) {
    const QVariant list = results.value(QStringLiteral("shortcuts"));
    if (list.metaType() != QMetaType::fromType<QDBusArgument>() ||
        list.value<QDBusArgument>().currentSignature() != QLatin1String("a(sa{sv})"))
        return {};
    QSet<QString> names;
    for (const PortalShortcut& shortcut : qdbus_cast<QList<PortalShortcut>>(list.value<QDBusArgument>())) {
        const QVariant trigger = shortcut.values.value(QStringLiteral("trigger_description"));
        if (!trigger.isValid() || !trigger.toString().isEmpty())
            names.insert(shortcut.name);
    }
    return names;
}

} // namespace vellumry
