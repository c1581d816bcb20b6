// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/DesktopExtension.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

namespace vellumry {

/// Our extension of GNOME's shell, for the user to be offered. Main thread.
class ShellExtension final : public QObject, public DesktopExtension {
    Q_OBJECT
public:
    explicit ShellExtension(QDBusConnection bus = QDBusConnection::sessionBus());
    ~ShellExtension() override;

    /// Whether it lies where GNOME's shell looks for extensions at the next login.
    [[nodiscard]] static bool isInstalled();
    void switchOn(std::function<void(Outcome)> onAnswered) override;

private:
    void hearAnswer(bool isKnown);
    void answer(Outcome outcome);

    QDBusConnection m_bus;
    std::function<void(Outcome)> m_onAnswered;
    QTimer m_deadline; ///< for the extension to appear once it is switched on
};

} // namespace vellumry
