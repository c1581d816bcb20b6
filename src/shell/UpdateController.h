// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SoftwareUpdater.h"
#include "shell/PendingUpdate.h"

#include <QObject>
#include <QUrl>
#include <functional>
#include <optional>

namespace vellumry {

/// What a build knows of its updates.
struct UpdateConfiguration {
    QUrl feedURL{};      ///< empty: none was built in
    QString publicKey{}; ///< Ed25519, base64
    bool isDebugBuild = false;
    bool isRunningTests = false;

    /// A feed over HTTPS, or over HTTP from this machine, and a key of 32 bytes, in a release build.
    [[nodiscard]] bool allowsUpdates() const;
};

/// When an update may be installed without being asked for.
struct QuietInstallPolicy {
    double idleNeeded = 600.0; ///< seconds without input
};

/// Decides when updates are installed: while the user is away and the program is at rest, or at once when the user
/// asks. What it is told by the updater it shows by its properties. Main thread.
class UpdateController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isEnabled READ isEnabled CONSTANT)
    Q_PROPERTY(bool automaticallyInstalls READ automaticallyInstalls WRITE setAutomaticallyInstalls NOTIFY changed)

public:
    /// `updater`, where there is one, outlives the controller. Without one, or with a configuration that does not allow
    /// updates, nothing is ever asked of it.
    UpdateController(const UpdateConfiguration& configuration, SoftwareUpdater* updater);
    ~UpdateController() override;

    [[nodiscard]] bool isEnabled() const { return m_updater != nullptr; }
    [[nodiscard]] const std::optional<QString>& readyVersion() const { return m_readyVersion; }
    [[nodiscard]] const std::optional<QString>& availableVersion() const { return m_availableVersion; }
    [[nodiscard]] const std::optional<Date>& lastChecked() const { return m_lastChecked; }
    [[nodiscard]] bool automaticallyInstalls() const { return m_automaticallyInstalls; }
    void setAutomaticallyInstalls(bool value);

    /// The version to speak of, the one that is ready before one that is known.
    [[nodiscard]] std::optional<PendingUpdate> pendingVersion() const;
    [[nodiscard]] bool isInstallPending() const { return static_cast<bool>(m_install); }
    /// The user asks whether there is a newer version.
    void checkNow();
    /// Installs what is ready and starts it. At most once a minute, since that takes a while.
    void requestInstall();
    /// Installs what is ready if the program is at rest and the user away long enough. Called now and then.
    void installIfQuiet();

    QuietInstallPolicy policy;
    /// The program is in use.
    std::function<bool()> isBusy = [] { return false; };
    /// Since the last key or movement of the pointer.
    std::function<double()> idleSeconds = [] { return 0.0; };
    Clock now = currentDate;
    /// A check that the user asked for found nothing to install.
    std::function<void(SoftwareUpdater::Outcome outcome)> onOutcome = [](SoftwareUpdater::Outcome) {};

Q_SIGNALS:
    /// One of the properties has another value.
    void changed();

private:
    void attach();
    [[nodiscard]] bool keepForLater(const SoftwareUpdater::Item& item, std::function<void()> installNow);
    void setAvailable(std::optional<QString> version);

    SoftwareUpdater* m_updater = nullptr;
    std::optional<QString> m_readyVersion;
    std::optional<QString> m_availableVersion;
    std::optional<Date> m_lastChecked;
    bool m_automaticallyInstalls = true;
    std::function<void()> m_install;
    std::optional<Date> m_lastInstallRequest;
};

} // namespace vellumry
