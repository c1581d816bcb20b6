// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window's ways to the rest of the program.
#include "shell/AppEnvironment.h"

#include "capture/FileAccess.h"
#include "shell/HistoryFolder.h"

#include <QPointer>

namespace vellumry {

namespace {

QCoro::Task<std::vector<InstalledApplication>> listOf(InstalledApplications* applications) {
    if (!applications)
        co_return std::vector<InstalledApplication>();
    auto listing = applications->list();
    co_return co_await listing;
}

} // namespace

void AppEnvironment::makeSettings() {
    m_settingsModel = std::make_unique<SettingsModel>(*m_preferences, *m_platform->keyboard);
    m_settingsModel->actions = settingsActions();
    m_settings = std::make_unique<SettingsWindowController>(*m_settingsModel, *m_transfer, m_views);
    connect(m_updates.get(), &UpdateController::changed, m_settingsModel.get(), &SettingsModel::noteUpdates);
    m_fieldPasteboard = std::make_unique<FieldPasteboard>(*m_platform->pasteboard);
    m_views.copyText = [this](const QString& text) { m_fieldPasteboard->setText(text); };
    m_views.readText = [this](const ViewEngine::Deliver& deliver) { readFieldText(deliver); };
    m_views.tellActiveRow = m_platform->tellActiveRow;
    m_views.reducesMotion = [surface = m_platform->panelSurface.get()] { return surface->reducesMotion(); };
    followDesktopLook();
}

void AppEnvironment::followDesktopLook() {
    DesktopLookSource* look = m_platform->look.get();
    if (!look)
        return;
    // The platform outlives us.
    look->onChanged = [self = QPointer(this), look] {
        if (self)
            self->m_views.setDesktopLook(look->look());
    };
    m_views.setDesktopLook(look->look());
}

QCoro::Task<void> AppEnvironment::readFieldText(ViewEngine::Deliver deliver) {
    auto reading = m_fieldPasteboard->text();
    const QString text = co_await reading;
    deliver(text);
}

SettingsActions AppEnvironment::settingsActions() {
    SettingsActions actions;
    PasteTarget* target = m_platform->pasteTarget.get();
    actions.isLaunchedAtLogin = [this] { return m_platform->loginItem && m_platform->loginItem->isEnabled(); };
    actions.setLaunchAtLogin = [this](bool isWanted) { return setLaunchAtLogin(isWanted); };
    actions.setScreenshotSaving = [this](bool isWanted) { return m_screenshotSaving->setSaving(isWanted); };
    actions.reloadShortcuts = [this] { return reloadShortcuts(); };
    actions.suspendShortcuts = [this](bool isSuspended) { suspendShortcuts(isSuspended); };
    actions.offerShortcut = [this] { return m_shortcuts->offer(); };
    actions.applyRetention = [this] {
        m_store->setPolicy(m_preferences->retentionPolicy());
        m_store->enforceRetention(m_platform->clock());
    };
    actions.applyAppearance = [this](Preferences::Appearance) { applyAppearance(); };
    actions.isTrusted = [target] { return target->isTrusted(); };
    actions.allowPasting = [target] { target->requestTrust(); };
    actions.clearHistory = [this] { return m_store->clearHistory(true); };
    actions.deleteEverything = [this] { return m_store->clearHistory(false); };
    actions.allowFileFolders = [this] { return checkPersonalFolders(); };
    actions.historySize = [this] { return isMemoryOnly() ? QString() : historySize(); };
    actions.clipCount = [this] { return static_cast<qint64>(m_store->clips().size()); };
    actions.installedApplications = [this] { return listOf(m_platform->applications.get()); };
    actions.desktopState = [this] {
        return DesktopState{capabilities(), m_settingsModel->shortcutProblems(), isMemoryOnly(),
                            m_platform->isWaylandSession};
    };
    actions.updates = [this] {
        UpdateState state{m_updates->isEnabled(), m_updates->automaticallyInstalls(), m_updates->readyVersion()};
        if (const auto checked = m_updates->lastChecked())
            state.secondsSinceCheck = m_platform->clock() - *checked;
        return state;
    };
    actions.setAutomaticUpdates = [this](bool isOn) { m_updates->setAutomaticallyInstalls(isOn); };
    actions.checkForUpdates = [this] { m_updates->checkNow(); };
    actions.installUpdate = [this] { m_updates->requestInstall(); };
    actions.openLink = [this](const QString& address) { openLink(address); };
    actions.beep = [this] { m_platform->sounds->play(Sound::refusal); };
    return actions;
}

bool AppEnvironment::setLaunchAtLogin(bool isWanted) {
    return m_platform->loginItem && m_platform->loginItem->setEnabled(isWanted);
}

QCoro::Task<FileAccess::Result> AppEnvironment::checkPersonalFolders() const {
    const FilePlaces places = FilePlaces::ofUser(m_platform->home);
    QStringList folders;
    for (const FilePlaces::Folder& folder : places.personal)
        folders.append(folder.path);
    return FileAccess::check(folders, places);
}

void AppEnvironment::openSettings() {
    m_panel->hide();
    m_settings->show(0);
}

} // namespace vellumry
