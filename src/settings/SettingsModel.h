// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/Choice.h"
#include "settings/FormListModel.h"
#include "settings/SettingsActions.h"
#include "settings/SettingsValues.h"
#include "settings/ShortcutRecorder.h"

#include <QObject>
#include <qqmlregistration.h>

namespace vellumry {

/// What the settings window shows. It always says what the settings file says: each change is written at once, and what
/// is shown follows the file, also when another program wrote it. Main thread.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has it.")
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(QString loginMessage READ loginMessage NOTIFY changed)
    Q_PROPERTY(bool pasteDirectly READ pasteDirectly WRITE setPasteDirectly NOTIFY changed)
    Q_PROPERTY(bool hasAccessibility READ hasAccessibility NOTIFY changed)
    Q_PROPERTY(bool plainTextByDefault READ plainTextByDefault WRITE setPlainTextByDefault NOTIFY changed)
    Q_PROPERTY(bool soundWhenPasting READ soundWhenPasting WRITE setSoundWhenPasting NOTIFY changed)
    Q_PROPERTY(bool saveNewScreenshots READ saveNewScreenshots WRITE setSaveNewScreenshots NOTIFY changed)
    Q_PROPERTY(QString screenshotMessage READ screenshotMessage NOTIFY changed)
    Q_PROPERTY(bool panelMoved READ panelMoved NOTIFY changed)
    Q_PROPERTY(bool pinnedShortcutsEnabled READ pinnedShortcutsEnabled WRITE setPinnedShortcutsEnabled NOTIFY changed)
    Q_PROPERTY(QList<QString> shortcutProblems READ shortcutProblems NOTIFY changed)
    Q_PROPERTY(QString shortcutOffer READ shortcutOffer NOTIFY changed)
    Q_PROPERTY(QString historySize READ historySize NOTIFY changed)
    Q_PROPERTY(QString moreManagers READ moreManagers NOTIFY changed)
    Q_PROPERTY(QString fileAccessMessage READ fileAccessMessage NOTIFY changed)
    Q_PROPERTY(bool isFileAccessAllowed READ isFileAccessAllowed NOTIFY changed)
    Q_PROPERTY(int chosenCount READ chosenCount NOTIFY changed)
    Q_PROPERTY(bool isForTerminals READ isForTerminals NOTIFY changed)
    Q_PROPERTY(vellumry::Choice* recentInMenu READ recentInMenu CONSTANT)
    Q_PROPERTY(vellumry::Choice* appearance READ appearance CONSTANT)
    Q_PROPERTY(vellumry::Choice* keepForDays READ keepForDays CONSTANT)
    Q_PROPERTY(vellumry::Choice* keepAtMost READ keepAtMost CONSTANT)
    Q_PROPERTY(vellumry::Choice* mediaLimitMB READ mediaLimitMB CONSTANT)
    Q_PROPERTY(vellumry::Choice* secretSeconds READ secretSeconds CONSTANT)
    Q_PROPERTY(vellumry::ShortcutRecorder* openPanelShortcut READ openPanelShortcut CONSTANT)
    Q_PROPERTY(vellumry::ShortcutRecorder* pasteStackShortcut READ pasteStackShortcut CONSTANT)
    Q_PROPERTY(vellumry::FormListModel* ignoredApps READ ignoredApps CONSTANT)
    Q_PROPERTY(vellumry::FormListModel* terminals READ terminals CONSTANT)
    Q_PROPERTY(vellumry::FormListModel* offeredApps READ offeredApps CONSTANT)
    Q_PROPERTY(vellumry::FormListModel* report READ report CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(bool hasUpdates READ hasUpdates NOTIFY changed)
    Q_PROPERTY(bool installsUpdates READ installsUpdates WRITE setInstallsUpdates NOTIFY changed)
    Q_PROPERTY(QString updateReady READ updateReady NOTIFY changed)
    Q_PROPERTY(QString lastChecked READ lastChecked NOTIFY changed)
    /// What is asked over the panes: "clear", "applications", "report", or nothing.
    Q_PROPERTY(QString sheet READ sheet WRITE setSheet NOTIFY sheetChanged)

public:
    /// Both must outlive this.
    SettingsModel(Preferences& preferences, const KeyboardLayout& layout);
    ~SettingsModel() override;

    SettingsActions actions;

    /// Shows what the file says now; for when another program changed it.
    void refresh();
    /// Asks the desktop for everything that the file does not say: before the window is shown, and when the user comes
    /// back to it.
    Q_INVOKABLE void refreshAll();
    /// The keys that are pressed are a new shortcut.
    [[nodiscard]] bool isRecording() const {
        return m_openPanelShortcut.isRecording() || m_pasteStackShortcut.isRecording();
    }
    /// A recording, if there is one, ends without a change.
    void stopRecording();

    [[nodiscard]] const SettingsValues& values() const { return m_values; }
    [[nodiscard]] bool launchAtLogin() const { return m_launchAtLogin; }
    /// Springs back where the desktop refuses, with `loginMessage`.
    void setLaunchAtLogin(bool isWanted);
    [[nodiscard]] const QString& loginMessage() const { return m_loginMessage; }
    [[nodiscard]] bool pasteDirectly() const { return m_values.pasteDirectly; }
    void setPasteDirectly(bool isOn) { store("pasteDirectly", isOn); }
    [[nodiscard]] bool hasAccessibility() const { return m_hasAccessibility; }
    [[nodiscard]] bool plainTextByDefault() const { return m_values.plainTextByDefault; }
    void setPlainTextByDefault(bool isOn) { store("plainTextByDefault", isOn); }
    [[nodiscard]] bool soundWhenPasting() const { return m_values.soundWhenPasting; }
    void setSoundWhenPasting(bool isOn) { store("soundWhenPasting", isOn); }
    [[nodiscard]] bool saveNewScreenshots() const { return m_values.saveNewScreenshots; }
    /// Goes off again where the folder cannot be opened, with `screenshotMessage`.
    void setSaveNewScreenshots(bool isWanted);
    [[nodiscard]] const QString& screenshotMessage() const { return m_screenshotMessage; }
    [[nodiscard]] bool panelMoved() const { return m_values.panelMoved; }
    [[nodiscard]] bool pinnedShortcutsEnabled() const { return m_values.pinnedShortcutsEnabled; }
    void setPinnedShortcutsEnabled(bool isOn);
    [[nodiscard]] const QStringList& shortcutProblems() const { return m_shortcutProblems; }
    /// Set by the last registration of the shortcuts.
    void setShortcutProblems(const QStringList& problems);
    /// The words of a free shortcut in place of one that is taken; empty when there is none to offer.
    [[nodiscard]] QString shortcutOffer() const;
    [[nodiscard]] const QString& historySize() const { return m_historySize; }
    /// How many password managers are covered beside those in the list; empty when all are listed.
    [[nodiscard]] QString moreManagers() const;
    [[nodiscard]] QString fileAccessMessage() const;
    [[nodiscard]] bool isFileAccessAllowed() const { return m_fileAccess && m_fileAccess->isAllowed(); }
    [[nodiscard]] int chosenCount() const { return static_cast<int>(m_chosen.size()); }
    [[nodiscard]] bool isForTerminals() const { return m_isForTerminals; }
    [[nodiscard]] QString version() const;
    [[nodiscard]] bool hasUpdates() const { return m_updates.isEnabled; }
    [[nodiscard]] bool installsUpdates() const { return m_updates.automaticallyInstalls; }
    void setInstallsUpdates(bool isOn);
    /// A sentence on the version that waits to be installed; empty when there is none.
    [[nodiscard]] QString updateReady() const;
    [[nodiscard]] QString lastChecked() const;
    /// The updater has something new to say.
    void noteUpdates();
    [[nodiscard]] const QString& sheet() const { return m_sheet; }
    void setSheet(const QString& sheet);

    [[nodiscard]] Choice* recentInMenu() { return &m_recentInMenu; }
    [[nodiscard]] Choice* appearance() { return &m_appearance; }
    [[nodiscard]] Choice* keepForDays() { return &m_keepForDays; }
    [[nodiscard]] Choice* keepAtMost() { return &m_keepAtMost; }
    [[nodiscard]] Choice* mediaLimitMB() { return &m_mediaLimitMB; }
    [[nodiscard]] Choice* secretSeconds() { return &m_secretSeconds; }
    [[nodiscard]] ShortcutRecorder* openPanelShortcut() { return &m_openPanelShortcut; }
    [[nodiscard]] ShortcutRecorder* pasteStackShortcut() { return &m_pasteStackShortcut; }
    [[nodiscard]] FormListModel* ignoredApps() { return &m_ignoredApps; }
    [[nodiscard]] FormListModel* terminals() { return &m_terminals; }
    [[nodiscard]] FormListModel* offeredApps() { return &m_offeredApps; }
    [[nodiscard]] FormListModel* report() { return &m_report; }

    Q_INVOKABLE void allowPasting();
    Q_INVOKABLE void checkForUpdates() { actions.checkForUpdates(); }
    Q_INVOKABLE void installUpdate() { actions.installUpdate(); }
    Q_INVOKABLE void openWebsite();
    Q_INVOKABLE void openSupport();
    Q_INVOKABLE void openPrivacy();
    Q_INVOKABLE void openTerms();
    Q_INVOKABLE void centerPanel();
    Q_INVOKABLE void takeOfferedShortcut();
    Q_INVOKABLE void clearHistory() { runClearing(false); }
    Q_INVOKABLE void deleteEverything() { runClearing(true); }
    Q_INVOKABLE void allowFileFolders() { runFileCheck(); }
    /// Saves clips from the application in that line of the list again.
    Q_INVOKABLE void saveFrom(int line);
    Q_INVOKABLE void forgetTerminal(int line);
    /// The application in that line pastes like a terminal, or does not, whatever the program knows of it.
    Q_INVOKABLE void setTerminal(int line, bool isTerminal);
    /// Asks which of the installed applications are to go into one of the two lists; none of them is chosen yet.
    Q_INVOKABLE void beginChoosing(bool isForTerminals);
    /// Lists only those whose name has these words in it; what is chosen stays so.
    Q_INVOKABLE void searchApplications(const QString& words);
    Q_INVOKABLE void toggleChosen(int line);
    /// Adds what was chosen to the list that it was asked for.
    Q_INVOKABLE void finishChoosing();

Q_SIGNALS:
    void changed();
    void sheetChanged();

private:
    using Setter = std::function<void(qint64)>;

    [[nodiscard]] Setter storing(const char* key, void (SettingsModel::*reaction)() = nullptr);
    [[nodiscard]] ShortcutRecorder::Hooks recording(const char* key, const Shortcut& fallback);
    void store(const char* key, const QVariant& value);
    void applyRetention() { actions.applyRetention(); }
    void setAppearance(qint64 value);
    void reloadShortcuts();
    void showLists();
    void showOffered();
    void readHistorySize();
    [[nodiscard]] QStringList listedNames() const;
    [[nodiscard]] QStringList chosenNames() const;
    QCoro::Task<void> runScreenshots(bool isWanted);
    QCoro::Task<void> runClearing(bool isEverything);
    QCoro::Task<void> runFileCheck();
    QCoro::Task<void> readApplications();

    Preferences* m_preferences;
    const KeyboardLayout* m_layout;
    SettingsValues m_values;
    bool m_launchAtLogin = false;
    bool m_hasAccessibility = false;
    QString m_loginMessage;
    QString m_screenshotMessage;
    quint64 m_screenshotRequests = 0;
    QStringList m_shortcutProblems;
    std::optional<ShortcutRegistrations::Offer> m_offer;
    QString m_historySize;
    std::optional<FileAccess::Result> m_fileAccess;
    UpdateState m_updates;
    std::vector<InstalledApplication> m_applications;
    bool m_isForTerminals = false; ///< what applications are being chosen for; else those never saved from
    QString m_words;
    QString m_sheet;
    QStringList m_chosen; ///< identifiers
    Choice m_recentInMenu;
    Choice m_appearance;
    Choice m_keepForDays;
    Choice m_keepAtMost;
    Choice m_mediaLimitMB;
    Choice m_secretSeconds;
    ShortcutRecorder m_openPanelShortcut;
    ShortcutRecorder m_pasteStackShortcut;
    FormListModel m_ignoredApps;
    FormListModel m_terminals;
    FormListModel m_offeredApps;
    FormListModel m_report;
};

} // namespace vellumry
