// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppEnvironment.h"

#include "capture/FileAccess.h"
#include "capture/FilePlaces.h"
#include "capture/FileStatus.h"
#include "capture/screenshots/ScreenshotFolders.h"
#include "foundation/Localisation.h"
#include "shell/AlertWindow.h"
#include "shell/HistoryFolder.h"
#include "shell/PasteSound.h"

#include <QPointer>
#include <algorithm>
#include <chrono>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr auto maintenanceInterval = 15s;
constexpr auto warmUpDelay = 1500ms;
/// Longer than a word on what the user has just done: this comes unasked.
constexpr int startMessageSeconds = 6;

PanelController::Appearance panelAppearance(Preferences::Appearance appearance) {
    switch (appearance) {
    case Preferences::Appearance::light:
        return PanelController::Appearance::light;
    case Preferences::Appearance::dark:
        return PanelController::Appearance::dark;
    case Preferences::Appearance::system:
        break;
    }
    return PanelController::Appearance::system;
}

QString imageVolume(const Platform& platform) {
    try {
        return historyFolder(platform.dataHome);
    } catch (const std::exception&) {
        return platform.home;
    }
}

} // namespace

std::unique_ptr<AppEnvironment> AppEnvironment::launch(Platform& platform) {
    return std::unique_ptr<AppEnvironment>(new AppEnvironment(platform));
}

AppEnvironment::AppEnvironment(Platform& platform)
    : m_platform(&platform)
    , m_preferences(std::make_unique<Preferences>(*platform.defaults))
    , m_store(std::make_unique<ClipStore>(m_preferences->retentionPolicy()))
    , m_imageVolume(imageVolume(platform)) {
    FrontmostApplication* frontmost = platform.frontmost.get();
    m_watcher =
        std::make_unique<ClipboardWatcher>(*platform.pasteboard, *m_store, *platform.defaults, *platform.bookmarks,
                                           *platform.images, [frontmost] { return frontmost->current(); });
    m_survivingCopy = std::make_unique<SurvivingCopy>(*m_store, *platform.pasteboard);
    m_textReading = std::make_unique<TextReading>(platform, *m_store);
    m_paster = std::make_unique<PasteEngine>(*m_store, *platform.defaults, systemHooks());
    m_hotKeyCenter = std::make_unique<HotKeyCenter>(*platform.hotKeys);
    m_toast = std::make_unique<ToastController>(*platform.panelSurface, m_views);
    ScreenshotImporter::Hooks screenshotHooks;
    screenshotHooks.folders = [] { return ScreenshotFolders::ofUser().list(); };
    m_screenshots =
        std::make_unique<ScreenshotImporter>(*m_store, *platform.images, *platform.folders, std::move(screenshotHooks));
    m_screenshotSaving = std::make_unique<ScreenshotSaving>(*m_screenshots, *platform.defaults);
    m_panel = std::make_unique<PanelController>(*m_store, *m_paster, *platform.pasteboard, *platform.panelSurface,
                                                m_views, panelHooks());
    wirePanel();
    makeStack();
    makeStatusItem();
    makeUpdates();
    makeTransfer();
    makeSettings();
    makeOnboarding();
    wire();
}

AppEnvironment::~AppEnvironment() = default;

SystemHooks AppEnvironment::systemHooks() {
    PasteTarget* target = m_platform->pasteTarget.get();
    const FileBookmarks* bookmarks = m_platform->bookmarks.get();
    SystemHooks hooks = SystemHooks::of(*m_platform->pasteboard, *target);
    const FilePlaces places = FilePlaces::ofUser(m_platform->home);
    hooks.fileStatus = [bookmarks, places](const FileRef& file) { return FileStatus::check(file, *bookmarks, places); };
    hooks.checkFileAccess = [places](QStringList paths) { return FileAccess::check(std::move(paths), places); };
    return hooks;
}

void AppEnvironment::wire() {
    wireCapture();
    wireScreenshots();
    wireStack();
    m_paster->onWritten = [this](const Clip& clip) { m_survivingCopy->noteWritten(clip.id, clip.isSensitive()); };
    m_paster->onPasted = pasteSound(*m_platform->defaults, *m_platform->sounds);
    ShortcutRegistrations::Actions actions;
    actions.togglePanel = [this] { togglePanel(); };
    actions.toggleStack = [this] { toggleStack(); };
    actions.pastePinned = [this](int number) { pastePinned(number); };
    m_shortcuts = std::make_unique<ShortcutRegistrations>(*m_platform->defaults, *m_hotKeyCenter, *m_platform->keyboard,
                                                          std::move(actions));
    m_store->setClock(m_platform->clock);
    if (m_platform->expiryTimer)
        m_store->setExpiryTimer(std::move(m_platform->expiryTimer));
    m_store->setAutoExpire(true);
}

void AppEnvironment::wireCapture() {
    m_watcher->clock = m_platform->clock;
    m_watcher->pasteboardOwner = [frontmost = m_platform->frontmost.get()] { return frontmost->pasteboardOwner(); };
    m_watcher->hasRoomForImages = [this] { return m_platform->hasRoomForImages(m_imageVolume); };
    m_watcher->onLowDisk = [this] { showLowDiskToast(); };
    m_watcher->onIgnoredCopy = [this] {
        showToast({QStringLiteral("eye.slash.fill"), localised("Skipped. That copy wasn't saved"),
                   ToastMessage::Tone::success});
    };
    m_watcher->onCapture = [this](const ClipRef& clip) { m_textReading->take(clip); };
    m_textReading->onToast = [this](const ToastMessage& message) { showToast(message); };
    m_watcher->onStored = [this](const ClipRef& clip, qint64 changeCount) {
        m_survivingCopy->noteStored(clip, changeCount);
    };
}

