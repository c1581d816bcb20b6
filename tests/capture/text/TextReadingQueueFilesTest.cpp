// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/TextReadingWorld.h"

namespace vellumry {
namespace {

using TextReadingQueueFiles = TextReadingWorld;

TEST_F(TextReadingQueueFiles, TheTextsOfSeveralFilesAreJoinedWithABlankLine) {
    QStringList paths;
    for (int number = 1; number <= 6; ++number)
        paths += writeFile(QStringLiteral("%1.png").arg(number), QByteArray::number(number));
    reading.answers["2"] = QStringLiteral("");
    const QUuid id = add(drafts::files(paths));
    queue->enqueue({id});
    finish();
    EXPECT_EQ(textOf(id), QStringLiteral("accurate 1\n\naccurate 3\n\naccurate 4\n\naccurate 5"));
}

TEST_F(TextReadingQueueFiles, OneFileThatFailsDoesNotCostTheTextOfTheOthers) {
    reading.answers["1"] = std::nullopt;
    const QUuid id =
        add(drafts::files({writeFile(QStringLiteral("1.png"), "1"), writeFile(QStringLiteral("2.png"), "2")}));
    queue->enqueue({id});
    finish();
    EXPECT_EQ(textOf(id), QStringLiteral("accurate 2"));
}

TEST_F(TextReadingQueueFiles, AFileInAProtectedFolderIsReadOnTheUsersWordOnly) {
    isEverywhereQuiet = false;
    const QUuid id = add(drafts::files({writeFile(QStringLiteral("a.png"), "a")}));
    queue->enqueue({id});
    finish();
    EXPECT_TRUE(reading.reads.empty());
    EXPECT_EQ(textOf(id), std::nullopt);
    EXPECT_FALSE(queue->isReading(id));
    queue->readFile(id);
    finish();
    EXPECT_EQ(reading.reads.front(), (FakeReading::Read{"a", Reader::fast}));
    EXPECT_EQ(textOf(id), QStringLiteral("fast a"));
}

TEST_F(TextReadingQueueFiles, TheUsersWordReadsAFileAgain) {
    const QUuid id = add(drafts::files({writeFile(QStringLiteral("a.png"), "a")}));
    awaited(store.setImageText(id, QStringLiteral("old"), true));
    queue->readFile(id);
    finish();
    EXPECT_EQ(reading.reads.front(), (FakeReading::Read{"a", Reader::fast}));
}

TEST_F(TextReadingQueueFiles, AFileThatCannotBeReadIsToldToWhoAskedForIt) {
    std::vector<QUuid> unreadable;
    queue->onFileUnreadable = [&unreadable](const QUuid& id) { unreadable.push_back(id); };
    const QUuid id = add(drafts::files({folder.filePath(QStringLiteral("gone.png"))}));
    queue->enqueue({id});
    finish();
    EXPECT_TRUE(unreadable.empty());
    queue->readFile(id);
    finish();
    EXPECT_EQ(unreadable, std::vector<QUuid>{id});
    EXPECT_EQ(textOf(id), std::nullopt);
}

TEST_F(TextReadingQueueFiles, WithoutAnEngineTheUserWhoAsksIsTold) {
    int told = 0;
    queue->onReaderMissing = [&told] { ++told; };
    const QUuid id = add(drafts::files({writeFile(QStringLiteral("a.png"), "a")}));
    const QUuid other = add(drafts::files({writeFile(QStringLiteral("b.png"), "b")}));
    // That there is none is known when the first picture comes back.
    reading.isHeld = true;
    reading.answers["a"] = std::nullopt;
    queue->readFile(id);
    runUntil([this] { return !reading.reads.empty(); });
    isAvailable = false;
    reading.letGo();
    EXPECT_EQ(told, 1);
    queue->readFile(other);
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(queue->isReading(id));
    EXPECT_FALSE(queue->isReading(other));
    EXPECT_EQ(reading.reads.size(), 1U);
}

} // namespace
} // namespace vellumry
