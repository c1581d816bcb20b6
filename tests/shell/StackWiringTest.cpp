// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StackWiring.h"

#include "capture/ClipboardWatcher.h"
#include "foundation/UserDefaults.h"
#include "history/ClipStore.h"
#include "paste/PasteOutcome.h"
#include "support/Awaited.h"
#include "support/Drafts.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"
#include "support/FakeKeyboardLayout.h"
#include "support/FakePasteKeys.h"
#include "support/FakePasteTarget.h"
#include "support/FakePasteboard.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

const QString gone = QStringLiteral("/home/u/gone.txt");
const QString there = QStringLiteral("/home/u/there.txt");

struct StackWorld {
    StackWorld() {
        defaults.registerDefaults({{QStringLiteral("plainTextByDefault"), false}});
        watcher.start();
        StackWiring::Hooks hooks;
        hooks.showToast = [this](const ToastMessage& message) { toasts.push_back(message); };
        hooks.closePanel = [this] { ++panelCloses; };
        hooks.checkFileAccess = [this](QStringList paths) { return checkAccess(std::move(paths)); };
        hooks.fileStatus = [](const FileRef& file) {
            return file.path == gone ? FileStatus::missing() : FileStatus::available(file.path);
        };
        hooks.intakeLimit = std::chrono::milliseconds(1);
        wiring = std::make_unique<StackWiring>(
            StackWiring::Parts{store, watcher, pasteboard, target, keys, layout, defaults}, std::move(hooks));
        wiring->onStarted = [this] { log.append(QStringLiteral("started")); };
        wiring->onFinished = [this] { log.append(QStringLiteral("finished")); };
        wiring->onStopped = [this] { log.append(QStringLiteral("stopped")); };
    }

    QCoro::Task<FileAccess::Result> checkAccess(QStringList paths) {
        accessChecks.push_back(std::move(paths));
        co_return FileAccess::Result{blockedFolder};
    }
    ClipRef add(ClipDraft draft) { return awaited(store.add(std::move(draft), ++now)); }
    ClipRef addText(const char* text) { return add(drafts::text(QString::fromUtf8(text))); }
    void copy(const char* text) {
        pasteboard.copyText(QString::fromUtf8(text));
        watcher.tick(currentDate());
    }
    [[nodiscard]] QString onBoard() const {
        return pasteboard.items().empty() ? QString() : plainText(pasteboard.items()).value_or(QString());
    }
    [[nodiscard]] PasteStack& stack() { return wiring->stack(); }
    /// True when the key found something new on the pasteboard.
    bool press() { return keys.press()->contents == HeldKey::Contents::fresh; }

    FakePasteboard pasteboard;
    FakePasteTarget target;
    FakePasteKeys keys;
    FakeKeyboardLayout layout;
    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
    UserDefaults defaults;
    ClipStore store{RetentionPolicy{}};
    ClipboardWatcher watcher{pasteboard, store, defaults, bookmarks, images, [] { return SourceApp(); }};
    Date now = 1'700'000'000;
    std::optional<QString> blockedFolder;
    std::vector<QStringList> accessChecks;
    std::vector<ToastMessage> toasts;
    QStringList log;
    int panelCloses = 0;
    std::unique_ptr<StackWiring> wiring;
};

} // namespace

TEST(StackWiring, ItStartsEmptyAndFillsFromCopies) {
    StackWorld world;
    world.copy("before");
    world.wiring->toggle({});
    EXPECT_TRUE(world.stack().isActive());
    EXPECT_TRUE(world.keys.isStarted);
    EXPECT_EQ(world.panelCloses, 1);
    world.copy("one");
    world.copy("two");
    world.copy("one"); // a duplicate to the history, not to the stack
    EXPECT_EQ(world.stack().count(), 3);
    EXPECT_FALSE(world.stack().items().front().clipID);
    EXPECT_TRUE(world.press());
    EXPECT_EQ(world.onBoard(), QStringLiteral("one"));
    EXPECT_TRUE(world.press());
    EXPECT_EQ(world.onBoard(), QStringLiteral("two"));
    EXPECT_EQ(world.log, QStringList{QStringLiteral("started")});
}

TEST(StackWiring, ItsOwnWritesDoNotComeBackIn) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    world.copy("two");
    EXPECT_TRUE(world.press());
    world.watcher.tick(currentDate());
    EXPECT_EQ(world.stack().count(), 1);
}

