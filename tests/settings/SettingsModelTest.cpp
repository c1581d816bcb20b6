// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsModel.h"

#include "foundation/OneShot.h"
#include "support/Awaited.h"
#include "support/FakeKeyboardLayout.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

class SettingsModelTest : public ::testing::Test {
protected:
    SettingsModelTest() {
        model.actions.reloadShortcuts = [this] {
            ++reloads;
            return problems;
        };
        model.actions.applyRetention = [this] { ++retentions; };
        model.actions.suspendShortcuts = [this](bool isSuspended) { suspensions.append(isSuspended); };
        model.actions.installedApplications = [this]() -> QCoro::Task<std::vector<InstalledApplication>> {
            co_return applications;
        };
    }
    [[nodiscard]] QVariant stored(const char* key) const { return defaults.object(QString::fromLatin1(key)); }
    [[nodiscard]] static QStringList titles(const FormListModel& list) {
        QStringList found;
        for (const FormLine& line : list.lines())
            found.append(line.title);
        return found;
    }

    UserDefaults defaults;
    Preferences preferences{defaults};
    FakeKeyboardLayout layout;
    std::vector<InstalledApplication> applications{
        {QStringLiteral("org.example.Editor"), QStringLiteral("Editor"), {}, QStringLiteral("editor-bin")},
        {QStringLiteral("org.example.Term"), QStringLiteral("Term"), {}, QStringLiteral("Term")}};
    QStringList problems;
    int reloads = 0;
    int retentions = 0;
    QList<bool> suspensions;
    SettingsModel model{preferences, layout};
};

TEST_F(SettingsModelTest, BeginsWithWhatTheFileSays) {
    EXPECT_TRUE(model.pasteDirectly());
    EXPECT_FALSE(model.plainTextByDefault());
    EXPECT_TRUE(model.pinnedShortcutsEnabled());
    EXPECT_EQ(model.keepAtMost()->labels().at(model.keepAtMost()->index()), QStringLiteral("5000 clips"));
    EXPECT_EQ(model.secretSeconds()->labels().at(model.secretSeconds()->index()), QStringLiteral("After 1 minutes"));
    EXPECT_EQ(model.openPanelShortcut()->title(), QStringLiteral("⌃⌘V"));
}

TEST_F(SettingsModelTest, EachSwitchIsWrittenAtOnce) {
    model.setPasteDirectly(false);
    EXPECT_EQ(stored("pasteDirectly"), false);
    model.setPlainTextByDefault(true);
    EXPECT_EQ(stored("plainTextByDefault"), true);
    model.setSoundWhenPasting(true);
    EXPECT_EQ(stored("soundWhenPasting"), true);
    model.setPinnedShortcutsEnabled(false);
    EXPECT_EQ(stored("pinnedShortcutsEnabled"), false);
    EXPECT_EQ(reloads, 1);
}

TEST_F(SettingsModelTest, ALimitCountsAtOnce) {
    model.keepAtMost()->choose(0);
    EXPECT_EQ(stored("keepAtMost"), 200);
    model.keepForDays()->choose(1);
    EXPECT_EQ(stored("keepForDays"), 7);
    model.mediaLimitMB()->choose(3);
    EXPECT_EQ(stored("mediaLimitMB"), 5120);
    EXPECT_EQ(retentions, 3);
}

TEST_F(SettingsModelTest, TheLifetimeOfSecretsHasTheKeyOfSensitiveClips) {
    model.secretSeconds()->choose(2);
    EXPECT_EQ(stored("sensitiveSeconds"), 300);
    EXPECT_FALSE(stored("secretSeconds").isValid());
}

TEST_F(SettingsModelTest, TheLookIsStoredAndApplied) {
    QList<Preferences::Appearance> applied;
    model.actions.applyAppearance = [&](Preferences::Appearance appearance) { applied.append(appearance); };
    model.appearance()->choose(2);
    EXPECT_EQ(stored("appearance"), QStringLiteral("dark"));
    EXPECT_EQ(applied, QList({Preferences::Appearance::dark}));
}

