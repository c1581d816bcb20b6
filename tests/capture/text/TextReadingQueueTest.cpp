// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/TextReadingWorld.h"

namespace vellumry {
namespace {

using TextReadingQueueTest = TextReadingWorld;

TEST_F(TextReadingQueueTest, ReadsAPictureQuicklyAndThenWell) {
    const QUuid id = addImage("png");
    reading.isHeld = true;
    queue->enqueue({id});
    EXPECT_TRUE(queue->isReading(id));
    reading.letGo();
    EXPECT_EQ(textOf(id), QStringLiteral("fast png"));
    EXPECT_FALSE(isAccurate(id));
    EXPECT_TRUE(queue->isReading(id));
    reading.letGo();
    EXPECT_EQ(textOf(id), QStringLiteral("accurate png"));
    EXPECT_TRUE(isAccurate(id));
    EXPECT_FALSE(queue->isReading(id));
    EXPECT_EQ(store.search(QStringLiteral("accurate"), ClipFilter::all).size(), 1U);
}

TEST_F(TextReadingQueueTest, ANewPictureOvertakesTheAccurateOnesAtTheNextJob) {
    const QUuid first = addImage("1");
    const QUuid second = addImage("2");
    reading.isHeld = true;
    queue->enqueue({first, second});
    reading.letGo();
    reading.letGo();
    ASSERT_EQ(reading.reads.back(), (FakeReading::Read{"1", Reader::accurate}));
    const QUuid late = addImage("late");
    queue->enqueue({late});
    EXPECT_EQ(queue->current(), first);
    reading.letGo();
    EXPECT_EQ(reading.reads.back(), (FakeReading::Read{"late", Reader::fast}));
    reading.letGo();
    EXPECT_EQ(reading.reads.back(), (FakeReading::Read{"2", Reader::accurate}));
    reading.letGo();
    reading.letGo();
    EXPECT_FALSE(queue->isReading(late));
}

TEST_F(TextReadingQueueTest, WithTheAccurateModeUnusableFastReadingsGoOn) {
    isAccurateUsable = false;
    const QUuid first = addImage("1");
    const QUuid second = addImage("2");
    queue->enqueue({first});
    queue->enqueue({second});
    EXPECT_EQ(reading.reads, (std::vector<FakeReading::Read>{{"1", Reader::fast}, {"2", Reader::fast}}));
    EXPECT_EQ(queue->waitingAccurate(), (std::vector<QUuid>{first, second}));
    EXPECT_EQ(queue->current(), std::nullopt);
}

TEST_F(TextReadingQueueTest, TheSameClipEnqueuedTwiceIsReadOnce) {
    isAccurateUsable = false;
    const QUuid other = addImage("other");
    const QUuid id = addImage("png");
    reading.isHeld = true;
    queue->enqueue({other, id, id, other});
    queue->enqueue({id});
    reading.letGo();
    reading.letGo();
    EXPECT_EQ(reading.reads.size(), 2U);
    EXPECT_EQ(queue->current(), std::nullopt);
}

TEST_F(TextReadingQueueTest, APictureWithoutTextIsNotReadAgain) {
    reading.answers["png"] = QStringLiteral("");
    const QUuid id = addImage("png");
    queue->enqueue({id});
    EXPECT_EQ(textOf(id), QString(QStringLiteral("")));
    EXPECT_TRUE(textOf(id).has_value());
    EXPECT_TRUE(store.clipsWithoutText().empty());
    EXPECT_TRUE(store.clipsWithRoughText().empty());
}

TEST_F(TextReadingQueueTest, AClipDeletedWhileItIsReadGetsNoText) {
    const QUuid id = addImage("png");
    const QUuid next = addImage("next");
    reading.isHeld = true;
    queue->enqueue({id, next});
    awaited(store.remove({id}, false));
    reading.isHeld = false;
    reading.letGo();
    EXPECT_EQ(store.find(id), nullptr);
    EXPECT_EQ(textOf(next), QStringLiteral("accurate next"));
}

TEST_F(TextReadingQueueTest, AFailedFastReadingLeavesTheClipToTheAccurateOne) {
    const QUuid id = addImage("png");
    reading.answers["png"] = std::nullopt;
    reading.isHeld = true;
    queue->enqueue({id});
    reading.letGo();
    EXPECT_EQ(textOf(id), std::nullopt);
    EXPECT_EQ(reading.reads.back(), (FakeReading::Read{"png", Reader::accurate}));
    reading.answers["png"] = QStringLiteral("words");
    reading.letGo();
    EXPECT_EQ(textOf(id), QStringLiteral("words"));
    EXPECT_TRUE(isAccurate(id));
}

TEST_F(TextReadingQueueTest, APictureThatCannotBeReadIsGivenUpAfterBothModes) {
    const QUuid id = addImage("png");
    reading.answers["png"] = std::nullopt;
    queue->enqueue({id});
    EXPECT_EQ(reading.reads.size(), 2U);
    EXPECT_EQ(textOf(id), std::nullopt);
    EXPECT_FALSE(queue->isReading(id));
}

TEST_F(TextReadingQueueTest, AFailedAccurateReadingKeepsTheRoughText) {
    const QUuid id = addImage("png");
    reading.isHeld = true;
    queue->enqueue({id});
    reading.letGo();
    reading.answers["png"] = std::nullopt;
    reading.letGo();
    EXPECT_EQ(textOf(id), QStringLiteral("fast png"));
    EXPECT_FALSE(isAccurate(id));
}

TEST_F(TextReadingQueueTest, OtherClipsAreNotRead) {
    queue->enqueue({add(drafts::text(QStringLiteral("text"))), add(drafts::files({QStringLiteral("/a/letter.pdf")})),
                    QUuid::createUuid()});
    EXPECT_TRUE(reading.reads.empty());
    EXPECT_EQ(queue->current(), std::nullopt);
}

TEST_F(TextReadingQueueTest, TheBacklogIsWhatHasNoTextAndThenWhatHasARoughOne) {
    const QUuid accurate = addImage("accurate");
    const QUuid rough = addImage("rough");
    const QUuid blank = addImage("blank");
    awaited(store.setImageText(accurate, QStringLiteral("a"), true));
    awaited(store.setImageText(rough, QStringLiteral("r"), false));
    queue->enqueueBacklog();
    const std::vector<FakeReading::Read> expected{
        {"blank", Reader::fast}, {"rough", Reader::accurate}, {"blank", Reader::accurate}};
    EXPECT_EQ(reading.reads, expected);
    EXPECT_TRUE(isAccurate(blank));
}

TEST_F(TextReadingQueueTest, AReCopiedPictureWithARoughTextGoesStraightToTheAccurateReading) {
    const QUuid id = addImage("png");
    awaited(store.setImageText(id, QStringLiteral("rough"), false));
    queue->enqueue({id});
    EXPECT_EQ(reading.reads, (std::vector<FakeReading::Read>{{"png", Reader::accurate}}));
}

TEST_F(TextReadingQueueTest, APictureThatTheStoreHasNoLongerIsMarkedAsWithoutText) {
    ClipDraft draft = drafts::image("png");
    draft.payload.items = {{{{QStringLiteral("com.example.unknown"), "bytes"}}, std::nullopt}};
    const QUuid id = add(draft);
    queue->enqueue({id});
    EXPECT_TRUE(reading.reads.empty());
    EXPECT_TRUE(store.clipsWithoutText().empty());
    EXPECT_FALSE(isAccurate(id));
}

TEST_F(TextReadingQueueTest, ThePreferredTypeIsRead) {
    ClipDraft draft = drafts::image("png");
    draft.payload.items.front().representations[uniformtype::jpeg] = "jpeg";
    queue->enqueue({add(draft)});
    EXPECT_EQ(reading.reads.front().picture, "png");
}

TEST_F(TextReadingQueueTest, ViewsAreToldWhenAClipBeginsAndEndsBeingRead) {
    const QUuid id = addImage("png");
    std::vector<bool> seen;
    QObject::connect(queue.get(), &TextReadingQueue::changed, queue.get(),
                     [&] { seen.push_back(queue->isReading(id)); });
    queue->enqueue({id});
    ASSERT_FALSE(seen.empty());
    EXPECT_TRUE(seen.front());
    EXPECT_FALSE(seen.back());
}

TEST_F(TextReadingQueueTest, AQueueThatGoesAwayWhileReadingLeavesTheStoreAlone) {
    const QUuid id = addImage("png");
    reading.isHeld = true;
    queue->enqueue({id});
    queue.reset();
    reading.letGo();
    EXPECT_EQ(textOf(id), std::nullopt);
}

TEST_F(TextReadingQueueTest, WithoutAnEngineNoFurtherPictureIsOpened) {
    const QUuid first = addImage("one");
    const QUuid second = addImage("two");
    reading.isHeld = true;
    queue->enqueue({first, second});
    isAvailable = false;
    reading.answers["one"] = std::nullopt;
    reading.letGo();
    EXPECT_EQ(reading.reads.size(), 1u);
    EXPECT_FALSE(queue->isReading(second));
    queue->enqueue({second});
    EXPECT_EQ(reading.reads.size(), 1u);
    EXPECT_EQ(textOf(second), std::nullopt);
    EXPECT_FALSE(queue->isReading(second)) << "its preview would say so for ever";
    queue->enqueueBacklog();
    EXPECT_FALSE(queue->isReading(second));
}

TEST_F(TextReadingQueueTest, WhatWaitsForReadingsThatKeepFailingIsNotSaidToBeRead) {
    const QUuid id = addImage("one");
    isAccurateUsable = false;
    reading.answers["one"] = std::nullopt;
    queue->enqueue({id});
    finish();
    EXPECT_EQ(queue->waitingAccurate(), std::vector{id});
    EXPECT_FALSE(queue->isReading(id));
}

} // namespace
} // namespace vellumry
