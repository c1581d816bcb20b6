// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/ApplicationInterface.h"

namespace vellumry {

ApplicationInterface::ApplicationInterface(QObject* parent)
    : QDBusAbstractAdaptor(parent) {
    setAutoRelaySignals(false);
}

void ApplicationInterface::Activate(const QVariantMap&) {
    if (onActivate)
        onActivate();
}

void ApplicationInterface::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void ApplicationInterface::ActivateAction(const QString& name, const QVariantList&, const QVariantMap&) {
    if (onAction)
        onAction(name);
}

} // namespace vellumry
