// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/WatcherWorld.h"
#include "support/Eventually.h"

#include <new>

namespace vellumry {
namespace {

/// Copies that take their time: other ticks come while one is read.
class ClipboardWatcherOrderTest : public WatcherWorld {
protected:
    const PasteboardItem twice{{{uniformtype::utf8PlainText, "twice"}, {uniformtype::html, "<b>twice</b>"}}, {}};
    const PasteboardItem note{{{uniformtype::fileUrl, "file:///tmp/note.txt"}}, {}};
};

TEST_F(ClipboardWatcherOrderTest, ATickDoesNotWaitForAHangingOwner) {
    pasteboard.hangingTypes = {uniformtype::utf8PlainText};
    copyAndTick("slow", 100);
    EXPECT_EQ(history(), QStringList());
    pasteboard.answerHanging();
    EXPECT_EQ(history(), QStringList{QStringLiteral("slow")});
    EXPECT_EQ(store.clips().front()->lastUsedAt, 100);
}

TEST_F(ClipboardWatcherOrderTest, ANewCopyEndsTheReadingOfTheOneBefore) {
    pasteboard.hangingTypes = {uniformtype::utf8PlainText};
    copyAndTick("hangs", 100);
    pasteboard.hangingTypes.clear();
    copyAndTick("next", 101);
    EXPECT_EQ(history(), QStringList{QStringLiteral("next")});
    EXPECT_EQ(pasteboard.waitingCount(), 0);
}

TEST_F(ClipboardWatcherOrderTest, WhatWasReadBeforeTheDeadlineCounts) {
    const QString hanging = QStringLiteral("application/x-hangs");
    pasteboard.hangingTypes = {hanging};
    pasteboard.copy({PasteboardItem{{{uniformtype::utf8PlainText, "text"}, {hanging, "x"}}, {}}});
    watcher->tick(100);
    pasteboard.passDeadline();
    EXPECT_EQ(history(), QStringList{QStringLiteral("text")});
}

TEST_F(ClipboardWatcherOrderTest, AnOwnerThatHangsAtFirstLeavesTheNextCopyAlone) {
    pasteboard.hangsBeginReading = true;
    copyAndTick("hangs", 100);
    pasteboard.hangsBeginReading = false;
    copyAndTick("next", 101);
    EXPECT_EQ(history(), QStringList{QStringLiteral("next")});
}

/// File references are made elsewhere, so a copy of files takes longer than a text that comes after it.
TEST_F(ClipboardWatcherOrderTest, CopiesReachTheHistoryInTheirOrder) {
    pasteboard.copy(uniformtype::fileUrl, "file:///tmp/first.txt");
    watcher->tick(100);
    copyAndTick("second", 101);
    EXPECT_EQ(readTitles, QStringList());
    ASSERT_TRUE(eventually([this] { return captured.size() == 2; }));
    EXPECT_EQ(readTitles, QStringList({QStringLiteral("first.txt"), QStringLiteral("second")}));
    EXPECT_EQ(history(), QStringList({QStringLiteral("second"), QStringLiteral("first.txt")}));
    ASSERT_EQ(stored.size(), 2u);
    EXPECT_EQ(stored[0].second + 1, stored[1].second);
}

TEST_F(ClipboardWatcherOrderTest, ADestroyedWatcherLeavesItsReadingsInPeace) {
    pasteboard.hangingTypes = {uniformtype::utf8PlainText};
    copyAndTick("late", 100);
    watcher.reset();
    pasteboard.answerHanging();
    EXPECT_EQ(history(), QStringList());
}

TEST_F(ClipboardWatcherOrderTest, AClosureMayDestroyTheWatcher) {
    pasteboard.copy(uniformtype::fileUrl, "file:///tmp/first.txt");
    watcher->tick(100);
    watcher->onCapture = [this](const ClipRef&) { watcher.reset(); };
    copyAndTick("second", 101);
    ASSERT_TRUE(eventually([this] { return watcher == nullptr; }));
    EXPECT_EQ(history(), QStringList{QStringLiteral("first.txt")});
}

TEST_F(ClipboardWatcherOrderTest, NotificationsLeadToATick) {
    watcher->start();
    watcher->start();
    pasteboard.copyText(QStringLiteral("one"));
    EXPECT_EQ(pasteboard.requests.size(), 1u) << "read at once";
    EXPECT_FALSE(watcher->isReading());
    EXPECT_EQ(history(), QStringList{QStringLiteral("one")}) << "and held back by nothing";
    ASSERT_TRUE(eventually([this] { return !captured.isEmpty(); }));
}

TEST_F(ClipboardWatcherOrderTest, ABurstOfCopiesIsKeptWhole) {
    watcher->start();
    QStringList copied;
    for (int i = 0; i < 100; ++i) {
        copied.prepend(QStringLiteral("copy %1").arg(i));
        pasteboard.copyText(copied.front());
    }
    ASSERT_TRUE(eventually([&] { return captured.size() == copied.size(); }));
    EXPECT_EQ(history(), copied);
    EXPECT_EQ(watcher->overtakenCopies(), 0);
}

/// An editor that sets the text first and the formats a moment later.
TEST_F(ClipboardWatcherOrderTest, ACopyThatIsWrittenTwiceIsOneClip) {
    watcher->start();
    pasteboard.copyText(QStringLiteral("twice"));
    ASSERT_EQ(store.clips().size(), 1u) << "the history does not wait for the formats";
    const QUuid id = store.clips().front()->id;
    pasteboard.copy({twice});
    pasteboard.copyText(QStringLiteral("next"));
    ASSERT_TRUE(eventually([this] { return captured.size() == 2; }));
    EXPECT_EQ(readTitles, QStringList({QStringLiteral("twice"), QStringLiteral("next")}));
    ASSERT_EQ(store.clips().size(), 2u);
    EXPECT_EQ(store.clips()[1]->kind, ClipKind::richText);
    EXPECT_EQ(store.clips()[1]->id, id);
}

TEST_F(ClipboardWatcherOrderTest, ATextThatItsProgramTurnsIntoFilesIsOneClip) {
    watcher->start();
    pasteboard.copyText(QStringLiteral("note.txt"));
    ASSERT_EQ(store.clips().size(), 1u);
    const QUuid id = store.clips().front()->id;
    pasteboard.copy({note});
    ASSERT_TRUE(eventually([this] { return captured.size() == 2; })) << "its files are heard of";
    EXPECT_EQ(readTitles, QStringList{QStringLiteral("note.txt")});
    ASSERT_EQ(store.clips().size(), 1u);
    EXPECT_EQ(store.clips().front()->kind, ClipKind::file);
    EXPECT_EQ(store.clips().front()->id, id);
}

TEST_F(ClipboardWatcherOrderTest, ACopyThatBecomesWhatTheHistoryHadIsThatClip) {
    pasteboard.copy({note});
    watcher->tick(100);
    ASSERT_TRUE(eventually([this] { return store.clips().size() == 1; }));
    const QUuid id = store.clips().front()->id;
    watcher->start();
    pasteboard.copyText(QStringLiteral("note.txt"));
    ASSERT_EQ(store.clips().size(), 2u);
    pasteboard.copy({note});
    ASSERT_TRUE(eventually([this] { return store.clips().size() == 1; }));
    EXPECT_EQ(store.clips().front()->id, id);
    EXPECT_GT(store.clips().front()->lastUsedAt, 100);
}

TEST_F(ClipboardWatcherOrderTest, AClipOfLongAgoIsNotTurnedIntoAnotherContent) {
    copyAndTick("note.txt", 100);
    watcher->start();
    pasteboard.copyText(QStringLiteral("note.txt"));
    pasteboard.copy({note});
    ASSERT_TRUE(eventually([this] { return store.clips().size() == 2; }));
    EXPECT_EQ(store.clips()[0]->kind, ClipKind::file);
    EXPECT_EQ(store.clips()[1]->kind, ClipKind::text);
}

/// It takes each copy once, so it must be the one with the formats.
TEST_F(ClipboardWatcherOrderTest, WhereWholeCopiesAreNeededACopyIsHeldBackForItsFormats) {
    watcher->needsWholeCopies = [] { return true; };
    std::vector<ClipKind> kinds;
    watcher->onRead = [&kinds](const ClipDraft& draft) { kinds.push_back(draft.kind); };
    watcher->start();
    pasteboard.copyText(QStringLiteral("twice"));
    EXPECT_TRUE(watcher->isReading());
    EXPECT_TRUE(store.clips().empty());
    pasteboard.copy({twice});
    ASSERT_TRUE(eventually([this] { return captured.size() == 1; }));
    EXPECT_FALSE(watcher->isReading());
    EXPECT_EQ(kinds, std::vector{ClipKind::richText});
}

TEST_F(ClipboardWatcherOrderTest, ALookAtOnceHoldsNothingBack) {
    watcher->needsWholeCopies = [] { return true; };
    watcher->start();
    pasteboard.copyText(QStringLiteral("one"));
    int settled = 0;
    watcher->onSettled = [&settled] { ++settled; };
    watcher->tick(100);
    EXPECT_EQ(readTitles, QStringList{QStringLiteral("one")});
    EXPECT_FALSE(watcher->isReading());
    EXPECT_EQ(settled, 1);
}

TEST_F(ClipboardWatcherOrderTest, CopiesThatWereOvertakenAreCounted) {
    pasteboard.hangsBeginReading = true;
    copyAndTick("overtaken while it is read", 100);
    pasteboard.hangsBeginReading = false;
    copyAndTick("read", 101);
    EXPECT_EQ(watcher->overtakenCopies(), 1);
    pasteboard.copyText(QStringLiteral("overtaken before it is seen"));
    pasteboard.write({PasteboardItem{{{uniformtype::utf8PlainText, "ours"}, {uniformtype::ownMarker, ""}}, {}}});
    copyAndTick("read too", 102);
    EXPECT_EQ(watcher->overtakenCopies(), 2);
}

TEST_F(ClipboardWatcherOrderTest, ThePasteboardHearsWhatBecameOfEachCopy) {
    using Settled = std::vector<std::pair<qint64, bool>>;
    copyAndTick("kept", 100);
    const qint64 kept = pasteboard.changeCount();
    pasteboard.copy(uniformtype::concealed, "x");
    watcher->tick(101);
    watcher->pause(10, 102);
    copyAndTick("paused", 103);
    watcher->pausedUntil.reset();
    watcher->hasRoomForImages = [] { return false; };
    pasteboard.copy(uniformtype::png, "png");
    watcher->tick(104);
    EXPECT_EQ(pasteboard.settled, (Settled{{kept, true}, {kept + 1, false}, {kept + 2, false}, {kept + 3, false}}));
}

TEST_F(ClipboardWatcherOrderTest, ACopyThatCannotBeReadTakesNoOtherAlong) {
    pasteboard.onRequest = [](const FakePasteboard::Request&) { throw std::bad_alloc(); };
    copyAndTick("too large", 100);
    pasteboard.onRequest = nullptr;
    copyAndTick("next", 101);
    EXPECT_EQ(history(), QStringList{QStringLiteral("next")});
    EXPECT_FALSE(watcher->isReading());
}

TEST_F(ClipboardWatcherOrderTest, AChangeBeforeTheStartIsNoticed) {
    pasteboard.copyText(QStringLiteral("early"));
    watcher->start();
    ASSERT_TRUE(eventually([this] { return !captured.isEmpty(); }));
    EXPECT_EQ(history(), QStringList{QStringLiteral("early")});
}

TEST_F(ClipboardWatcherOrderTest, APasteboardThatDoesNotNotifyIsPolled) {
    pasteboard.notifies = false;
    watcher->start();
    EXPECT_FALSE(pasteboard.onChanged);
    pasteboard.copyText(QStringLiteral("one"));
    ASSERT_TRUE(eventually([this] { return captured.size() == 1; }));
    pasteboard.copyText(QStringLiteral("two"));
    ASSERT_TRUE(eventually([this] { return captured.size() == 2; }));
}

TEST_F(ClipboardWatcherOrderTest, ANotificationAfterTheEndDoesNothing) {
    watcher->start();
    watcher.reset();
    pasteboard.copyText(QStringLiteral("nobody sees it"));
    EXPECT_EQ(history(), QStringList());
}

} // namespace
} // namespace vellumry