TEST(StackWiring, ACopyOfAMomentAgoIsTakenBeforeThePaste) {
    StackWorld world;
    world.wiring->toggle({});
    world.pasteboard.copyText(QStringLiteral("unseen")); // nobody has looked yet
    EXPECT_TRUE(world.press());
    EXPECT_EQ(world.onBoard(), QStringLiteral("unseen"));
    EXPECT_EQ(world.store.clips().size(), 1U);
}

TEST(StackWiring, TheKeyWaitsForACopyThatIsBeingRead) {
    StackWorld world;
    world.wiring->toggle({});
    world.pasteboard.hangsBeginReading = true;
    world.pasteboard.copyText(QStringLiteral("slow"));
    const auto fate = world.keys.press();
    EXPECT_TRUE(fate->isHeld);
    world.pasteboard.answerHanging();
    EXPECT_EQ(fate->contents, HeldKey::Contents::fresh);
    EXPECT_EQ(world.onBoard(), QStringLiteral("slow"));
}

TEST(StackWiring, AnOwnerThatHangsDoesNotKeepTheKey) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    world.copy("two");
    world.pasteboard.hangsBeginReading = true;
    world.pasteboard.copyText(QStringLiteral("never"));
    const auto fate = world.keys.press();
    EXPECT_TRUE(fate->isHeld);
    runUntil([&] { return !fate->isHeld; });
    EXPECT_EQ(fate->contents, HeldKey::Contents::fresh);
    EXPECT_EQ(world.onBoard(), QStringLiteral("one"));
}

TEST(StackWiring, AKeyThatHasGoneTakesNoItem) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    world.pasteboard.hangsBeginReading = true;
    world.pasteboard.copyText(QStringLiteral("slow"));
    const auto fate = world.keys.press();
    fate->isHeld = false; // its time was up
    world.pasteboard.answerHanging();
    EXPECT_EQ(world.stack().pastedCount(), 0);
    EXPECT_EQ(world.stack().count(), 2);
    EXPECT_EQ(world.onBoard(), QStringLiteral("slow"));
}

TEST(StackWiring, AnEmptyStackLetsTheKeyGoAsItIs) {
    StackWorld world;
    world.copy("mine");
    world.wiring->toggle({});
    EXPECT_EQ(world.keys.press()->contents, HeldKey::Contents::same);
    EXPECT_EQ(world.onBoard(), QStringLiteral("mine"));
    EXPECT_TRUE(world.stack().isActive());
}

TEST(StackWiring, TheLastItemEndsItOnceTheKeyHasGone) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    EXPECT_TRUE(world.press());
    EXPECT_FALSE(world.stack().isActive());
    EXPECT_TRUE(world.keys.isStarted) << "the key is still on its way";
    runUntil([&] { return !world.keys.isStarted; });
    EXPECT_EQ(world.log, (QStringList{QStringLiteral("started"), QStringLiteral("finished")}));
}

TEST(StackWiring, OneStartedRightAfterTheEndIsNotEndedWithIt) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    EXPECT_TRUE(world.press());
    world.wiring->toggle({});
    QCoreApplication::processEvents();
    EXPECT_TRUE(world.stack().isActive());
    EXPECT_TRUE(world.keys.isStarted);
    EXPECT_FALSE(world.log.contains(QStringLiteral("finished")));
}

TEST(StackWiring, AskingAgainStopsIt) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    world.copy("two");
    EXPECT_TRUE(world.press());
    world.wiring->toggle({});
    EXPECT_FALSE(world.stack().isActive());
    EXPECT_FALSE(world.keys.isStarted);
    EXPECT_EQ(world.onBoard(), QStringLiteral("one"));
    EXPECT_EQ(world.log, (QStringList{QStringLiteral("started"), QStringLiteral("stopped")}));
}

TEST(StackWiring, ClipsArePastedInTheOrderGiven) {
    StackWorld world;
    const auto one = world.addText("one");
    const auto secret = world.add(drafts::secret(QStringLiteral("two")));
    world.wiring->toggle({one, secret});
    EXPECT_EQ(world.stack().count(), 2);
    EXPECT_EQ(world.stack().items()[0].clipID, one->id);
    EXPECT_FALSE(world.stack().items()[0].isSensitive);
    EXPECT_TRUE(world.stack().items()[1].isSensitive);
    EXPECT_TRUE(world.press());
    EXPECT_EQ(world.onBoard(), QStringLiteral("one"));
    EXPECT_EQ(world.store.find(one->id)->lastUsedAt, one->lastUsedAt) << "a stack paste is no use of the clip";
}

