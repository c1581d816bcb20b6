// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/PersistentStoreTest.h"
#include "support/FileSizeLimit.h"

#include <QPointer>
#include <QSignalSpy>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipStorePersistence : public PersistentStoreTest {};

TEST_F(ClipStorePersistence, TheHistoryIsThereAfterTheNextStart) {
    EXPECT_FALSE(m_store->isMemoryOnly());
    const ClipRef one = add(drafts::text(u"one"_s), 1);
    const ClipRef two = add(drafts::image("png"), 2);
    awaited(m_store->markUsed(one->id, 3));
    awaited(m_store->setPinned(two->id, true, 4));
    awaited(m_store->setImageText(two->id, u"read"_s, true));
    std::vector<Clip> before;
    for (const ClipRef& clip : m_store->clips())
        before.push_back(*clip);
    reopen();
    std::vector<Clip> after;
    for (const ClipRef& clip : m_store->clips())
        after.push_back(*clip);
    EXPECT_EQ(after, before);
    EXPECT_EQ(awaited(m_store->payload(one->id)), drafts::text(u"one"_s).payload);
}

TEST_F(ClipStorePersistence, AClipThatWasReportedIsInTheFile) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    EXPECT_EQ(rowCount(), 1);
}

TEST_F(ClipStorePersistence, FingerprintsHoldAcrossStarts) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    reopen();
    const ClipRef again = add(drafts::text(u"one"_s), 2);
    EXPECT_EQ(again->id, clip->id);
    EXPECT_EQ(again->createdAt, 1);
    EXPECT_EQ(rowCount(), 1);
}

TEST_F(ClipStorePersistence, MemoryIsAheadOfTheFile) {
    auto adding = m_store->add(drafts::text(u"one"_s), 1);
    EXPECT_EQ(m_store->clips().size(), 1U);
    EXPECT_FALSE(adding.isReady());
    EXPECT_EQ(awaited(std::move(adding))->title, u"one"_s);
}

