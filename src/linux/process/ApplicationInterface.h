// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariant>
#include <functional>

namespace vellumry {

/// What other processes may ask of the running program over the bus (`org.freedesktop.Application`, Desktop Entry
/// Specification 1.5, "D-Bus Activation"). Lives as long as the object it is attached to. Main thread.
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationInterface(QObject* parent);

    std::function<void()> onActivate;
    std::function<void(const QString& name)> onAction;

public Q_SLOTS:
    // The bus knows these by their names, hence the capitals.
    void Activate(const QVariantMap& platformData);
    /// The program opens no files: being given some is being started again.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);
};

} // namespace vellumry
