// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QString>
#include <functional>

namespace vellumry {

/// The program's actions as keys ask for them: one method with one word, on an interface of our own beside
/// `org.freedesktop.Application`, whose arguments small tools cannot write. Lives as long as the object it is attached
/// to. Main thread.
class ActionInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.vellumry.Vellumry.Actions")

public:
    explicit ActionInterface(QObject* parent);

    std::function<void(const QString& name)> onAction;

public Q_SLOTS:
    /// The bus knows it by this name, hence the capital.
    void Perform(const QString& name);
};

/// The command line that asks the running program for an action: by `dbus-send` where it is installed, which starts in
/// a twentieth of the time that the program's own libraries take to load.
[[nodiscard]] QString actionCommand(const QString& action);

} // namespace vellumry
