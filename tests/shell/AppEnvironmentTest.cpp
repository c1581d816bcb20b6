// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppEnvironment.h"

#include "history/file/HistoryFile.h"
#include "shell/AppEnvironmentWorld.h"
#include "support/DamagedPage.h"

#include <QFile>

namespace vellumry {
namespace {

class AppEnvironmentTest : public AppEnvironmentWorld {};

TEST_F(AppEnvironmentTest, AKeyringThatIsLockedLeavesMemoryOnlyAndTheUserIsTold) {
    keyring.refuses = true;
    start();
    EXPECT_TRUE(environment->isMemoryOnly());
    EXPECT_TRUE(sees("Your keyring is locked"));
    copyText("held in memory");
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_EQ(store().clips().front()->title, QStringLiteral("held in memory"));
    EXPECT_FALSE(QFile::exists(historyFile()));
}

TEST_F(AppEnvironmentTest, TheClipboardIsWatchedBeforeTheHistoryIsThere) {
    launch();
    environment->start();
    copyText("from the first second");
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_TRUE(press(Shortcut::openPanelDefault()));
    EXPECT_FALSE(environment->isMemoryOnly()) << "nobody is warned of what is on its way";
    runUntil([this] { return environment->opening()->hasSettled(); }, 60'000);
    start();
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_EQ(store().clips().front()->title, QStringLiteral("from the first second"));
}

TEST_F(AppEnvironmentTest, AKeyringThatIsUnlockedLaterBringsTheHistoryAndKeepsWhatWasCopied) {
    start();
    keep("kept");
    keyring.refuses = true;
    start();
    copyText("copied meanwhile");
    EXPECT_TRUE(sees("Your keyring is locked"));
    keyring.refuses = false;
    keyring.onChanged();
    runUntil([this] { return !environment->isMemoryOnly(); }, 60'000);
    runUntil([this] { return !environment->opening()->failure(); }, 60'000);
    EXPECT_EQ(store().clips().size(), 2U);
    EXPECT_FALSE(sees("Your keyring is locked")) << "the alert has gone with its reason";
    start();
    EXPECT_EQ(store().clips().size(), 2U);
}

TEST_F(AppEnvironmentTest, TheOldHistoryIsBackWithTheKeyring) {
    start();
    EXPECT_FALSE(environment->isMemoryOnly());
    keep("kept");
    keyring.refuses = true;
    start();
    EXPECT_TRUE(store().clips().empty());
    keyring.refuses = false;
    start();
    EXPECT_FALSE(environment->isMemoryOnly());
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_EQ(store().clips().front()->title, QStringLiteral("kept"));
    EXPECT_EQ(seenTexts(), QStringList());
}

TEST_F(AppEnvironmentTest, AFolderThatCannotBeMadeLeavesMemoryOnlyUntilItCan) {
    QFile inTheWay(disk.filePath(QStringLiteral("data")));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    start();
    EXPECT_TRUE(environment->isMemoryOnly());
    EXPECT_TRUE(sees("Vellumry can't write to its folder"));
    hasRoom = false;
    copy(uniformtype::png, "png");
    EXPECT_EQ(askedFolder, disk.path()) << "the home folder stands in for the one that is not there";
    EXPECT_EQ(environment->historySize(), QString());
    copyText("copied meanwhile");
    ASSERT_TRUE(inTheWay.remove());
    runUntil([this] { return !environment->isMemoryOnly(); }, 60'000);
    EXPECT_EQ(store().clips().size(), 1U);
    EXPECT_TRUE(QFile::exists(historyFile()));
}

TEST_F(AppEnvironmentTest, AHistoryThatWasPutAsideIsToldUntilTheUserHasSeenIt) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(historyFile()).path()));
    QFile file(historyFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(10'000, 'x'));
    file.close();
    (void)keyring.keys.save(SymmetricKey::random(), KeyStore::Asking::forbidden);
    start();
    EXPECT_FALSE(environment->isMemoryOnly());
    EXPECT_TRUE(sees("Vellumry started a fresh history"));
    start();
    EXPECT_TRUE(sees("Vellumry started a fresh history")) << "nobody has dismissed it";
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible())
            window->close();
    }
    start();
    EXPECT_EQ(seenTexts(), QStringList());
}

TEST_F(AppEnvironmentTest, AHistoryThatProvesDamagedLaterIsPutAsideAndWhatWasCopiedMeanwhileIsKept) {
    start();
    for (int number = 0; number < 60; ++number)
        keep(qPrintable(QString::number(number).repeated(50)));
    environment.reset();
    damagePageOfRow(historyFile(), 0);
    launch();
    environment->start();
    copyText("copied meanwhile");
    runUntil([this] { return environment->opening()->hasSettled(); }, 60'000);
    EXPECT_TRUE(sees("Vellumry started a fresh history"));
    ASSERT_EQ(store().clips().size(), 1U);
    start();
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_EQ(store().clips().front()->title, QStringLiteral("copied meanwhile"));
    EXPECT_EQ(historyfile::backups(QFileInfo(historyFile()).path()).size(), 1);
}

TEST_F(AppEnvironmentTest, WhatIsOnThePasteboardAtLaunchIsNoClip) {
    platform = makePlatform();
    pasteboard->copyText(QStringLiteral("from before"));
    environment = AppEnvironment::launch(platform);
    environment->start();
    environment->watcher().tick(time.clock()());
    EXPECT_TRUE(store().clips().empty());
    copyText("from now");
    EXPECT_EQ(store().clips().size(), 1U);
}

TEST_F(AppEnvironmentTest, TheLimitsAtLaunchAreThoseOfThePreferences) {
    start();
    defaults->setObject(QStringLiteral("keepForDays"), 3);
    start();
    EXPECT_EQ(store().policy().maxAge, 3 * 86'400.0);
}

TEST_F(AppEnvironmentTest, ALimitChangedBehindItsBackCountsAtTheNextTick) {
    start();
    for (const char* text : {"one", "two", "three"})
        keep(text);
    defaults->setObject(QStringLiteral("keepAtMost"), 1);
    maintenance->pass(std::chrono::milliseconds(14'999));
    EXPECT_EQ(store().clips().size(), 3U);
    maintenance->pass(std::chrono::milliseconds(1));
    ASSERT_EQ(store().clips().size(), 1U);
    EXPECT_EQ(store().clips().front()->title, QStringLiteral("three"));
}

TEST_F(AppEnvironmentTest, ClipsThatGrewTooOldBetweenTwoRunsGoAtTheStart) {
    start();
    defaults->setObject(QStringLiteral("keepForDays"), 1);
    keep("old");
    time.pass(2 * 86'400);
    start();
    EXPECT_TRUE(store().clips().empty());
}

TEST_F(AppEnvironmentTest, ASecretGoesAtItsTime) {
    start();
    copyText("4111 1111 1111 1111");
    ASSERT_EQ(store().clips().size(), 1U);
    ASSERT_TRUE(store().nextExpiry());
    EXPECT_NEAR(*time.waitsFor(), time.clock()() + 60.05, 1);
    time.pass(62);
    EXPECT_TRUE(store().clips().empty());
}

TEST_F(AppEnvironmentTest, MemoryIsGivenBackOnceAfterEachTimeOfWork) {
    start();
    maintain();
    EXPECT_EQ(memoryReturns, 1);
    maintain();
    EXPECT_EQ(memoryReturns, 1);
    environment->openPanel();
    maintain();
    EXPECT_EQ(memoryReturns, 1) << "not while the panel is open";
    environment->togglePanel();
    maintain();
    maintain();
    EXPECT_EQ(memoryReturns, 2);
}

TEST_F(AppEnvironmentTest, MemoryAndTheReaderOfPicturesGoAMomentBehindThePanel) {
    start();
    maintain();
    environment->openPanel();
    environment->togglePanel();
    runUntil([this] { return memoryReturns == 2; });
    EXPECT_EQ(images->rests, 1);
}

TEST_F(AppEnvironmentTest, AWindowThatWasOpenForLongGivesItsMemoryBackWhenItIsClosed) {
    start();
    maintain();
    environment->openSettings();
    maintain();
    EXPECT_EQ(memoryReturns, 1);
    environment->settings().close();
    maintain();
    EXPECT_EQ(memoryReturns, 2);
}

TEST_F(AppEnvironmentTest, AFullDiskIsToldOnceAnHour) {
    const char* const warning = "Your Mac is almost full. Vellumry saves text only for now";
    const ToastMessage other{QStringLiteral("pin.fill"), QStringLiteral("Pinned"), ToastMessage::Tone::success};
    start();
    hasRoom = false;
    copy(uniformtype::png, "one");
    EXPECT_TRUE(sees(warning));
    EXPECT_EQ(askedFolder, QFileInfo(historyFile()).path());
    EXPECT_TRUE(store().clips().empty());
    environment->showToast(other);
    time.pass(3599);
    copy(uniformtype::png, "two");
    EXPECT_FALSE(sees(warning));
    time.pass(2);
    copy(uniformtype::png, "three");
    EXPECT_TRUE(sees(warning));
    hasRoom = true;
    copy(uniformtype::png, "four");
    EXPECT_EQ(store().clips().size(), 1U);
}

TEST_F(AppEnvironmentTest, ACopyThatWasToBeIgnoredIsTold) {
    start();
    environment->watcher().ignoreNextCopy = true;
    copyText("not for the history");
    EXPECT_TRUE(sees("Skipped. That copy wasn't saved"));
    EXPECT_TRUE(store().clips().empty());
}

TEST_F(AppEnvironmentTest, ACopyIsNoticed) {
    start();
    pasteboard->copyText(QStringLiteral("nobody ticks"));
    runUntil([&] { return store().clips().size() == 1; });
}

TEST_F(AppEnvironmentTest, TheTextOfACopiedPictureIsRead) {
    // In memory, a copy is stored within the tick: nothing else can have asked for the reading.
    keyring.refuses = true;
    start();
    copy(uniformtype::png, "png");
    ASSERT_TRUE(environment->textReader().isReading(store().clips().front()->id));
    textReader->readings = {{TextReader::Outcome::text, QStringLiteral("b0ard1ng pa55")}};
    textReader->answer({TextReader::Outcome::text, QStringLiteral("boarding pass")});
    EXPECT_EQ(textReader->requests.front().image, "png");
    EXPECT_EQ(store().clips().front()->imageText, QStringLiteral("boarding pass"));
}

TEST_F(AppEnvironmentTest, ACopySurvivesItsProgram) {
    start();
    keep("words of a program that ends");
    pasteboard->ownerGoes();
    runUntil([&] { return pasteboard->isOurs(); });
    EXPECT_EQ(plainText(pasteboard->items()), QStringLiteral("words of a program that ends"));
}

TEST_F(AppEnvironmentTest, TheShortcutOpensAndClosesThePanel) {
    start();
    EXPECT_TRUE(press(Shortcut::openPanelDefault()));
    EXPECT_TRUE(environment->panel().isVisible());
    EXPECT_TRUE(press(Shortcut::openPanelDefault()));
    EXPECT_FALSE(environment->panel().isVisible());
    environment->suspendShortcuts(true);
    EXPECT_FALSE(press(Shortcut::openPanelDefault()));
    environment->suspendShortcuts(false);
    EXPECT_TRUE(press(Shortcut::openPanelDefault()));
}

TEST_F(AppEnvironmentTest, AShortcutThatAnotherProgramHoldsIsReported) {
    start();
    EXPECT_EQ(environment->reloadShortcuts(), QStringList());
    const Shortcut stack = Shortcut::pasteStackDefault();
    environment->suspendShortcuts(true);
    hotKeys->taken.insert({stack.keyCode, stack.modifiers});
    environment->suspendShortcuts(false);
    EXPECT_EQ(environment->settingsModel().shortcutProblems().size(), 1);
}

TEST_F(AppEnvironmentTest, AShortcutPastesAPinnedClipWithASoundForWhoWantsIt) {
    start();
    keepPinned("pinned words");
    EXPECT_TRUE(press(Shortcut::pinned(1)));
    runUntil([&] { return target->presses == 1; });
    EXPECT_EQ(plainText(pasteboard->items()), QStringLiteral("pinned words"));
    EXPECT_TRUE(sounds->played.empty());
    defaults->setObject(QStringLiteral("soundWhenPasting"), true);
    EXPECT_TRUE(press(Shortcut::pinned(1)));
    runUntil([&] { return target->presses == 2; });
    EXPECT_EQ(sounds->played.size(), 1U);
}

TEST_F(AppEnvironmentTest, TheShortcutOfTheStackStartsItAndStopsIt) {
    start();
    EXPECT_TRUE(press(Shortcut::pasteStackDefault()));
    EXPECT_TRUE(environment->stack().isActive());
    EXPECT_TRUE(pasteKeys->isStarted);
    copyText("first");
    EXPECT_EQ(environment->stack().count(), 1);
    EXPECT_TRUE(press(Shortcut::pasteStackDefault()));
    EXPECT_FALSE(environment->stack().isActive());
    EXPECT_FALSE(pasteKeys->isStarted);
}

} // namespace
} // namespace vellumry
