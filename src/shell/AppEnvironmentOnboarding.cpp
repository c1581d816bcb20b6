// SPDX-License-Identifier: GPL-3.0-or-later
// The first run's ways to the rest of the program.
#include "shell/AppEnvironment.h"

#include "foundation/Localisation.h"
#include "shell/Ending.h"

namespace vellumry {

void AppEnvironment::makeOnboarding() {
    OnboardingModel::Hooks hooks;
    hooks.isTrusted = [this] { return m_platform->pasteTarget->isTrusted(); };
    hooks.requestTrust = [this] { m_platform->pasteTarget->requestTrust(); };
    hooks.copy = [this](const QString& text) { m_fieldPasteboard->setText(text); };
    hooks.openPanel = [this] { openPanel(); };
    hooks.shortcutDisplay = [this] { return openPanelKeys(); };
    hooks.shortcutProblem = [this] { return m_settingsModel->shortcutProblems().value(0); };
    hooks.shortcutOffer = [this] { return m_settingsModel->shortcutOffer(); };
    hooks.takeOfferedShortcut = [this] { m_settingsModel->takeOfferedShortcut(); };
    hooks.askFileAccess = [this] { return checkPersonalFolders(); };
    hooks.unlockKeyring = [this] {
        if (m_opening)
            m_opening->ask();
    };
    hooks.finish = [this](bool launchAtLogin) {
        // A refusal is shown by the settings; it ends nothing here.
        if (launchAtLogin || (m_platform->loginItem && m_platform->loginItem->isEnabled()))
            (void)setLaunchAtLogin(launchAtLogin);
        m_onboarding->close();
    };
    hooks.ownBindings = m_platform->hotKeys->ownBindings();
    hooks.isWaylandSession = m_platform->isWaylandSession;
    if (m_platform->extension) {
        hooks.switchOnExtension = [this](std::function<void(DesktopExtension::Outcome)> onAnswered) {
            m_platform->extension->switchOn([onAnswered = std::move(onAnswered)](DesktopExtension::Outcome outcome) {
                onAnswered(outcome);
                // The display is chosen at the start.
                if (outcome == DesktopExtension::Outcome::on)
                    restartProgram();
            });
        };
    }
    m_onboardingModel = std::make_unique<OnboardingModel>(std::move(hooks));
    m_onboarding = std::make_unique<OnboardingWindowController>(*m_onboardingModel, *m_transfer, m_views);
    m_onboarding->onClose = [this] { onboardingClosed(); };
    m_onboarding->isQuitting = [this] { return m_isQuitting; };
}

void AppEnvironment::onboardingClosed() {
    m_platform->defaults->setObject(QStringLiteral("onboardingDone"), true);
    // Its question was put off until the user had read why.
    if (m_onboardingModel->isKeyringClosed() && m_opening) {
        m_onboardingModel->setKeyringClosed(false);
        m_opening->ask();
    }
}

/// The keyring's question comes without a reason of its own: the first run gives one and a button, later a message.
bool AppEnvironment::mayKeyringAsk() {
    if (m_onboarding->isVisible()) {
        m_onboardingModel->setKeyringClosed(true);
        return false;
    }
    showToast({QStringLiteral("lock.fill"),
               localised("Your desktop may ask for your keyring's password. The key to your history is in it"),
               ToastMessage::Tone::info});
    return true;
}

void AppEnvironment::reopen() {
    if (m_onboarding->isVisible())
        m_onboarding->show();
    else if (m_settings->isVisible())
        m_settings->bringForward();
    else
        openSettings();
}

} // namespace vellumry
