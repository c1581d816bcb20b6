// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/accessibility/ActiveDescendant.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace vellumry::accessibility {

/// An object as AT-SPI names it: whose it is, and which.
struct Reference {
    QString owner;
    QDBusObjectPath path;
};

static QDBusArgument& operator<<(QDBusArgument& argument, const Reference& reference) {
    argument.beginStructure();
    argument << reference.owner << reference.path;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, Reference& reference) {
    argument.beginStructure();
    argument >> reference.owner >> reference.path;
    argument.endStructure();
    return argument;
}

} // namespace vellumry::accessibility

Q_DECLARE_METATYPE(vellumry::accessibility::Reference)

namespace vellumry {

using accessibility::Reference;

namespace {

/// As Qt's bridge names its objects.
QString pathOf(QAccessibleInterface* node) {
    return QStringLiteral("/org/a11y/atspi/accessible/") + QString::number(QAccessible::uniqueId(node));
}

} // namespace

void tellActiveDescendant(QAccessibleInterface& child) {
    // The bridge's own connection: the objects are known by its name only.
    const QDBusConnection bus(QStringLiteral("a11y"));
    QAccessibleInterface* container = child.parent();
    if (!bus.isConnected() || container == nullptr)
        return;
    qDBusRegisterMetaType<Reference>();
    QDBusMessage message = QDBusMessage::createSignal(pathOf(container), QStringLiteral("org.a11y.atspi.Event.Object"),
                                                      QStringLiteral("ActiveDescendantChanged"));
    const Reference reference{bus.baseService(), QDBusObjectPath(pathOf(&child))};
    message << QString() << container->indexOfChild(&child) << 0
            << QVariant::fromValue(QDBusVariant(QVariant::fromValue(reference))) << QVariantMap();
    (void)bus.send(message);
}

} // namespace vellumry
