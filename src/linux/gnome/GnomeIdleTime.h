// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <chrono>
#include <optional>

namespace vellumry {

/// How long ago the user last pressed a key or moved the pointer, as Mutter tells (org.gnome.Mutter.IdleMonitor):
/// nothing until they have rested for a while, so that typing does not wake the program key by key. Main thread.
class GnomeIdleTime final : public QObject {
    Q_OBJECT
public:
    /// Rests shorter than `rest` count as none.
    explicit GnomeIdleTime(QDBusConnection bus = QDBusConnection::sessionBus(),
                           std::chrono::milliseconds rest = std::chrono::minutes(1));
    ~GnomeIdleTime() override;

    /// 0 where nothing tells.
    [[nodiscard]] double seconds() const;

private Q_SLOTS:
    void hearWatch(uint watch);

private:
    /// Keeps the number of a watch that is added.
    void add(const QString& method, const QVariantList& arguments, uint& watch);

    QDBusConnection m_bus;
    const std::chrono::milliseconds m_rest;
    uint m_restWatch = 0;   ///< tells of each rest
    uint m_returnWatch = 0; ///< tells once of the user's return
    std::optional<std::chrono::steady_clock::time_point> m_since;
};

} // namespace vellumry
