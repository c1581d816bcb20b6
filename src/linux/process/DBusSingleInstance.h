// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/process/InstanceLock.h"
#include "platform/desktop/SingleInstance.h"

#include <QDBusConnection>
#include <QObject>

namespace vellumry {

/// The one copy of the session: owns the name `com.vellumry.Vellumry` on the session bus and answers there at
/// `/com/vellumry/Vellumry`. A file lock stands beside the name, so that a copy without a bus, or on another one,
/// cannot touch the same history. Main thread.
class DBusSingleInstance : public SingleInstance {
public:
    /// How long the running copy may take to answer before the second one ends without its answer.
    static constexpr int activationTimeoutMilliseconds = 2000;

    /// Where the running copy is found on the bus.
    [[nodiscard]] static QString busName();
    [[nodiscard]] static QString objectPath();

    explicit DBusSingleInstance(QDBusConnection bus = QDBusConnection::sessionBus(),
                                const QString& lockPath = InstanceLock::defaultPath());
    /// Gives the name back.
    ~DBusSingleInstance() override;
    DBusSingleInstance(const DBusSingleInstance&) = delete;
    DBusSingleInstance& operator=(const DBusSingleInstance&) = delete;

    [[nodiscard]] bool isAnotherCopyRunning() override;

    /// Hands an action to the running copy. False when there is none on the bus or it does not answer.
    [[nodiscard]] static bool askForAction(const QDBusConnection& bus, const QString& action);

private:
    [[nodiscard]] bool claimName();
    void activateOther();

    QDBusConnection m_bus;
    InstanceLock m_lock;
    QObject m_object;
    bool m_ownsName = false;
};

} // namespace vellumry