TEST_F(ClipStorePersistence, ACopyThatCannotBeWrittenWaitsInMemoryUntilItCan) {
    QSignalSpy storage(m_store.get(), &ClipStore::storageChanged);
    refuseWrites();
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    ASSERT_TRUE(clip);
    EXPECT_TRUE(m_store->isBehind());
    EXPECT_EQ(storage.size(), 1);
    EXPECT_EQ(awaited(m_store->payload(clip->id)), drafts::text(u"one"_s).payload);
    EXPECT_EQ(rowCount(), 0);
    awaited(m_store->setPinned(clip->id, true, 2));
    allowWrites();
    runUntil([&] { return !m_store->isBehind(); }, 60'000);
    EXPECT_EQ(storage.size(), 2);
    reopen();
    ASSERT_EQ(m_store->clips().size(), 1U);
    EXPECT_TRUE(m_store->clips().front()->isPinned);
    EXPECT_EQ(awaited(m_store->payload(clip->id)), drafts::text(u"one"_s).payload);
}

TEST_F(ClipStorePersistence, ACopyThatWasDeletedWhileItWaitedIsNeverWritten) {
    refuseWrites();
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    awaited(m_store->remove({clip->id}, false));
    EXPECT_EQ(awaited(m_store->payload(clip->id)), std::nullopt);
    allowWrites();
    runUntil([&] { return !m_store->isBehind(); }, 60'000);
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(ClipStorePersistence, ARecopyThatCannotBeWrittenReplacesTheRowLater) {
    ClipDraft draft = drafts::text(u"one"_s);
    const ClipRef old = add(draft, 1);
    add(drafts::text(u"two"_s), 2);
    refuseWrites();
    draft.kind = ClipKind::richText;
    draft.searchText = u"changed"_s;
    EXPECT_EQ(add(draft, 3)->id, old->id);
    EXPECT_EQ(m_store->clips().front()->id, old->id);
    EXPECT_EQ(m_store->clips().size(), 2U);
    EXPECT_EQ(m_store->search(u"changed"_s, ClipFilter::all).size(), 1U);
    allowWrites();
    runUntil([&] { return !m_store->isBehind(); }, 60'000);
    reopen();
    EXPECT_EQ(m_store->find(old->id)->searchText.toString(), u"changed"_s);
    EXPECT_EQ(m_store->find(old->id)->createdAt, 1);
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(ClipStorePersistence, CopiesOnAFullDiskReachTheFileWhenThereIsRoom) {
    const ClipRef old = add(drafts::image("png"), 1);
    ClipDraft large = drafts::image("png");
    large.payload.items[0].representations.emplace(uniformtype::tiff, QByteArray(2'000'000, 'x'));
    {
        const FileSizeLimit limit(200'000);
        EXPECT_EQ(add(large, 2)->id, old->id);
        EXPECT_TRUE(m_store->isBehind());
        EXPECT_EQ(awaited(m_store->payload(old->id)), large.payload);
    }
    runUntil([&] { return !m_store->isBehind(); }, 60'000);
    reopen();
    EXPECT_EQ(awaited(m_store->payload(old->id)), large.payload);
}

TEST_F(ClipStorePersistence, OtherChangesThatCannotBeWrittenAreMadeGoodToo) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    const ClipRef other = add(drafts::text(u"two"_s), 2);
    refuseWrites();
    awaited(m_store->markUsed(clip->id, 3));
    awaited(m_store->setPinned(clip->id, true, 4));
    awaited(m_store->setImageText(clip->id, u"read"_s, true));
    awaited(m_store->remove({other->id}, true));
    EXPECT_EQ(m_store->clips().size(), 1U);
    EXPECT_EQ(rowCount(), 2);
    const Clip inMemory = *m_store->find(clip->id);
    allowWrites();
    runUntil([&] { return !m_store->isBehind(); }, 60'000);
    reopen();
    EXPECT_EQ(m_store->clips().size(), 1U) << "what was deleted stays deleted";
    EXPECT_EQ(*m_store->find(clip->id), inMemory);
}

TEST_F(ClipStorePersistence, TheLogOfAnExpiredSecretIsEmptiedWhenItsReaderIsGone) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    const QString log = m_history.path() + u"-wal"_s;
    {
        SQLiteDatabase other(m_history.path(), SQLiteDatabase::Access::readOnly);
        auto reading = other.prepare("SELECT id FROM clips;");
        ASSERT_TRUE(reading.step());
        awaited(m_store->enforceRetention(1000));
        EXPECT_GT(QFile(log).size(), 0);
    }
    runUntil([&] { return QFile(log).size() == 0; }, 60'000);
}

// A backup program may read the file for hours.
TEST_F(ClipStorePersistence, AReaderThatKeepsTheLogKeepsNoCopyFromTheFile) {
    add(drafts::secret(u"one"_s), 1);
    SQLiteDatabase other(m_history.path(), SQLiteDatabase::Access::readOnly);
    auto reading = other.prepare("SELECT id FROM clips;");
    ASSERT_TRUE(reading.step());
    awaited(m_store->enforceRetention(1000));
    refuseWrites();
    add(drafts::text(u"two"_s), 1001);
    ASSERT_TRUE(m_store->isBehind());
    allowWrites();
    runUntil([&] { return rowCount() == 1 && !m_store->isBehind(); });
    EXPECT_GT(QFile(m_history.path() + u"-wal"_s).size(), 0);
}

TEST_F(ClipStorePersistence, TheLogThatAKilledRunLeftIsEmptiedAfterTheNextStart) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    awaited(m_store->remove({clip->id}, false));
    // As the file and its log lie there when the program is killed.
    const QString other = m_history.folder() + u"/killed.sqlite"_s;
    for (const QString& suffix : {u""_s, u"-wal"_s})
        ASSERT_TRUE(QFile::copy(m_history.path() + suffix, other + suffix));
    m_store.reset();
    for (const QString& suffix : {u""_s, u"-wal"_s}) {
        QFile::remove(m_history.path() + suffix);
        ASSERT_TRUE(QFile::rename(other + suffix, m_history.path() + suffix));
    }
    const QByteArray id = clip->id.toString(QUuid::WithoutBraces).toUpper().toLatin1();
    ASSERT_TRUE(allBytes().contains(id));
    m_store = m_history.openStore();
    EXPECT_TRUE(m_store->clips().empty());
    runUntil([&] { return !allBytes().contains(id); });
}

TEST_F(ClipStorePersistence, WhatTheFileRefusedIsTriedOnceMoreAtTheEnd) {
    const ClipRef gone = add(drafts::text(u"gone"_s), 1);
    const ClipRef changed = add(drafts::text(u"changed"_s), 2);
    refuseWrites();
    const ClipRef late = add(drafts::text(u"late"_s), 3);
    awaited(m_store->setPinned(changed->id, true, 4));
    awaited(m_store->remove({gone->id}, false));
    allowWrites();
    reopen();
    ASSERT_EQ(m_store->clips().size(), 2U);
    EXPECT_EQ(awaited(m_store->payload(late->id)), drafts::text(u"late"_s).payload);
    EXPECT_TRUE(m_store->find(changed->id)->isPinned);
}

TEST_F(ClipStorePersistence, RescuedSecretsStayRescued) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    awaited(m_store->setPinned(clip->id, true, 2));
    reopen();
    EXPECT_EQ(m_store->find(clip->id)->expiresAt, std::nullopt);
    EXPECT_EQ(m_store->find(clip->id)->pinOrder, 2000);
}

TEST_F(ClipStorePersistence, AnUnreadablePayloadIsNothingAndTheClipStays) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    execute("UPDATE clips SET payload = zeroblob(64);");
    EXPECT_EQ(awaited(m_store->payload(clip->id)), std::nullopt);
    EXPECT_EQ(awaited(m_store->payload(QUuid::createUuid())), std::nullopt);
    EXPECT_TRUE(m_store->find(clip->id));
}

TEST_F(ClipStorePersistence, TwoCopiesAtOnceBothArrive) {
    auto one = m_store->add(drafts::text(u"one"_s), 1);
    auto same = m_store->add(drafts::text(u"one"_s), 2);
    auto other = m_store->add(drafts::text(u"two"_s), 3);
    EXPECT_EQ(awaited(std::move(one))->id, awaited(std::move(same))->id);
    EXPECT_TRUE(awaited(std::move(other)));
    EXPECT_EQ(m_store->clips().size(), 2U);
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(ClipStorePersistence, RemovingAClipThatIsStillBeingWrittenRemovesItsRow) {
    auto adding = m_store->add(drafts::text(u"one"_s), 1);
    auto removing = m_store->remove({m_store->clips().front()->id}, false);
    EXPECT_FALSE(awaited(std::move(adding)));
    awaited(std::move(removing));
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(ClipStorePersistence, AStoreMayGoWhileItsWorkIsUnderWay) {
    auto adding = m_store->add(drafts::text(u"one"_s), 1);
    auto using1 = m_store->markUsed(m_store->clips().front()->id, 2);
    m_store.reset();
    EXPECT_FALSE(awaited(std::move(adding)));
    awaited(std::move(using1));
    m_store = m_history.openStore();
    ASSERT_EQ(m_store->clips().size(), 1U);
    EXPECT_EQ(m_store->clips().front()->lastUsedAt, 2);
}

TEST_F(ClipStorePersistence, RemembersThatAnEarlierHistoryWasPutAside) {
    m_store = nullptr;
    MemoryKeyStore other;
    const OpenedHistory history = ClipDatabase::openHistory(m_history.folder(), other).value();
    m_store = awaited(ClipStore::open(history.database, {}, history.recoveredFromDamage));
    EXPECT_TRUE(m_store->recoveredFromDamage());
    m_store->setRecoveredFromDamage(false);
    EXPECT_FALSE(m_store->recoveredFromDamage());
}

TEST_F(ClipStorePersistence, LoadingThatFailsIsReported) {
    m_store = nullptr;
    const OpenedHistory history = m_history.open();
    execute("DROP TABLE clips;");
    EXPECT_THROW(awaited(ClipStore::open(history.database, {}, false)), SQLiteError);
}

} // namespace
} // namespace vellumry
