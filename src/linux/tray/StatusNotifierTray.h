// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/tray/MenuInterface.h"
#include "linux/tray/StatusNotifierInterface.h"
#include "platform/desktop/StatusItem.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace vellumry {

/// The icon in a panel that keeps its icons over the session bus. It registers with the watcher that is there, with one
/// that comes later, and with one that comes anew, once with each. Main thread; never waits.
class StatusNotifierTray : public QObject, public StatusItem {
    Q_OBJECT

public:
    static constexpr const char* watcherName = "org.kde.StatusNotifierWatcher";

    StatusNotifierTray(TrayPictures::DrawSymbol drawSymbol, QDBusConnection bus = QDBusConnection::sessionBus());
    ~StatusNotifierTray() override;

    void install() override;
    void menuChanged() override;
    [[nodiscard]] bool isShown() const override { return m_isRegistered && m_hasHost; }

private Q_SLOTS:
    void hostsChanged();

private:
    /// "" when there is no watcher.
    void watcherIs(const QString& owner);
    void registerWith(const QString& owner);
    void setShown(bool isRegistered, bool hasHost);

    QDBusConnection m_bus;
    TrayPictures m_pictures;
    QDBusServiceWatcher m_serviceWatcher;
    QObject m_itemObject;
    QObject m_menuObject;
    MenuInterface* m_menu = nullptr;
    QString m_watcher; ///< the unique name of the one that is there
    bool m_isRegistered = false;
    bool m_hasHost = false;
};

} // namespace vellumry
