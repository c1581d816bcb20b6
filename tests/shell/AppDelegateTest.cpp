// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppDelegate.h"

#include "shell/AppWorld.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QQuickItem>
#include <QTest>
#include <algorithm>

namespace vellumry {
namespace {

class AppDelegateTest : public AppWorld {
protected:
    AppDelegateTest()
        : delegate(makePlatform()) {
        delegate.onStarted = [this] { ++starts; };
    }
    /// The program is up.
    void run() {
        ASSERT_TRUE(delegate.applicationDidFinishLaunching());
        runUntil([this] { return starts > 0; });
    }

    AppDelegate delegate;
    int starts = 0;
};

TEST_F(AppDelegateTest, ASecondCopyBuildsNothing) {
    instance->hasOther = true;
    EXPECT_FALSE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(delegate.environment(), nullptr);
    EXPECT_FALSE(QFile::exists(historyFile()));
    EXPECT_FALSE(keyring.keys.key());
    EXPECT_EQ(starts, 0);
}

TEST_F(AppDelegateTest, TheEnvironmentComesUpStartedAndIsAnnouncedOnce) {
    run();
    ASSERT_NE(delegate.environment(), nullptr);
    EXPECT_EQ(starts, 1);
    EXPECT_FALSE(hotKeys->grabbed.empty());
    EXPECT_TRUE(QFile::exists(historyFile()));
}

TEST_F(AppDelegateTest, StartingItAgainBringsTheSettings) {
    run();
    instance->onReopen();
    EXPECT_TRUE(delegate.environment()->settings().isVisible());
    EXPECT_FALSE(delegate.environment()->panel().isVisible());
}

TEST_F(AppDelegateTest, StartingItAgainLeavesAnOpenWindowAsItIs) {
    run();
    instance->onReopen();
    QQuickView* window = delegate.environment()->settings().window();
    window->rootObject()->setProperty("pane", 3);
    instance->onReopen();
    EXPECT_EQ(window->rootObject()->property("pane"), 3);
    runUntil([window] { return QGuiApplication::focusWindow() == window; });
}

TEST_F(AppDelegateTest, EveryWindowHasTheKeysOfTheProgram) {
    run();
    instance->onAction(QStringLiteral("open-panel"));
    const auto panels = QGuiApplication::topLevelWindows();
    const auto panel = std::ranges::find_if(panels, [](const QWindow* window) { return window->isVisible(); });
    ASSERT_NE(panel, panels.end());
    QTest::keyClick(*panel, Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_TRUE(delegate.environment()->settings().isVisible());
    QQuickView* window = delegate.environment()->settings().window();
    SettingsModel& model = delegate.environment()->settingsModel();
    // A free shortcut.
    model.openPanelShortcut()->toggle();
    QTest::keyClick(window, Qt::Key_Comma, Qt::ControlModifier);
    QTest::keyClick(window, Qt::Key_Q, Qt::ControlModifier);
    model.stopRecording();
    bool isEnding = false;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &delegate, [&isEnding] { isEnding = true; });
    QTimer::singleShot(0, &delegate, [window] { QTest::keyClick(window, Qt::Key_Q, Qt::ControlModifier); });
    QCoreApplication::exec();
    EXPECT_TRUE(isEnding) << "a program that stays would run into the limit of the test";
}

TEST_F(AppDelegateTest, CtrlQInThePanelIsThePanels) {
    run();
    instance->onAction(QStringLiteral("open-panel"));
    const auto panels = QGuiApplication::topLevelWindows();
    const auto panel = std::ranges::find_if(panels, [](const QWindow* window) { return window->isVisible(); });
    ASSERT_NE(panel, panels.end());
    QTest::keyClick(*panel, Qt::Key_Q, Qt::ControlModifier);
    runUntil([this] { return !delegate.environment()->panel().isVisible(); });
}

TEST_F(AppDelegateTest, TheSettingsComeInPlaceOfThePanel) {
    run();
    instance->onAction(QStringLiteral("open-panel"));
    instance->onAction(QStringLiteral("open-settings"));
    EXPECT_TRUE(delegate.environment()->settings().isVisible());
    EXPECT_FALSE(delegate.environment()->panel().isVisible());
}

TEST_F(AppDelegateTest, TheDesktopsKeyBindingsDoWhatTheShortcutsDo) {
    run();
    const AppEnvironment& environment = *delegate.environment();
    for (const bool isUp : {true, false}) {
        instance->onAction(QStringLiteral("open-panel"));
        EXPECT_EQ(delegate.environment()->panel().isVisible(), isUp);
    }
    for (const bool isOn : {true, false}) {
        instance->onAction(QStringLiteral("toggle-stack"));
        EXPECT_EQ(delegate.environment()->stack().isActive(), isOn);
    }
    instance->onAction(QStringLiteral("fly"));
    EXPECT_FALSE(environment.isQuitting());
}

TEST_F(AppDelegateTest, APinIsPastedByItsNumberWhereNoProgramCanHoldKeys) {
    run();
    ClipStore& store = delegate.environment()->store();
    for (const char* text : {"first", "second"}) {
        pasteboard->copy(uniformtype::utf8PlainText, text);
        delegate.environment()->watcher().tick(time.clock()());
        awaited(store.markUsed(store.clips().front()->id, time.clock()()));
        awaited(store.setPinned(store.clips().front()->id, true, time.clock()()));
    }
    for (const char* unknown : {"paste-pin-0", "paste-pin-3", "paste-pin-10", "paste-pin-", "paste-pin-1x"})
        instance->onAction(QString::fromLatin1(unknown));
    EXPECT_EQ(target->presses, 0);
    instance->onAction(QStringLiteral("paste-pin-2"));
    runUntil([&] { return target->presses == 1; });
    const QString pasted = plainText(pasteboard->items()).value_or(QString());
    instance->onAction(QStringLiteral("paste-pin-1"));
    runUntil([&] { return target->presses == 2; });
    const QStringList both{pasted, plainText(pasteboard->items()).value_or(QString())};
    EXPECT_EQ(both, QStringList({QStringLiteral("second"), QStringLiteral("first")}));
}

TEST_F(AppDelegateTest, ThePanelDoesNotWaitForTheHistory) {
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    ASSERT_EQ(starts, 0);
    instance->onAction(QStringLiteral("open-panel"));
    EXPECT_TRUE(delegate.environment()->panel().isVisible());
}

TEST_F(AppDelegateTest, TheEnvironmentKnowsThatTheProgramEnds) {
    run();
    EXPECT_FALSE(delegate.environment()->isQuitting());
    delegate.applicationShouldTerminate();
    EXPECT_TRUE(delegate.environment()->isQuitting());
}

TEST_F(AppDelegateTest, AnAlertThatTheEndTakesAwayCountsAsUnread) {
    ASSERT_TRUE(QDir().mkpath(disk.filePath(QStringLiteral("data/Vellumry"))));
    QFile file(historyFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(20'000, 'x'));
    file.close();
    run();
    ASSERT_TRUE(sees("Vellumry started a fresh history"));
    QEvent quit(QEvent::Quit); // as at the end of a session: Qt closes all windows
    QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
    EXPECT_FALSE(sees("Vellumry started a fresh history"));
    EXPECT_FALSE(defaults->stringArray(QStringLiteral("dismissedBackups")));
}

} // namespace
} // namespace vellumry
