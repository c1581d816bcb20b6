// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/ActionInterface.h"

#include "linux/process/DBusSingleInstance.h"

#include <QStandardPaths>

namespace vellumry {

ActionInterface::ActionInterface(QObject* parent)
    : QDBusAbstractAdaptor(parent) {
    setAutoRelaySignals(false);
}

void ActionInterface::Perform(const QString& name) {
    if (onAction)
        onAction(name);
}

QString actionCommand(const QString& action) {
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-send")).isEmpty())
        return QStringLiteral("vellumry --action ") + action;
    return QStringLiteral("dbus-send --type=method_call --dest=%1 %2 com.vellumry.Vellumry.Actions.Perform string:%3")
        .arg(DBusSingleInstance::busName(), DBusSingleInstance::objectPath(), action);
}

} // namespace vellumry
