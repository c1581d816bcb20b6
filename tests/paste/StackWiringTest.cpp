// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/StackWiring.h"

#include "paste/PasteOutcome.h"
#include "paste/StackWorld.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace vellumry {

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
    const auto fate = world.keys.press();
    EXPECT_EQ(fate->contents, HeldKey::Contents::fresh);
    EXPECT_EQ(world.onBoard(), QStringLiteral("text"));
    EXPECT_TRUE(world.toasts.empty()); // the key goes first
    runUntil([&] { return !world.toasts.empty(); });
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

TEST(StackWiring, AddingToOneThatIsStillStartingGoesBehindItsFirst) {
    StackWorld world;
    const auto file = world.add(drafts::files({there}));
    const auto two = world.addText("two");
    world.holdsChecks = true;
    world.wiring->toggle({file});
    world.wiring->add({two});
    EXPECT_FALSE(world.stack().isActive());
    world.holdsChecks = false;
    world.wakeChecks();
    ASSERT_EQ(world.stack().count(), 2);
    EXPECT_EQ(world.stack().items()[0].clipID, file->id);
    EXPECT_EQ(world.stack().items()[1].clipID, two->id);
    EXPECT_EQ(world.log, QStringList{QStringLiteral("started")});
}

TEST(StackWiring, OneStoppedWhileItStartsStaysStopped) {
    StackWorld world;
    const auto file = world.add(drafts::files({there}));
    world.holdsChecks = true;
    world.wiring->toggle({file});
    world.wiring->toggle({});
    world.wakeChecks();
    EXPECT_FALSE(world.stack().isActive());
    EXPECT_FALSE(world.keys.isStarted);
    EXPECT_EQ(world.log, QStringList{QStringLiteral("stopped")});
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

TEST(StackWiring, WherePressesAreToldOfLateTheNextItemGoesAheadOfItsKey) {
    StackWorld world;
    world.keys.servesAhead = true;
    const auto ahead = [&world]() -> std::optional<QString> {
        const auto& items = world.keys.expected.back();
        return items ? plainText(*items) : std::nullopt;
    };
    world.wiring->toggle({});
    world.copy("one");
    EXPECT_EQ(ahead(), QStringLiteral("one"));
    world.copy("two");
    EXPECT_EQ(ahead(), QStringLiteral("one"));
    EXPECT_TRUE(world.press());
    EXPECT_EQ(world.onBoard(), QStringLiteral("one"));
    EXPECT_EQ(ahead(), QStringLiteral("two"));
    world.stack().setReversed(true);
    world.copy("three");
    EXPECT_EQ(ahead(), QStringLiteral("three"));
    world.wiring->stop();
    EXPECT_EQ(ahead(), std::nullopt);
}

TEST(StackWiring, WherePressesAreHeldNothingGoesAheadOfThem) {
    StackWorld world;
    world.wiring->toggle({});
    world.copy("one");
    EXPECT_TRUE(world.press());
    EXPECT_TRUE(world.keys.expected.empty());
}

} // namespace vellumry
