// SPDX-License-Identifier: GPL-3.0-or-later
// What is asked of the program from outside its windows.
#include "shell/AppDelegate.h"

#include "shell/AppWorld.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

namespace vellumry {
namespace {

class AppActionsTest : public AppWorld {
protected:
    AppActionsTest()
        : delegate(makePlatform()) {
        bool isUp = false;
        delegate.onStarted = [&isUp] { isUp = true; };
        EXPECT_TRUE(delegate.applicationDidFinishLaunching());
        runUntil([&isUp] { return isUp; });
        delegate.onStarted = nullptr;
    }
    void ask(const char* action) { instance->onAction(QString::fromLatin1(action)); }
    [[nodiscard]] AppEnvironment& environment() const { return *delegate.environment(); }
    [[nodiscard]] std::size_t clips() const { return environment().store().clips().size(); }
    void copyText(const char* text) {
        pasteboard->copyText(QString::fromUtf8(text));
        environment().watcher().tick(time.clock()());
    }
    /// The question is asked, and has the keyboard.
    static void waitForQuestion() {
        runUntil([] { return question() != nullptr && question()->isActive(); });
    }
    /// The window that asks a question, or null.
    [[nodiscard]] static QQuickView* question() {
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            auto* view = qobject_cast<QQuickView*>(window);
            if (view && view->isVisible() && shownTexts(view->rootObject()).contains(QStringLiteral("Clear History")))
                return view;
        }
        return nullptr;
    }
    /// The text itself in the window, or null.
    [[nodiscard]] static const QQuickItem* itemShowing(const QQuickItem& root, const QString& text) {
        if (root.inherits("QQuickText") && root.property("text").toString() == text)
            return &root;
        for (const QQuickItem* child : root.childItems()) {
            if (const QQuickItem* found = itemShowing(*child, text))
                return found;
        }
        return nullptr;
    }

    AppDelegate delegate;
};

TEST_F(AppActionsTest, PauseHoldsUntilItIsAskedForAgain) {
    ask("pause");
    EXPECT_TRUE(sees("Paused. Nothing you copy is saved until you resume"));
    copyText("during the pause");
    EXPECT_EQ(clips(), 0U);
    ask("pause");
    EXPECT_TRUE(sees("Resumed. What you copy is saved again"));
    environment().watcher().tick(time.clock()());
    EXPECT_EQ(clips(), 0U) << "what was copied in the pause stays out";
    copyText("afterwards");
    EXPECT_EQ(clips(), 1U);
}

TEST_F(AppActionsTest, TheNextCopyIsIgnoredUnlessItIsTakenBack) {
    ask("ignore-next");
    EXPECT_TRUE(sees("Your next copy won't be saved"));
    ask("ignore-next");
    copyText("kept");
    EXPECT_EQ(clips(), 1U);
    ask("ignore-next");
    copyText("not kept");
    EXPECT_EQ(clips(), 1U);
}

TEST_F(AppActionsTest, ClearingAsksFirstAndTheWayOutIsTheFirstKey) {
    copyText("one");
    ask("clear");
    waitForQuestion();
    EXPECT_EQ(clips(), 1U) << "not before the answer";
    ask("clear");
    QTest::keyClick(question(), Qt::Key_Return);
    runUntil([] { return question() == nullptr; });
    EXPECT_EQ(clips(), 1U);
}

TEST_F(AppActionsTest, WhatCannotBeUndoneIsRedInTheQuestion) {
    ask("clear");
    waitForQuestion();
    const auto isRed = [](const char* text) {
        const QQuickItem* label = itemShowing(*question()->rootObject(), QString::fromLatin1(text));
        const QColor ink = label ? label->property("color").value<QColor>() : QColor();
        return ink.red() > 2 * ink.green() && ink.red() > 2 * ink.blue();
    };
    EXPECT_TRUE(isRed("Clear History"));
    EXPECT_FALSE(isRed("Cancel"));
}

TEST_F(AppActionsTest, AQuestionIsNotHiddenByThePanel) {
    environment().panel().show();
    ASSERT_TRUE(environment().panel().isVisible());
    ask("clear");
    waitForQuestion();
    EXPECT_FALSE(environment().panel().isVisible());
}

TEST_F(AppActionsTest, ClearingKeepsThePins) {
    copyText("one");
    awaited(environment().store().setPinned(environment().store().clips().front()->id, true, time.clock()()));
    copyText("two");
    ask("clear");
    waitForQuestion();
    QTest::keyClick(question(), Qt::Key_Tab);
    QTest::keyClick(question(), Qt::Key_Return);
    runUntil([] { return question() == nullptr; });
    runUntil([this] { return clips() == 1; });
    EXPECT_EQ(environment().store().clips().front()->title, QStringLiteral("one"));
}

TEST_F(AppActionsTest, ScreenshotsAreSwitchedOnAndOff) {
    ask("toggle-screenshots");
    runUntil([this] { return defaults->boolean(QStringLiteral("saveNewScreenshots")); });
    ask("toggle-screenshots");
    EXPECT_FALSE(defaults->boolean(QStringLiteral("saveNewScreenshots")));
}

TEST_F(AppActionsTest, TheStatusTellsWhatTheyDid) {
    copyText("canary of the status");
    ask("pause");
    const QString status = instance->onStatus();
    EXPECT_TRUE(status.contains(QStringLiteral("history: clips 1, pinned 0, sensitive 0"))) << qPrintable(status);
    EXPECT_TRUE(status.contains(QStringLiteral("capture: paused"))) << qPrintable(status);
    EXPECT_FALSE(status.contains(QStringLiteral("canary")));
}

TEST_F(AppActionsTest, TheStatusTellsWhetherThereIsATrayNow) {
    EXPECT_TRUE(instance->onStatus().contains(QStringLiteral("found: tray")));
    statusItem->hasPlace = false;
    EXPECT_TRUE(instance->onStatus().contains(QStringLiteral("missing: tray")));
}

TEST_F(AppActionsTest, QuitLeavesTheEventLoop) {
    QTimer::singleShot(0, &delegate, [this] { ask("quit"); });
    QCoreApplication::exec();
    SUCCEED() << "a program that stays would run into the limit of the test";
}

} // namespace
} // namespace vellumry
