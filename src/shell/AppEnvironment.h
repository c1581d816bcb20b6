// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/ClipboardWatcher.h"
#include "history/clips/ClipStore.h"
#include "onboarding/OnboardingModel.h"
#include "onboarding/OnboardingWindowController.h"
#include "panel/FieldPasteboard.h"
#include "panel/PanelController.h"
#include "paste/HotKeyCenter.h"
#include "paste/PasteEngine.h"
#include "paste/ShortcutRegistrations.h"
#include "paste/StackWiring.h"
#include "paste/SurvivingCopy.h"
#include "settings/Preferences.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsWindowController.h"
#include "shell/HistoryOpening.h"
#include "shell/Platform.h"
#include "shell/ScreenshotSaving.h"
#include "shell/SettingsWatch.h"
#include "shell/StackHUDController.h"
#include "shell/StatusItemController.h"
#include "shell/TextReading.h"
#include "shell/ToastController.h"
#include "shell/UpdateController.h"
#include "transfer/HistoryExport.h"
#include "transfer/HistoryImport.h"
#include "transfer/TransferModel.h"
#include "views/ViewEngine.h"

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>

namespace vellumry {

class AlertWindow;
struct StartupAlert;
struct StatusReport;

/// The composition root: makes every long-lived object once, joins them with closures, starts them in a fixed order and
/// runs the maintenance timer. Lives as long as the process. Main thread.
class AppEnvironment : public QObject {
    Q_OBJECT

public:
    /// Builds the environment around a history in memory, which `start` joins with that of the disk. `platform` must
    /// outlive the result.
    [[nodiscard]] static std::unique_ptr<AppEnvironment> launch(Platform& platform);
    ~AppEnvironment() override;

    /// Brings everything to life: the clipboard is watched and the shortcuts are there before the history is. Once.
    void start();
    /// Called once after `start`, when the history is there or is known not to be, or when that takes long.
    std::function<void()> onReady;

    void openPanel();
    void togglePanel();
    /// The settings window comes to the front with its first pane.
    void openSettings();
    /// The user started the program again: the window that is open comes forward as it is, else the settings come.
    void reopen();
    void showToast(const ToastMessage& message);
    /// Stops the Paste Stack when it runs, else starts it, with the clips that are selected in the open panel when they
    /// are several.
    void toggleStack();
    /// Pastes one of the first nine pinned clips, by its number from 1 on, into the window in front.
    void pastePinned(int number);
    /// No capture until it is called again; what was copied meanwhile stays out.
    void togglePause();
    void toggleIgnoreNext();
    void toggleScreenshots();
    /// Clears the history, pins aside, once the user has said yes.
    void askToClear();
    [[nodiscard]] bool isPaused() const;
    /// The program's menu as it stands now: the tray shows it, and the panel where there is no tray.
    [[nodiscard]] std::vector<ActionMenuItem> statusMenu() const { return m_statusItem->menu(); }
    /// The desktop's panel shows the program's icon; without it the panel of clips is the way to the menu.
    [[nodiscard]] bool isInTray() const { return m_platform->statusItem->isShown(); }
    /// What the session offers and lacks, as far as it is known now.
    [[nodiscard]] std::vector<Capability> capabilities() const;
    /// Registers the global shortcuts anew; one sentence for each that another program holds.
    QStringList reloadShortcuts();
    void suspendShortcuts(bool isSuspended);
    /// Fills in what `vellumry --status` tells of the running program.
    void describe(StatusReport& report) const;
    /// Bytes of the history on disk, in the user's units; empty when the folder cannot be had.
    [[nodiscard]] QString historySize() const;

    /// The history could not be opened so far; `ClipStore::storageChanged` tells of a change.
    [[nodiscard]] bool isMemoryOnly() const { return m_store->isMemoryOnly(); }
    /// Null before `start`.
    [[nodiscard]] const HistoryOpening* opening() const { return m_opening.get(); }
    [[nodiscard]] bool isQuitting() const { return m_isQuitting; }
    /// From now on a window that closes was not closed by the user.
    void setQuitting() { m_isQuitting = true; }

