// SPDX-License-Identifier: GPL-3.0-or-later
// Settings that count at once, and what is told of a start.
#include "shell/AppEnvironment.h"

#include "shell/AppEnvironmentWorld.h"

namespace vellumry {
namespace {

class AppSettingsTest : public AppEnvironmentWorld {
protected:
    AppSettingsTest() { settingsFolder = disk.path(); }
    /// The file was changed by somebody else. Of the folders that are watched the settings' is the first.
    void startWatched() {
        start();
        notice = folders->lastNotice;
        ASSERT_TRUE(notice);
    }
    void set(const char* key, const QVariant& value) {
        UserDefaults(disk.filePath(QStringLiteral("settings"))).setObject(QString::fromLatin1(key), value);
        notice();
    }
    std::function<void()> notice;
};

TEST_F(AppSettingsTest, AnotherShortcutForThePanelCountsAtOnce) {
    startWatched();
    const Shortcut other{KeyCode::b, Modifier::control | Modifier::command};
    EXPECT_FALSE(press(other));
    set("openPanelShortcut", other.toJson());
    EXPECT_FALSE(press(Shortcut::openPanelDefault()));
    EXPECT_TRUE(press(other));
    EXPECT_TRUE(environment->panel().isVisible());
}

TEST_F(AppSettingsTest, AnotherShortcutForTheStackCountsAtOnce) {
    startWatched();
    const Shortcut other{KeyCode::b, Modifier::control | Modifier::command};
    set("pasteStackShortcut", other.toJson());
    EXPECT_FALSE(press(Shortcut::pasteStackDefault()));
    EXPECT_TRUE(press(other));
    EXPECT_TRUE(environment->stack().isActive());
}

TEST_F(AppSettingsTest, TheKeysOfThePinnedClipsAreGivenBackAtOnce) {
    startWatched();
    EXPECT_TRUE(press(Shortcut::pinned(1)));
    set("pinnedShortcutsEnabled", false);
    EXPECT_FALSE(press(Shortcut::pinned(1)));
}

TEST_F(AppSettingsTest, AnotherShortcutThatIsTakenIsTold) {
    startWatched();
    const Shortcut other{KeyCode::b, Modifier::control | Modifier::command};
    hotKeys->taken.insert({other.keyCode, other.modifiers});
    set("openPanelShortcut", other.toJson());
    EXPECT_FALSE(seenTexts().filter(QStringLiteral("is already used by another app")).isEmpty());
}

TEST_F(AppSettingsTest, WhatAnotherProgramWritesIsShownInTheSettings) {
    startWatched();
    environment->openSettings();
    set("plainTextByDefault", true);
    EXPECT_TRUE(environment->settingsModel().plainTextByDefault());
}

TEST_F(AppSettingsTest, AShortcutFromTheSettingsCountsAtOnceAndIsToldThereAlone) {
    startWatched();
    const Shortcut other{KeyCode::b, Modifier::control | Modifier::command};
    hotKeys->taken.insert({other.keyCode, other.modifiers});
    defaults->setObject(QStringLiteral("openPanelShortcut"), other.toJson());
    environment->settingsModel().setPinnedShortcutsEnabled(false);
    EXPECT_EQ(environment->settingsModel().shortcutProblems().size(), 1);
    notice();
    EXPECT_TRUE(seenTexts().filter(QStringLiteral("is already used by another app")).isEmpty());
    environment->settingsModel().takeOfferedShortcut();
    EXPECT_EQ(environment->settingsModel().shortcutProblems(), QStringList());
    EXPECT_TRUE(environment->settingsModel().openPanelShortcut()->title().size() > 0);
}

TEST_F(AppSettingsTest, WhileOneIsRecordedNoShortcutFires) {
    startWatched();
    environment->settingsModel().openPanelShortcut()->toggle();
    EXPECT_FALSE(press(Shortcut::openPanelDefault()));
    environment->settingsModel().stopRecording();
    EXPECT_TRUE(press(Shortcut::openPanelDefault()));
}

TEST_F(AppSettingsTest, AFileThatIsChangedWhileOneIsRecordedCountsAtItsEnd) {
    startWatched();
    const Shortcut other{KeyCode::b, Modifier::control | Modifier::command};
    environment->settingsModel().openPanelShortcut()->toggle();
    set("openPanelShortcut", other.toJson());
    set("pinnedShortcutsEnabled", false);
    EXPECT_FALSE(press(other)) << "the recorder has the keyboard";
    EXPECT_FALSE(press(Shortcut::pasteStackDefault()));
    environment->settingsModel().stopRecording();
    EXPECT_TRUE(press(other));
    EXPECT_TRUE(press(Shortcut::pasteStackDefault()));
}

TEST_F(AppSettingsTest, FewerClipsAreKeptAtOnce) {
    startWatched();
    for (int index = 0; index < 210; ++index)
        copyText(qPrintable(QString::number(index)));
    EXPECT_EQ(store().clips().size(), 210U);
    environment->settingsModel().keepAtMost()->choose(0);
    EXPECT_EQ(store().clips().size(), 200U);
}

TEST_F(AppSettingsTest, ScreenshotsAreWatchedAndLeftAloneAtOnce) {
    startWatched();
    EXPECT_EQ(folders->activeCount, 1) << "the settings' alone";
    set("saveNewScreenshots", true);
    runUntil([this] { return folders->activeCount == 2; });
    set("saveNewScreenshots", false); // while it is still being switched on
    runUntil([this] { return folders->activeCount == 1; });
    EXPECT_FALSE(defaults->boolean(QStringLiteral("saveNewScreenshots")));
}

TEST_F(AppSettingsTest, WithoutAWatchTheyCountWithTheNextMaintenance) {
    settingsFolder.clear();
    start();
    const Shortcut other{KeyCode::b, Modifier::control | Modifier::command};
    defaults->setObject(QStringLiteral("openPanelShortcut"), other.toJson());
    EXPECT_FALSE(press(other));
    maintain();
    EXPECT_TRUE(press(other));
}

TEST_F(AppSettingsTest, TheFirstRunComesUntilItWasClosed) {
    isFirstStart = true;
    start();
    EXPECT_TRUE(sees("Welcome to Vellumry"));
    environment->setQuitting();
    start();
    EXPECT_TRUE(environment->onboarding().isVisible()) << "the end of the program is no answer";
    environment->onboarding().close();
    start();
    EXPECT_EQ(seenTexts(), QStringList());
}

TEST_F(AppSettingsTest, TheLastStepOfTheFirstRunEndsIt) {
    isFirstStart = true;
    start();
    for (int step = 0; step < 4; ++step)
        environment->onboardingModel().advance();
    EXPECT_FALSE(environment->onboarding().isVisible());
    EXPECT_TRUE(defaults->boolean(QStringLiteral("onboardingDone")));
}

TEST_F(AppSettingsTest, ThePanelCountsInTheFirstRunHoweverItIsOpened) {
    isFirstStart = true;
    start();
    EXPECT_TRUE(press(Shortcut::openPanelDefault()));
    EXPECT_TRUE(environment->onboardingModel().panelOpened());
}

TEST_F(AppSettingsTest, TheSampleOfTheFirstRunIsACopyLikeAnyOther) {
    isFirstStart = true;
    start();
    environment->onboardingModel().copySample();
    environment->watcher().tick(time.clock()());
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_EQ(store().clips().front()->title, OnboardingModel::sample());
}

TEST_F(AppSettingsTest, InTheFirstRunATakenShortcutIsToldThereAndNowhereElse) {
    isFirstStart = true;
    const Shortcut panel = Shortcut::openPanelDefault();
    takenKeys = {{panel.keyCode, panel.modifiers}};
    start();
    EXPECT_TRUE(seenTexts().filter(QStringLiteral("is already used by another app")).isEmpty());
    EXPECT_FALSE(environment->onboardingModel().shortcutProblem().isEmpty());
    environment->onboardingModel().takeOfferedShortcut();
    EXPECT_EQ(environment->onboardingModel().shortcutProblem(), QString());
}

TEST_F(AppSettingsTest, TheKeyringDoesNotAskDuringTheFirstRunBeforeTheUserWantsIt) {
    isFirstStart = true;
    keyring.refuses = true;
    start();
    EXPECT_TRUE(environment->onboardingModel().isKeyringClosed());
    EXPECT_TRUE(seenTexts().filter(QStringLiteral("Your keyring is locked")).isEmpty())
        << "no alert over the first run";
    keyring.refuses = false;
    environment->onboardingModel().unlockKeyring();
    runUntil([this] { return !environment->isMemoryOnly(); });
    EXPECT_FALSE(environment->onboardingModel().isKeyringClosed());
}

TEST_F(AppSettingsTest, AtALaterStartTheKeyringsQuestionIsExplained) {
    keyring.refuses = true;
    launch();
    environment->start();
    runUntil([] { return !seenTexts().filter(QStringLiteral("keyring's password")).isEmpty(); });
}

TEST_F(AppSettingsTest, AShortcutThatIsTakenIsToldAtTheStart) {
    const Shortcut panel = Shortcut::openPanelDefault();
    takenKeys = {{panel.keyCode, panel.modifiers}};
    start();
    EXPECT_FALSE(seenTexts().filter(QStringLiteral("is already used by another app")).isEmpty());
}

} // namespace
} // namespace vellumry
