// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/StatusNotifierInterface.h"

#include <QDBusMetaType>

namespace vellumry {

QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& tip) {
    argument.beginStructure();
    argument << tip.icon << tip.pixmaps << tip.title << tip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& tip) {
    argument.beginStructure();
    argument >> tip.icon >> tip.pixmaps >> tip.title >> tip.text;
    argument.endStructure();
    return argument;
}

StatusNotifierInterface::StatusNotifierInterface(QObject* parent, Look look, QString menuPath)
    : QDBusAbstractAdaptor(parent)
    , m_look(std::move(look))
    , m_menuPath(std::move(menuPath)) {
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<QList<TrayPixmap>>();
    qDBusRegisterMetaType<TrayToolTip>();
}

} // namespace vellumry