TEST(StackWiring, AClipWithoutAPayloadIsLeftOutSilently) {
    StackWorld world;
    const auto one = world.addText("one");
    auto deleted = std::make_shared<Clip>(*one);
    deleted->id = QUuid::createUuid();
    world.wiring->toggle({deleted, one});
    EXPECT_EQ(world.stack().count(), 1);
    EXPECT_TRUE(world.toasts.empty());
}

TEST(StackWiring, FilesThatMayNotBeReadAreLeftOutWithAWord) {
    StackWorld world;
    world.blockedFolder = QStringLiteral("Desktop");
    world.wiring->toggle({world.add(drafts::files({there})), world.addText("text")});
    EXPECT_EQ(world.stack().count(), 1);
    EXPECT_EQ(world.accessChecks, (std::vector<QStringList>{{there}}));
    EXPECT_EQ(world.toasts,
              (std::vector<ToastMessage>{*toastFor(PasteOutcome::filesBlocked(QStringLiteral("Desktop")))}));
}

TEST(StackWiring, ACopiedFileIsTriedAtOnce) {
    StackWorld world;
    world.wiring->toggle({});
    world.pasteboard.copy(drafts::files({there}).payload.items);
    world.watcher.tick(currentDate());
    runUntil([&] { return world.stack().count() == 1; });
    EXPECT_EQ(world.accessChecks, (std::vector<QStringList>{{there}}));
}

TEST(StackWiring, DeletedFilesArePassedOverWithAWord) {
    StackWorld world;
    world.wiring->toggle({world.add(drafts::files({gone})), world.addText("text")});
    EXPECT_TRUE(world.press());
    EXPECT_EQ(world.onBoard(), QStringLiteral("text"));
    EXPECT_EQ(world.toasts,
              (std::vector<ToastMessage>{{QStringLiteral("trash.fill"), QStringLiteral("Skipped a deleted file"),
                                          ToastMessage::Tone::warning}}));
}

TEST(StackWiring, AddingGoesBehindOrStarts) {
    StackWorld world;
    const auto one = world.addText("one");
    const auto two = world.addText("two");
    world.wiring->add({one});
    EXPECT_TRUE(world.stack().isActive());
    world.wiring->add({two, one});
    EXPECT_EQ(world.stack().count(), 3);
    EXPECT_EQ(world.stack().items()[1].clipID, two->id);
    EXPECT_EQ(world.panelCloses, 2);
}

TEST(StackWiring, WithoutTrustItAsksAndStaysIdle) {
    StackWorld world;
    world.target.trusted = false;
    world.wiring->toggle({});
    EXPECT_FALSE(world.stack().isActive());
    EXPECT_EQ(world.keys.startCalls, 0);
    EXPECT_EQ(world.target.trustRequests, 1);
    EXPECT_EQ(world.panelCloses, 0);
    EXPECT_EQ(world.toasts,
              (std::vector<ToastMessage>{{QStringLiteral("hand.raised.fill"),
                                          QStringLiteral("Paste Stack needs “Allow Vellumry to paste for you”"),
                                          ToastMessage::Tone::warning}}));
}

TEST(StackWiring, WithoutThePasteKeysItSaysSoAndStaysIdle) {
    StackWorld world;
    world.keys.available = false;
    world.wiring->toggle({});
    EXPECT_FALSE(world.stack().isActive());
    EXPECT_EQ(world.panelCloses, 0);
    ASSERT_EQ(world.toasts.size(), 1U);
    EXPECT_EQ(world.toasts[0].symbol, QStringLiteral("exclamationmark.triangle.fill"));
    EXPECT_EQ(world.toasts[0].tone, ToastMessage::Tone::warning);
    EXPECT_TRUE(world.log.isEmpty());
}

TEST(StackWiring, CopiesWhileItIsIdleAreNoneOfItsConcern) {
    StackWorld world;
    world.copy("one");
    EXPECT_EQ(world.stack().count(), 0);
    EXPECT_TRUE(world.accessChecks.empty());
}

TEST(StackWiring, WhatTheWatcherTellsAfterItHasGoneIsDropped) {
    StackWorld world;
    world.wiring->toggle({});
    world.wiring.reset();
    world.copy("one");
    EXPECT_FALSE(world.keys.isStarted);
}

} // namespace vellumry
