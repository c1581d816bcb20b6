// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/UpdateController.h"

#include <utility>

namespace vellumry {

namespace {

constexpr qsizetype keyBytes = 32;
constexpr double installRest = 60.0;

bool isOfThisMachine(const QString& host) {
    return host == QLatin1String("localhost") || host == QLatin1String("127.0.0.1") || host == QLatin1String("::1");
}

bool isAcceptable(const QUrl& feed) {
    if (!feed.isValid() || feed.host().isEmpty())
        return false;
    return feed.scheme() == QLatin1String("https") ||
           (feed.scheme() == QLatin1String("http") && isOfThisMachine(feed.host()));
}

} // namespace

bool UpdateConfiguration::allowsUpdates() const {
    if (isDebugBuild || isRunningTests || !isAcceptable(feedURL))
        return false;
    const auto key =
        QByteArray::fromBase64Encoding(publicKey.trimmed().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return key.decodingStatus == QByteArray::Base64DecodingStatus::Ok && key.decoded.size() == keyBytes;
}

UpdateController::UpdateController(const UpdateConfiguration& configuration, SoftwareUpdater* updater)
    : m_updater(configuration.allowsUpdates() ? updater : nullptr) {
    if (m_updater)
        attach();
}

UpdateController::~UpdateController() {
    if (!m_updater)
        return;
    m_updater->willInstallOnQuit = [](const auto&, const auto&) { return true; };
    m_updater->didFinishCycle = m_updater->didReceiveUserAttention = m_updater->willFinishSession = [] {};
    m_updater->shouldHandleShowing = [](const auto&, bool) { return false; };
    m_updater->willHandleShowing = [](bool, const auto&) {};
    m_updater->onOutcome = [](SoftwareUpdater::Outcome) {};
}

void UpdateController::attach() {
    using Item = SoftwareUpdater::Item;
    m_updater->willInstallOnQuit = [this](const Item& item, std::function<void()> installNow) {
        return keepForLater(item, std::move(installNow));
    };
    m_updater->didFinishCycle = [this] {
        m_lastChecked = m_updater->lastCheck().value_or(now());
        Q_EMIT changed();
    };
    m_updater->shouldHandleShowing = [](const Item& item, bool isInImmediateFocus) {
        return isInImmediateFocus || item.isCritical;
    };
    m_updater->willHandleShowing = [this](bool isHandled, const Item& item) {
        if (!isHandled)
            setAvailable(item.displayVersion);
    };
    m_updater->didReceiveUserAttention = [this] { setAvailable(std::nullopt); };
    m_updater->willFinishSession = [this] { setAvailable(std::nullopt); };
    m_updater->onOutcome = [this](SoftwareUpdater::Outcome outcome) { onOutcome(outcome); };
    m_automaticallyInstalls = m_updater->automaticallyDownloads();
    m_lastChecked = m_updater->lastCheck();
    m_updater->start();
}

void UpdateController::setAutomaticallyInstalls(bool value) {
    m_automaticallyInstalls = value;
    if (m_updater)
        m_updater->setAutomaticallyDownloads(value);
    Q_EMIT changed();
}

std::optional<PendingUpdate> UpdateController::pendingVersion() const {
    if (m_readyVersion)
        return PendingUpdate{*m_readyVersion, PendingUpdate::State::ready};
    if (m_availableVersion)
        return PendingUpdate{*m_availableVersion, PendingUpdate::State::available};
    return std::nullopt;
}

/// The program rarely ends by itself, so what is ready is kept for a quiet moment. A critical one is not held back.
bool UpdateController::keepForLater(const SoftwareUpdater::Item& item, std::function<void()> installNow) {
    if (item.isCritical)
        return false;
    m_readyVersion = item.displayVersion;
    m_install = std::move(installNow);
    Q_EMIT changed();
    return true;
}

void UpdateController::setAvailable(std::optional<QString> version) {
    m_availableVersion = std::move(version);
    Q_EMIT changed();
}

void UpdateController::checkNow() {
    if (m_updater && m_updater->canCheck())
        m_updater->check();
}

void UpdateController::requestInstall() {
    const Date moment = now();
    if (!m_install || (m_lastInstallRequest && moment - *m_lastInstallRequest < installRest))
        return;
    m_lastInstallRequest = moment;
    m_install();
}

void UpdateController::installIfQuiet() {
    if (m_install && !isBusy() && idleSeconds() >= policy.idleNeeded)
        requestInstall();
}

} // namespace vellumry
