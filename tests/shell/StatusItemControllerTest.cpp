// SPDX-License-Identifier: GPL-3.0-or-later
// The program's menu as the running program shows it, and what its entries do there.
#include "shell/AppEnvironment.h"

#include "shell/AppEnvironmentWorld.h"

namespace vellumry {
namespace {

class StatusItemControllerTest : public AppEnvironmentWorld {
protected:
    [[nodiscard]] std::vector<ActionMenuItem> menu() const { return environment->statusMenu(); }
    [[nodiscard]] static ActionMenuItem entryOf(const std::vector<ActionMenuItem>& items, const char* text) {
        for (const ActionMenuItem& item : items) {
            if (item.text == QString::fromUtf8(text))
                return item;
        }
        ADD_FAILURE() << "no entry " << text;
        return {.handler = [] {}};
    }
    [[nodiscard]] ActionMenuItem entry(const char* text) const { return entryOf(menu(), text); }
    [[nodiscard]] bool has(const char* text) const {
        return std::ranges::any_of(menu(), [text](const auto& item) { return item.text == QString::fromUtf8(text); });
    }
    [[nodiscard]] QString pastedText() const { return plainText(pasteboard->items()).value_or(QString()); }
};

TEST_F(StatusItemControllerTest, ARecentClipIsPastedWhereTheUserWasTyping) {
    start();
    keep("first");
    keep("second");
    entry("first").handler();
    runUntil([this] { return target->presses == 1; });
    EXPECT_EQ(pastedText(), QStringLiteral("first"));
}

TEST_F(StatusItemControllerTest, WhatBecameOfAPasteIsTold) {
    start();
    keep("first");
    target->trusted = false;
    entry("first").handler();
    runUntil([] { return sees("Copied. Press ⌘V to paste"); });
    EXPECT_EQ(target->presses, 0);
}

TEST_F(StatusItemControllerTest, APinnedClipIsPastedAndOneUnpinnedMeanwhileIsNot) {
    start();
    keep("another");
    const QUuid another = store().clips().front()->id;
    keepPinned("pinned");
    const auto open = menu();
    const QUuid id = store().clips().front()->id;
    entryOf(open, "pinned").handler();
    runUntil([this] { return target->presses == 1; });
    awaited(store().setPinned(id, false, time.clock()()));
    awaited(store().setPinned(another, true, time.clock()()));
    entryOf(open, "pinned").handler();
    EXPECT_EQ(pastedText(), QStringLiteral("pinned")) << "not the clip that took its number";
    EXPECT_EQ(target->presses, 1);
}

TEST_F(StatusItemControllerTest, ARowWhoseClipHasGoneDoesNothing) {
    start();
    keep("first");
    const auto open = menu();
    awaited(store().clearHistory(false));
    entryOf(open, "first").handler();
    EXPECT_EQ(target->presses, 0);
    EXPECT_TRUE(store().clips().empty());
}

TEST_F(StatusItemControllerTest, AMenuThatOutlivesTheProgramDoesNothing) {
    start();
    keep("first");
    const auto open = menu();
    environment.reset();
    entryOf(open, "first").handler();
    entryOf(open, "Ignore Next Copy").handler();
    SUCCEED();
}

TEST_F(StatusItemControllerTest, RecentClipsAreAsManyAsTheUserWants) {
    start();
    copyText("first");
    copyText("second");
    EXPECT_TRUE(has("first"));
    defaults->setObject(QStringLiteral("recentInMenu"), 1);
    EXPECT_TRUE(has("second"));
    EXPECT_FALSE(has("first"));
    defaults->setObject(QStringLiteral("recentInMenu"), 0);
    EXPECT_FALSE(has("Recent"));
    // More than a screen has room for counts as nothing said, here as in the settings window.
    defaults->setObject(QStringLiteral("recentInMenu"), 101);
    environment->settingsModel().refresh();
    EXPECT_TRUE(has("first"));
    EXPECT_EQ(environment->settingsModel().values().recentInMenu, 10);
}

TEST_F(StatusItemControllerTest, PinnedClipsAreNotAmongTheRecent) {
    start();
    keep("first");
    keepPinned("second");
    const auto items = menu();
    EXPECT_EQ(std::ranges::count(items, QStringLiteral("second"), &ActionMenuItem::text), 1);
    EXPECT_TRUE(has("Pinned"));
    EXPECT_TRUE(has("Recent"));
}

TEST_F(StatusItemControllerTest, WhatWasCopiedInAPauseStaysOutAfterIt) {
    start();
    entryOf(entry("Pause Capture").items, "Until I Resume").handler();
    copyText("in the pause");
    EXPECT_TRUE(store().clips().empty());
    entry("Resume Capture").handler();
    environment->watcher().tick(time.clock()());
    EXPECT_TRUE(store().clips().empty());
    copyText("afterwards");
    EXPECT_EQ(store().clips().size(), 1U);
}

TEST_F(StatusItemControllerTest, APauseOfFiveMinutesEndsByItself) {
    start();
    entryOf(entry("Pause Capture").items, "For 5 Minutes").handler();
    EXPECT_TRUE(environment->isPaused());
    time.pass(299);
    EXPECT_TRUE(environment->isPaused());
    time.pass(1);
    EXPECT_FALSE(environment->isPaused());
    EXPECT_TRUE(has("Pause Capture"));
}

TEST_F(StatusItemControllerTest, IgnoringTheNextCopyIsToldWhenItBegins) {
    start();
    entry("Ignore Next Copy").handler();
    EXPECT_TRUE(sees("Your next copy won't be saved"));
    EXPECT_EQ(entry("Ignore Next Copy").check, ActionMenuItem::Check::on);
    copyText("private");
    EXPECT_TRUE(store().clips().empty());
    EXPECT_EQ(entry("Ignore Next Copy").check, ActionMenuItem::Check::off);
}

TEST_F(StatusItemControllerTest, TheStackIsStartedEmptyAndStopped) {
    start();
    entry("Start Paste Stack").handler();
    EXPECT_TRUE(environment->stack().isActive());
    EXPECT_EQ(environment->stack().count(), 0);
    entry("Stop Paste Stack").handler();
    EXPECT_FALSE(environment->stack().isActive());
}

TEST_F(StatusItemControllerTest, ThePanelIsOpened) {
    start();
    entry("Open Vellumry").handler();
    EXPECT_TRUE(environment->panel().isVisible());
}

TEST_F(StatusItemControllerTest, ClearingAsksFirst) {
    start();
    copyText("kept");
    entry("Clear History…").handler();
    EXPECT_TRUE(sees("Clear your clipboard history?"));
    EXPECT_EQ(store().clips().size(), 1U);
}

TEST_F(StatusItemControllerTest, TheIconIsThereBeforeTheHistoryAndAsksForTheMenuAtEachOpening) {
    launch();
    EXPECT_FALSE(statusItem->isInstalled);
    environment->start();
    EXPECT_TRUE(statusItem->isInstalled);
    runUntil([this] { return environment->opening()->hasSettled(); }, 60'000);
    const int before = statusItem->changes;
    copyText("shown at the next opening");
    EXPECT_GT(statusItem->changes, before);
    EXPECT_EQ(entryOf(statusItem->menu(), "shown at the next opening").symbol, QStringLiteral("text.alignleft"));
    environment.reset();
    EXPECT_TRUE(statusItem->menu().empty()) << "the icon outlives the program's inside by a moment";
}

} // namespace
} // namespace vellumry