    [[nodiscard]] ClipStore& store() { return *m_store; }
    [[nodiscard]] ClipboardWatcher& watcher() { return *m_watcher; }
    [[nodiscard]] ScreenshotSaving& screenshotSaving() { return *m_screenshotSaving; }
    [[nodiscard]] UpdateController& updates() { return *m_updates; }
    [[nodiscard]] PanelController& panel() { return *m_panel; }
    [[nodiscard]] TransferModel& transfer() { return *m_transfer; }
    [[nodiscard]] SettingsModel& settingsModel() { return *m_settingsModel; }
    [[nodiscard]] SettingsWindowController& settings() { return *m_settings; }
    [[nodiscard]] OnboardingModel& onboardingModel() { return *m_onboardingModel; }
    [[nodiscard]] OnboardingWindowController& onboarding() { return *m_onboarding; }
    [[nodiscard]] PasteStack& stack() { return m_stack->stack(); }
    [[nodiscard]] TextReadingQueue& textReader() { return m_textReading->queue(); }

private:
    explicit AppEnvironment(Platform& platform);

    [[nodiscard]] SystemHooks systemHooks();
    [[nodiscard]] QString openPanelKeys() const;
    [[nodiscard]] PanelController::Hooks panelHooks();
    void wire();
    void wireCapture();
    void wireScreenshots();
    void makeStack();
    void wireStack();
    void wirePanel();
    void makeStatusItem();
    void installStatusItem();
    void makeUpdates();
    [[nodiscard]] bool isInUse() const;
    void makeSettings();
    void makeTransfer();
    void makeOnboarding();
    void onboardingClosed();
    [[nodiscard]] bool mayKeyringAsk();
    [[nodiscard]] bool setLaunchAtLogin(bool isWanted);
    [[nodiscard]] QCoro::Task<FileAccess::Result> checkPersonalFolders() const;
    [[nodiscard]] SettingsActions settingsActions();
    void followDesktopLook();
    QCoro::Task<void> readFieldText(ViewEngine::Deliver deliver);
    void applyAppearance();
    [[nodiscard]] std::vector<ClipRef> stackSeed();
    void startMaintenance();
    void runMaintenance();
    void watchSettings();
    void tellOfStart(const QStringList& shortcutProblems);
    void showNextStartMessage();
    void openHistory();
    void historyOpened();
    void showBackupAlert();
    void showAlert(const StartupAlert& alert, std::function<void()> onDismissed);
    void tellReady();
    void tellStorage();
    void openLink(const QString& address);
    void showLowDiskToast();

    Platform* m_platform;
    std::unique_ptr<Preferences> m_preferences;
    std::unique_ptr<ClipStore> m_store;
    std::unique_ptr<HistoryOpening> m_opening;
    ViewEngine m_views;
    std::unique_ptr<ClipboardWatcher> m_watcher;
    std::unique_ptr<SurvivingCopy> m_survivingCopy;
    std::unique_ptr<TextReading> m_textReading;
    std::unique_ptr<PasteEngine> m_paster;
    std::unique_ptr<ScreenshotImporter> m_screenshots;
    std::unique_ptr<ScreenshotSaving> m_screenshotSaving;
    std::unique_ptr<HotKeyCenter> m_hotKeyCenter;
    std::unique_ptr<ToastController> m_toast;
    std::unique_ptr<PanelController> m_panel;
    std::unique_ptr<StackWiring> m_stack;
    std::unique_ptr<StackHUDController> m_stackHUD;
    std::unique_ptr<StatusItemController> m_statusItem;
    std::unique_ptr<UpdateController> m_updates;
    std::unique_ptr<ShortcutRegistrations> m_shortcuts;
    std::unique_ptr<FieldPasteboard> m_fieldPasteboard;
    std::unique_ptr<HistoryImport> m_import;
    std::unique_ptr<HistoryExport> m_export;
    std::unique_ptr<TransferModel> m_transfer;
    std::unique_ptr<SettingsModel> m_settingsModel;
    std::unique_ptr<SettingsWindowController> m_settings;
    std::unique_ptr<OnboardingModel> m_onboardingModel;
    std::unique_ptr<OnboardingWindowController> m_onboarding;
    std::unique_ptr<SettingsWatch> m_settingsWatch;
    std::vector<ToastMessage> m_startMessages; ///< what is still to be told of the start, the next one last
    std::unique_ptr<AlertWindow> m_alert;
    std::unique_ptr<AlertWindow> m_question;
    QString m_imageVolume;
    std::optional<Date> m_lastLowDiskWarning;
    bool m_isQuitting = false;
    bool m_wasBehind = false;
    bool m_areShortcutsSuspended = false; ///< the keys that are pressed are a new one
    bool m_hasWorked = true;              ///< started, or shown a window, since memory was last given back
};

} // namespace vellumry