void AppEnvironment::wireScreenshots() {
    m_screenshots->onImported = [this](const ClipRef& clip) { m_textReading->take(clip); };
    m_screenshots->hasRoomForImages = [this] { return m_platform->hasRoomForImages(m_imageVolume); };
    m_screenshots->isAllowed = [this] {
        return !m_watcher->pausedUntil || *m_watcher->pausedUntil <= m_platform->clock();
    };
    m_screenshotSaving->onToast = [this](const ToastMessage& message) { showToast(message); };
}

void AppEnvironment::start() {
    applyAppearance();
    installStatusItem();
    m_watcher->start();
    const QStringList shortcutProblems = reloadShortcuts();
    if (!m_platform->defaults->boolean(QStringLiteral("onboardingDone")))
        m_onboarding->show();
    else
        tellOfStart(shortcutProblems);
    watchSettings();
    startMaintenance();
    m_store->enforceRetention(m_platform->clock());
    m_screenshotSaving->startIfWanted();
    m_textReading->scheduleBacklog();
    openHistory();
    QTimer::singleShot(warmUpDelay, this, [this] { m_panel->warmUp(); });
}

void AppEnvironment::applyAppearance() {
    m_panel->setAppearance(panelAppearance(m_preferences->appearance()));
}

void AppEnvironment::watchSettings() {
    SettingsWatch::Reactions reactions;
    reactions.shortcuts = [this] {
        if (m_areShortcutsSuspended)
            return;
        for (const QString& problem : reloadShortcuts())
            showToast({QStringLiteral("exclamationmark.triangle.fill"), problem, ToastMessage::Tone::warning});
    };
    reactions.appearance = [this] { applyAppearance(); };
    reactions.anything = [this] { m_settingsModel->refresh(); };
    reactions.screenshots = [this] { m_screenshotSaving->follow(); };
    m_settingsWatch = std::make_unique<SettingsWatch>(*m_platform->defaults, std::move(reactions));
    m_settingsWatch->start(*m_platform->folders, m_platform->settingsFolder);
}

void AppEnvironment::tellOfStart(const QStringList& shortcutProblems) {
    for (const QString& problem : shortcutProblems)
        m_startMessages.push_back(
            {QStringLiteral("exclamationmark.triangle.fill"), problem, ToastMessage::Tone::warning});
    std::ranges::reverse(m_startMessages);
    showNextStartMessage();
}

void AppEnvironment::showNextStartMessage() {
    if (m_startMessages.empty())
        return;
    m_toast->show(m_startMessages.back(), startMessageSeconds, m_platform->panelSurface->screenUnderPointer());
    m_startMessages.pop_back();
    QTimer::singleShot(std::chrono::duration<int>(startMessageSeconds + 1), this,
                       &AppEnvironment::showNextStartMessage);
}

QString AppEnvironment::openPanelKeys() const {
    return m_preferences->shortcut(QStringLiteral("openPanelShortcut"))
        .value_or(Shortcut::openPanelDefault())
        .display(*m_platform->keyboard);
}

void AppEnvironment::openPanel() {
    m_panel->show();
}

void AppEnvironment::togglePanel() {
    m_panel->toggle();
}

void AppEnvironment::showToast(const ToastMessage& message) {
    m_toast->show(message, ToastController::usualSeconds, m_platform->panelSurface->screenUnderPointer());
}

QStringList AppEnvironment::reloadShortcuts() {
    // A settings file that was changed meanwhile is read at the end of the recording.
    if (m_areShortcutsSuspended)
        return m_settingsModel->shortcutProblems();
    const QStringList problems = m_shortcuts->reload();
    m_panel->model().setAvailablePinnedNumbers(m_shortcuts->availablePinnedNumbers());
    m_settingsModel->setShortcutProblems(problems);
    m_onboardingModel->noteShortcuts();
    // What the settings say is what is registered: the watch of their file has nothing to add.
    if (m_settingsWatch)
        m_settingsWatch->acknowledge();
    return problems;
}

void AppEnvironment::suspendShortcuts(bool isSuspended) {
    m_areShortcutsSuspended = isSuspended;
    if (isSuspended)
        m_shortcuts->suspend();
    else
        (void)reloadShortcuts();
}

QString AppEnvironment::historySize() const {
    try {
        return fileSizeText(historyBytes(historyFolder(m_platform->dataHome)));
    } catch (const std::exception&) {
        return QString();
    }
}

void AppEnvironment::startMaintenance() {
    m_platform->maintenance->ring(maintenanceInterval, [self = QPointer(this)] {
        if (!self)
            return;
        self->runMaintenance();
        self->startMaintenance();
    });
}

void AppEnvironment::runMaintenance() {
    m_settingsWatch->look();
    m_store->setPolicy(m_preferences->retentionPolicy());
    m_store->enforceRetention(m_platform->clock());
    m_updates->installIfQuiet();
    if (m_settings->isVisible() || m_onboarding->isVisible())
        m_hasWorked = true;
    else if (!m_panel->isVisible() && std::exchange(m_hasWorked, false))
        m_platform->returnMemory();
}

} // namespace vellumry