TEST_F(SettingsModelTest, WhatAnotherProgramWritesIsShown) {
    const QSignalSpy changed(&model, &SettingsModel::changed);
    defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    defaults.setObject(QStringLiteral("keepForDays"), 14);
    model.refresh();
    EXPECT_TRUE(model.plainTextByDefault());
    EXPECT_EQ(model.keepForDays()->labels().at(model.keepForDays()->index()), QStringLiteral("14 days"));
    EXPECT_EQ(changed.count(), 1);
    model.refresh();
    EXPECT_EQ(changed.count(), 1) << "nothing new";
}

TEST_F(SettingsModelTest, AValueOutOfItsRangeIsShownAsItsDefault) {
    defaults.setObject(QStringLiteral("keepAtMost"), -5);
    defaults.setObject(QStringLiteral("recentInMenu"), 100'000);
    defaults.setObject(QStringLiteral("sensitiveSeconds"), 3);
    defaults.setObject(QStringLiteral("keepForDays"), -1);
    model.refresh();
    EXPECT_EQ(model.values().keepAtMost, 5000);
    EXPECT_EQ(model.values().recentInMenu, 10);
    EXPECT_EQ(model.values().secretSeconds, 10) << "nothing lives shorter";
    EXPECT_EQ(model.values().keepForDays, 0);
}

TEST_F(SettingsModelTest, ALoginItemThatIsRefusedSpringsBack) {
    bool isAllowed = false;
    model.actions.setLaunchAtLogin = [&isAllowed](bool) { return isAllowed; };
    model.setLaunchAtLogin(true);
    EXPECT_FALSE(model.launchAtLogin());
    EXPECT_FALSE(model.loginMessage().isEmpty());
    isAllowed = true;
    model.setLaunchAtLogin(true);
    EXPECT_TRUE(model.launchAtLogin());
    EXPECT_EQ(model.loginMessage(), QString());
}

TEST_F(SettingsModelTest, ScreenshotsThatCannotBeSavedGoOffAgain) {
    model.setSaveNewScreenshots(true);
    runUntil([this] { return !model.screenshotMessage().isEmpty(); });
    EXPECT_FALSE(model.saveNewScreenshots());
    EXPECT_EQ(stored("saveNewScreenshots"), false);
    model.actions.setScreenshotSaving = [](bool) -> QCoro::Task<bool> { co_return true; };
    model.setSaveNewScreenshots(true);
    EXPECT_EQ(model.screenshotMessage(), QString());
    EXPECT_TRUE(model.saveNewScreenshots());
}

QCoro::Task<bool> answerOf(OneShot<bool> folder) {
    co_return co_await folder;
}

TEST_F(SettingsModelTest, SwitchedOffBeforeTheFolderAnsweredNothingIsSaidOfIt) {
    const OneShot<bool> answer;
    const OneShot<bool> isOff;
    isOff.deliver(true);
    model.actions.setScreenshotSaving = [answer, isOff](bool isWanted) { return answerOf(isWanted ? answer : isOff); };
    model.setSaveNewScreenshots(true);
    model.setSaveNewScreenshots(false);
    answer.deliver(false);
    EXPECT_EQ(model.screenshotMessage(), QString());
    EXPECT_FALSE(model.saveNewScreenshots());
}

TEST_F(SettingsModelTest, ARecordedShortcutIsStoredAndItsProblemShown) {
    layout.scanCodes = {{38, KeyCode::a}};
    problems = {QStringLiteral("taken")};
    model.actions.offerShortcut = [] {
        return std::optional(ShortcutRegistrations::Offer{QStringLiteral("openPanelShortcut"),
                                                          {KeyCode::s, Modifier::control | Modifier::command}});
    };
    model.openPanelShortcut()->toggle();
    model.openPanelShortcut()->press(Qt::Key_A, Qt::ControlModifier, 38);
    EXPECT_EQ(suspensions, QList({true, false}));
    EXPECT_EQ(preferences.shortcut(QStringLiteral("openPanelShortcut")), (Shortcut{KeyCode::a, Modifier::command}));
    EXPECT_EQ(model.shortcutProblems(), problems);
    EXPECT_EQ(model.shortcutOffer(), QStringLiteral("⌃⌘S"));
    problems.clear();
    model.takeOfferedShortcut();
    EXPECT_EQ(preferences.shortcut(QStringLiteral("openPanelShortcut")),
              (Shortcut{KeyCode::s, Modifier::control | Modifier::command}));
    EXPECT_EQ(model.openPanelShortcut()->title(), QStringLiteral("⌃⌘S"));
    EXPECT_EQ(model.shortcutOffer(), QString());
    model.openPanelShortcut()->toggle();
    model.openPanelShortcut()->press(Qt::Key_Backspace, Qt::NoModifier, 22);
    EXPECT_FALSE(stored("openPanelShortcut").isValid()) << "the original is not stored";
}

TEST_F(SettingsModelTest, ThePanelGoesBackToTheMiddle) {
    preferences.setPanelPosition(std::pair(0.1, 0.2), QStringLiteral("screen"));
    model.refresh();
    EXPECT_TRUE(model.panelMoved());
    model.centerPanel();
    EXPECT_FALSE(model.panelMoved());
}

TEST_F(SettingsModelTest, TheSizeIsReadAgainAfterClearing) {
    qint64 clips = 3;
    model.actions.clipCount = [&clips] { return clips; };
    model.actions.historySize = [] { return QStringLiteral("1 MB"); };
    model.actions.deleteEverything = [&clips]() -> QCoro::Task<void> {
        clips = 0;
        co_return;
    };
    model.refreshAll();
    EXPECT_EQ(model.historySize(), QStringLiteral("3 clips · 1 MB"));
    model.deleteEverything();
    EXPECT_EQ(model.historySize(), QStringLiteral("0 clips · 1 MB"));
}

TEST_F(SettingsModelTest, ApplicationsAreChosenAndTakenOutAgain) {
    const QAbstractItemModelTester ignored(model.ignoredApps());
    const QAbstractItemModelTester offered(model.offeredApps());
    model.refreshAll();
    model.beginChoosing(false);
    EXPECT_EQ(model.sheet(), QStringLiteral("applications"));
    EXPECT_EQ(titles(*model.offeredApps()), QStringList({QStringLiteral("Editor"), QStringLiteral("Term")}));
    model.searchApplications(QStringLiteral("term"));
    model.toggleChosen(0);
    model.searchApplications(QString());
    EXPECT_EQ(model.chosenCount(), 1);
    model.finishChoosing();
    EXPECT_EQ(model.sheet(), QString());
    EXPECT_TRUE(preferences.ignoredApps().contains(QStringLiteral("org.example.Term")));
    EXPECT_EQ(titles(*model.ignoredApps()), QStringList(QStringLiteral("Term")));
    model.beginChoosing(false);
    EXPECT_EQ(titles(*model.offeredApps()), QStringList(QStringLiteral("Editor"))) << "no duplicate can be chosen";
    model.saveFrom(0);
    EXPECT_EQ(titles(*model.ignoredApps()), QStringList());
    EXPECT_EQ(preferences.ignoredApps().size(), 9) << "the password managers stay";
}

TEST_F(SettingsModelTest, TerminalsAreNamedByTheirWindows) {
    model.refreshAll();
    model.beginChoosing(true);
    model.toggleChosen(0);
    model.finishChoosing();
    EXPECT_EQ(Preferences::terminalApps(defaults), QStringList(QStringLiteral("editor-bin")));
    EXPECT_EQ(titles(*model.terminals()), QStringList(QStringLiteral("Editor")));
    model.setTerminal(0, false);
    EXPECT_EQ(Preferences::terminalApps(defaults), QStringList(QStringLiteral("!editor-bin")));
    model.setTerminal(0, true);
    EXPECT_EQ(Preferences::terminalApps(defaults), QStringList(QStringLiteral("editor-bin")));
    model.forgetTerminal(0);
    EXPECT_EQ(Preferences::terminalApps(defaults), QStringList());
}

TEST_F(SettingsModelTest, TheFolderThatIsClosedIsNamed) {
    model.actions.allowFileFolders = []() -> QCoro::Task<FileAccess::Result> {
        co_return FileAccess::Result{QStringLiteral("Documents")};
    };
    EXPECT_EQ(model.fileAccessMessage(), QString());
    model.allowFileFolders();
    EXPECT_TRUE(model.fileAccessMessage().contains(QStringLiteral("Documents")));
    EXPECT_FALSE(model.isFileAccessAllowed());
}

} // namespace
} // namespace vellumry
