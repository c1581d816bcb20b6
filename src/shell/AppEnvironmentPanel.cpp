// SPDX-License-Identifier: GPL-3.0-or-later
// What the panel needs of the program.
#include "foundation/Localisation.h"
#include "shell/AppEnvironment.h"

namespace vellumry {

PanelController::Hooks AppEnvironment::panelHooks() {
    PanelController::Hooks hooks;
    hooks.position = [this](const QString& display) { return m_preferences->panelPosition(display); };
    hooks.setPosition = [this](std::optional<placement::Fractions> position, const QString& display) {
        m_preferences->setPanelPosition(position, display);
    };
    hooks.openPanelKeys = [this] { return openPanelKeys(); };
    hooks.keyCodeOf = [this](quint32 scanCode) { return m_platform->keyboard->keyCodeOfScanCode(scanCode); };
    hooks.requestAccessibility = [this] { m_platform->pasteTarget->requestTrust(); };
    hooks.preview.images = m_platform->images.get();
    hooks.preview.isReadingText = [this](const QUuid& id) { return m_textReading->queue().isReading(id); };
    hooks.preview.readText = [this](const QUuid& id) { m_textReading->queue().readFile(id); };
    hooks.preview.clock = m_platform->clock;
    hooks.dragSource = m_platform->drags.get();
    hooks.statusMenu = [this] { return statusMenu(); };
    hooks.showToast = [this](const ToastMessage& message) { showToast(message); };
    return hooks;
}

void AppEnvironment::wirePanel() {
    m_panel->onShow = [this] {
        m_hasWorked = true;
        if (m_onboarding->isVisible())
            m_onboardingModel->notePanelOpened();
    };
    // The reader of pictures and the code of the views are half of what an open panel takes.
    m_panel->onRest = [this] {
        m_platform->images->rest();
        m_platform->returnMemory();
    };
    connect(&m_textReading->queue(), &TextReadingQueue::changed, m_panel.get(), &PanelController::readingChanged);
    m_panel->model().onOpenLink = [this](const QString& address) { openLink(address); };
    m_panel->model().onShowFiles = [this](const QStringList& paths) { m_platform->opener->showFiles(paths); };
}

void AppEnvironment::openLink(const QString& address) {
    if (!m_platform->opener->openAddress(address))
        showToast(
            {QStringLiteral("xmark.circle.fill"), localised("This link can't be opened"), ToastMessage::Tone::warning});
}

void AppEnvironment::pastePinned(int number) {
    m_panel->model().pastePinned(number);
}

} // namespace vellumry
