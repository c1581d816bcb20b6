// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsModel.h"

#include "foundation/Localisation.h"
#include "settings/ApplicationLines.h"
#include "settings/ProductLinks.h"
#include "settings/SettingsLabels.h"

#include <QCoreApplication>
#include <QPointer>

namespace vellumry {

SettingsModel::SettingsModel(Preferences& preferences, const KeyboardLayout& layout)
    : m_preferences(&preferences)
    , m_layout(&layout)
    , m_recentInMenu({5, 10, 20, 30, 50, 100, 0}, settingslabels::recent, storing("recentInMenu"))
    , m_appearance({0, 1, 2}, settingslabels::appearance, [this](qint64 value) { setAppearance(value); })
    , m_keepForDays({1, 7, 30, 90, 365, 0}, settingslabels::days,
                    storing("keepForDays", &SettingsModel::applyRetention))
    , m_keepAtMost({200, 500, 1000, 5000, 10000}, settingslabels::clips,
                   storing("keepAtMost", &SettingsModel::applyRetention))
    , m_mediaLimitMB({250, 500, 1024, 5120}, settingslabels::megabytes,
                     storing("mediaLimitMB", &SettingsModel::applyRetention))
    , m_secretSeconds({30, 60, 300, 3600}, settingslabels::lifetime, storing("sensitiveSeconds"))
    , m_openPanelShortcut(Shortcut::openPanelDefault(), layout,
                          recording("openPanelShortcut", Shortcut::openPanelDefault()))
    , m_pasteStackShortcut(Shortcut::pasteStackDefault(), layout,
                           recording("pasteStackShortcut", Shortcut::pasteStackDefault())) {
    refresh();
}

SettingsModel::~SettingsModel() = default;

SettingsModel::Setter SettingsModel::storing(const char* key, void (SettingsModel::*reaction)()) {
    return [this, key, reaction](qint64 value) {
        store(key, value);
        if (reaction)
            (this->*reaction)();
    };
}

ShortcutRecorder::Hooks SettingsModel::recording(const char* key, const Shortcut& fallback) {
    ShortcutRecorder::Hooks hooks;
    hooks.onChange = [this, key, fallback](const Shortcut& shortcut) {
        m_preferences->setShortcut(shortcut, fallback, QString::fromLatin1(key));
        reloadShortcuts();
    };
    hooks.onRecording = [this](bool isRecording) { actions.suspendShortcuts(isRecording); };
    hooks.beep = [this] { actions.beep(); };
    return hooks;
}

void SettingsModel::refresh() {
    const SettingsValues values = SettingsValues::read(*m_preferences);
    m_recentInMenu.setValue(values.recentInMenu);
    m_appearance.setValue(static_cast<qint64>(values.appearance));
    m_keepForDays.setValue(values.keepForDays);
    m_keepAtMost.setValue(values.keepAtMost);
    m_mediaLimitMB.setValue(values.mediaLimitMB);
    m_secretSeconds.setValue(values.secretSeconds);
    m_openPanelShortcut.setShortcut(values.openPanelShortcut);
    m_pasteStackShortcut.setShortcut(values.pasteStackShortcut);
    if (values == m_values)
        return;
    m_values = values;
    showLists();
    Q_EMIT changed();
}

void SettingsModel::refreshAll() {
    m_launchAtLogin = actions.isLaunchedAtLogin();
    m_hasAccessibility = actions.isTrusted();
    m_report.setLines(desktopReport(actions.desktopState()));
    m_offer = m_shortcutProblems.isEmpty() ? std::nullopt : actions.offerShortcut();
    m_updates = actions.updates();
    readHistorySize();
    refresh();
    Q_EMIT changed();
    readApplications();
}

void SettingsModel::stopRecording() {
    m_openPanelShortcut.stop();
    m_pasteStackShortcut.stop();
}

void SettingsModel::store(const char* key, const QVariant& value) {
    m_preferences->defaults().setObject(QString::fromLatin1(key), value);
    refresh();
}

void SettingsModel::setLaunchAtLogin(bool isWanted) {
    const bool isDone = actions.setLaunchAtLogin(isWanted);
    m_launchAtLogin = isDone ? isWanted : !isWanted;
    m_loginMessage =
        isDone ? QString() : localised("macOS didn't allow it. Check System Settings → General → Login Items.");
    Q_EMIT changed();
}

void SettingsModel::setSaveNewScreenshots(bool isWanted) {
    m_screenshotMessage.clear();
    store("saveNewScreenshots", isWanted);
    Q_EMIT changed();
    runScreenshots(isWanted);
}

QCoro::Task<void> SettingsModel::runScreenshots(bool isWanted) {
    const QPointer<SettingsModel> self(this);
    const quint64 request = ++m_screenshotRequests;
    auto switching = actions.setScreenshotSaving(isWanted);
    const bool isDone = co_await switching;
    // Behind a later press of the switch this one's outcome says nothing.
    if (!self || request != m_screenshotRequests)
        co_return;
    if (!isDone) {
        store("saveNewScreenshots", false);
        m_screenshotMessage = localised("Vellumry can't open your screenshots folder. Allow it in Privacy & Security "
                                        "→ Files and Folders.");
    }
    refresh();
    Q_EMIT changed();
}

void SettingsModel::setAppearance(qint64 value) {
    const char* const names[]{"system", "light", "dark"};
    store("appearance", QString::fromLatin1(names[value]));
    actions.applyAppearance(m_values.appearance);
}

void SettingsModel::setPinnedShortcutsEnabled(bool isOn) {
    store("pinnedShortcutsEnabled", isOn);
    reloadShortcuts();
}

void SettingsModel::reloadShortcuts() {
    setShortcutProblems(actions.reloadShortcuts());
    refresh();
}

void SettingsModel::setShortcutProblems(const QStringList& problems) {
    m_shortcutProblems = problems;
    m_offer = problems.isEmpty() ? std::nullopt : actions.offerShortcut();
    m_report.setLines(desktopReport(actions.desktopState()));
    Q_EMIT changed();
}

QString SettingsModel::shortcutOffer() const {
    return m_offer ? m_offer->shortcut.display(*m_layout) : QString();
}

void SettingsModel::takeOfferedShortcut() {
    if (!m_offer)
        return;
    const bool isPanels = m_offer->key == QLatin1String("openPanelShortcut");
    m_preferences->setShortcut(m_offer->shortcut,
                               isPanels ? Shortcut::openPanelDefault() : Shortcut::pasteStackDefault(), m_offer->key);
    reloadShortcuts();
}

void SettingsModel::allowPasting() {
    actions.allowPasting();
    m_hasAccessibility = actions.isTrusted();
    Q_EMIT changed();
}

void SettingsModel::openWebsite() {
    actions.openLink(productlinks::website);
}

void SettingsModel::openSupport() {
    actions.openLink(productlinks::support);
}

void SettingsModel::openPrivacy() {
    actions.openLink(productlinks::privacy);
}

void SettingsModel::openTerms() {
    actions.openLink(productlinks::terms);
}

void SettingsModel::centerPanel() {
    m_preferences->resetPanelPositions();
    refresh();
}

void SettingsModel::readHistorySize() {
    const QString size = actions.historySize();
    const QString clips = settingslabels::clips(actions.clipCount());
    m_historySize = size.isEmpty() ? clips : localised("%1 · %2").arg(clips, size);
}

QCoro::Task<void> SettingsModel::runClearing(bool isEverything) {
    const QPointer<SettingsModel> self(this);
    auto clearing = isEverything ? actions.deleteEverything() : actions.clearHistory();
    co_await clearing;
    if (!self)
        co_return;
    readHistorySize();
    Q_EMIT changed();
}

QCoro::Task<void> SettingsModel::runFileCheck() {
    const QPointer<SettingsModel> self(this);
    auto checking = actions.allowFileFolders();
    const FileAccess::Result result = co_await checking;
    if (!self)
        co_return;
    m_fileAccess = result;
    Q_EMIT changed();
}

QString SettingsModel::fileAccessMessage() const {
    if (!m_fileAccess)
        return {};
    if (m_fileAccess->isAllowed())
        return localised("Allowed. Files from these folders paste normally.");
    return localised("macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.").arg(*m_fileAccess->blocked);
}

void SettingsModel::setSheet(const QString& sheet) {
    if (sheet == m_sheet)
        return;
    m_sheet = sheet;
    Q_EMIT sheetChanged();
}

void SettingsModel::setInstallsUpdates(bool isOn) {
    actions.setAutomaticUpdates(isOn);
    noteUpdates();
}

void SettingsModel::noteUpdates() {
    m_updates = actions.updates();
    Q_EMIT changed();
}

QString SettingsModel::updateReady() const {
    return m_updates.readyVersion ? localised("Vellumry %1 is ready to install").arg(*m_updates.readyVersion)
                                  : QString();
}

QString SettingsModel::lastChecked() const {
    return m_updates.secondsSinceCheck ? settingslabels::lastChecked(*m_updates.secondsSinceCheck) : QString();
}

QString SettingsModel::version() const {
    return localised("Version %1").arg(QCoreApplication::applicationVersion());
}

} // namespace vellumry
