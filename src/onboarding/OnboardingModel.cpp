// SPDX-License-Identifier: GPL-3.0-or-later
#include "onboarding/OnboardingModel.h"

#include "foundation/Localisation.h"

#include <QPointer>
#include <chrono>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr auto trustInterval = 500ms;

} // namespace

OnboardingModel::OnboardingModel(Hooks hooks)
    : m_hooks(std::move(hooks))
    , m_hasAccessibility(m_hooks.isTrusted()) {
    m_trustPoll.setInterval(trustInterval);
    connect(&m_trustPoll, &QTimer::timeout, this, &OnboardingModel::lookForTrust);
}

OnboardingModel::~OnboardingModel() = default;

QString OnboardingModel::sample() {
    return localised("Hello from Vellumry 👋");
}

void OnboardingModel::advance() {
    if (m_step == Step::done) {
        m_hooks.finish(m_launchAtLogin);
        return;
    }
    m_step = static_cast<Step>(stepNumber() + 1);
    if (m_step == Step::permission) {
        lookForTrust();
        m_trustPoll.start();
    } else {
        m_trustPoll.stop();
    }
    Q_EMIT stepChanged();
}

void OnboardingModel::lookForTrust() {
    const bool isTrusted = m_hooks.isTrusted();
    if (isTrusted == m_hasAccessibility)
        return;
    m_hasAccessibility = isTrusted;
    Q_EMIT changed();
}

void OnboardingModel::requestTrust() {
    m_hooks.requestTrust();
    lookForTrust();
}

void OnboardingModel::copySample() {
    m_hooks.copy(sample());
    m_copied = true;
    Q_EMIT changed();
}

void OnboardingModel::notePanelOpened() {
    if (m_panelOpened)
        return;
    m_panelOpened = true;
    Q_EMIT changed();
}

void OnboardingModel::setTypedText(const QString& text) {
    if (text == m_typedText)
        return;
    m_typedText = text;
    Q_EMIT changed();
}

void OnboardingModel::setLaunchAtLogin(bool isWanted) {
    m_launchAtLogin = isWanted;
    Q_EMIT changed();
}

void OnboardingModel::setKeyringClosed(bool isClosed) {
    if (isClosed == m_isKeyringClosed)
        return;
    m_isKeyringClosed = isClosed;
    Q_EMIT changed();
}

void OnboardingModel::takeOfferedShortcut() {
    m_hooks.takeOfferedShortcut();
    Q_EMIT changed();
}

void OnboardingModel::switchOnExtension() {
    if (!offersExtension())
        return;
    m_hooks.switchOnExtension([self = QPointer<OnboardingModel>(this)](DesktopExtension::Outcome outcome) {
        if (!self)
            return;
        self->m_extension = outcome;
        Q_EMIT self->changed();
    });
}

QString OnboardingModel::extensionMessage() const {
    using Outcome = DesktopExtension::Outcome;
    if (!m_extension)
        return {};
    switch (*m_extension) {
    case Outcome::on:
        return localised("The extension is on. Vellumry starts again with it.");
    case Outcome::atNextLogin:
        return localised("The extension is on from your next login. Log out and in again to use it.");
    case Outcome::refused:
        break;
    }
    return localised("GNOME did not switch the extension on. Look for Vellumry in the Extensions app.");
}

void OnboardingModel::replay() {
    m_copied = false;
    m_panelOpened = false;
    m_typedText.clear();
    Q_EMIT changed();
}

QCoro::Task<void> OnboardingModel::runFileCheck() {
    const QPointer<OnboardingModel> self(this);
    auto checking = m_hooks.askFileAccess();
    const FileAccess::Result result = co_await checking;
    if (!self)
        co_return;
    m_fileAccess = result;
    Q_EMIT changed();
}

QString OnboardingModel::fileAccessMessage() const {
    if (!m_fileAccess)
        return {};
    if (m_fileAccess->isAllowed())
        return localised("Files from Desktop, Documents and Downloads paste normally.");
    return localised("macOS keeps %1 closed. Allow it in Files and Folders.").arg(*m_fileAccess->blocked);
}

} // namespace vellumry
