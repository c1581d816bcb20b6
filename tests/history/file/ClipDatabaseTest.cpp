// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipDatabase.h"

#include "history/file/ClipRows.h"
#include "history/file/DatabaseTest.h"
#include "history/file/RowIdentity.h"
#include "support/FileSizeLimit.h"
#include "support/LoggedLines.h"

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

ClipRef everyField() {
    auto clip = std::make_shared<Clip>(*someClip(1234.5678, u"Títle"_s));
    clip->kind = ClipKind::file;
    clip->searchText = u"séarch\nme"_s;
    clip->sourceBundleID = u"org.example.Files"_s;
    clip->sourceAppName = u"Files"_s;
    clip->createdAt = 1000.25;
    clip->isPinned = true;
    clip->pinOrder = 1'700'000'000'123;
    clip->expiresAt = 5000.125;
    clip->byteSize = 77;
    clip->files = {{u"/home/ä/b"_s, u"b"_s, QByteArray("bookmark")}, {u"/c"_s, u"c"_s, std::nullopt}};
    clip->thumbnail = QByteArray("\x89PNG\0", 5);
    clip->imageText = u"read text"_s;
    clip->imageTextIsAccurate = true;
    clip->isScreenshot = true;
    return clip;
}

class ClipDatabaseTest : public DatabaseTest {};

TEST_F(ClipDatabaseTest, EveryFieldReadsBack) {
    const ClipRef clip = everyField();
    const ClipPayload payload{{{{{u"public.png"_s, QByteArray(50'000, '\7')}}, QStringList{u"public.png"_s}}}};
    {
        const auto database = m_history.open().database;
        insert(*database, clip, payload);
    }
    const OpenedHistory again = m_history.open();
    EXPECT_FALSE(again.recoveredFromDamage);
    const auto clips = load(*again.database);
    ASSERT_EQ(clips.size(), 1U);
    EXPECT_EQ(*clips[0], *clip);
    EXPECT_EQ(awaited(again.database->payload(clip->id)), payload);
    EXPECT_EQ(awaited(again.database->payload(QUuid::createUuid())), std::nullopt);
}

TEST_F(ClipDatabaseTest, LoadsTheLatestFirst) {
    const auto database = m_history.open().database;
    for (const double used : {2.0, 3.0, 1.0})
        insert(*database, someClip(used));
    std::vector<Date> dates;
    for (const ClipRef& clip : load(*database))
        dates.push_back(clip->lastUsedAt);
    EXPECT_EQ(dates, (std::vector<Date>{3, 2, 1}));
}

// Long histories are decoded by two threads, in pieces: nothing may be lost, doubled or out of order where they meet.
TEST_F(ClipDatabaseTest, ALongHistoryLoadsWholeAndInOrder) {
    const auto database = m_history.open().database;
    constexpr int count = 5'000;
    {
        auto connection = m_history.connect();
        connection.execute("BEGIN;");
        for (int i = 0; i < count; ++i)
            cliprows::write(connection, database->crypto(), *someClip(count - i, QString::number(i)), {});
        connection.execute("UPDATE clips SET meta = zeroblob(64) WHERE used % 10 = 0;");
        connection.execute("COMMIT;");
    }
    const auto clips = load(*database);
    ASSERT_EQ(clips.size(), static_cast<std::size_t>(count - count / 10));
    std::size_t next = 0;
    for (int i = 0; i < count; ++i) {
        if ((count - i) % 10 == 0)
            continue;
        ASSERT_EQ(clips[next]->title, QString::number(i));
        ++next;
    }
}

TEST_F(ClipDatabaseTest, TheFileShowsNothingOfTheContent) {
    const auto database = m_history.open().database;
    auto clip = std::make_shared<Clip>(*someClip(1, u"FINDME-title"_s));
    clip->searchText = u"FINDME-text"_s;
    clip->sourceAppName = u"FINDME-app"_s;
    insert(*database, clip, {{{{{u"FINDME-type"_s, "FINDME-bytes"}}, std::nullopt}}});
    EXPECT_FALSE(allBytes().contains("FINDME"));
    EXPECT_TRUE(allBytes().contains(rowidentity::textOf(clip->id).toLatin1()));
}

TEST_F(ClipDatabaseTest, AnIdIsWrittenInUpperCase) {
    const auto database = m_history.open().database;
    auto clip = std::make_shared<Clip>(*someClip(1));
    clip->id = QUuid(u"0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9"_s);
    insert(*database, clip);
    EXPECT_EQ(query("SELECT id FROM clips;"), "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9");
}

TEST_F(ClipDatabaseTest, ARecopyOverwritesItsRow) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    insert(*database, clip);
    auto recopied = std::make_shared<Clip>(*clip);
    recopied->title = u"later"_s;
    insert(*database, recopied);
    const auto clips = load(*database);
    ASSERT_EQ(clips.size(), 1U);
    EXPECT_EQ(clips[0]->title, u"later"_s);
}

TEST_F(ClipDatabaseTest, APinnedClipNeverReadsBackAsUnpinned) {
    const auto database = m_history.open().database;
    for (const qint64 order : {0, 1}) {
        auto clip = std::make_shared<Clip>(*someClip(static_cast<double>(order)));
        clip->isPinned = true;
        clip->pinOrder = order;
        insert(*database, clip);
    }
    const auto clips = load(*database);
    ASSERT_EQ(clips.size(), 2U);
    for (const ClipRef& clip : clips) {
        EXPECT_TRUE(clip->isPinned);
        EXPECT_EQ(clip->pinOrder, 1);
    }
}

TEST_F(ClipDatabaseTest, SingleUpdatesReachTheirRow) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    const ClipRef other = someClip(2);
    insert(*database, clip);
    insert(*database, other);
    auto changed = std::make_shared<Clip>(*clip);
    changed->imageText = u"read"_s;
    changed->imageTextIsAccurate = true;
    changed->lastUsedAt = 10;
    changed->expiresAt = 20;
    changed->pinOrder = 30;
    changed->isPinned = true;
    awaited(database->updateMeta(changed));
    awaited(database->updateUsed(clip->id, 10));
    awaited(database->updateExpiry(clip->id, 20));
    awaited(database->updatePinned(clip->id, 30));
    EXPECT_EQ(*load(*database)[0], *changed);
    EXPECT_EQ(*load(*database)[1], *other);
    awaited(database->updateExpiry(clip->id, std::nullopt));
    awaited(database->updatePinned(clip->id, 0));
    EXPECT_EQ(query("SELECT count(*) FROM clips WHERE expires IS NULL AND pinned = 0;"), "2");
}

TEST_F(ClipDatabaseTest, RowsThatCannotBeReadAreSkippedAndStay) {
    const auto database = m_history.open().database;
    std::vector<ClipRef> clips;
    for (int i = 0; i < 8; ++i) {
        clips.push_back(someClip(100 - i));
        insert(*database, clips.back());
    }
    const auto spoil = [&](int index, const char* assignment) {
        const QString sql =
            u"UPDATE clips SET %1 WHERE used = %2;"_s.arg(QLatin1StringView(assignment)).arg(100 - index);
        execute(sql.toLatin1().constData());
    };
    spoil(1, "kind = 6");
    spoil(2, "kind = -1");
    spoil(3, "id = 'not-a-uuid'");
    spoil(4, "meta = x'00'");
    spoil(5, "meta = zeroblob(100)");
    execute(
        ("UPDATE clips SET meta = x'" + database->crypto().seal("no list").toHex() + "' WHERE used = 94;").constData());
    const LoggedLines log;
    const auto loaded = load(*database);
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(*loaded[0], *clips[0]);
    EXPECT_EQ(*loaded[1], *clips[7]);
    EXPECT_EQ(log.count(QtWarningMsg, u"6 of 8 clips cannot be read"), 1);
    EXPECT_EQ(query("SELECT count(*) FROM clips;"), "8");
}

TEST_F(ClipDatabaseTest, ASpoiledPayloadThrowsAndTheRowStays) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    insert(*database, clip);
    execute("UPDATE clips SET payload = zeroblob(100);");
    EXPECT_THROW(awaited(database->payload(clip->id)), UnsealError);
    execute("UPDATE clips SET payload = x'00';");
    EXPECT_THROW(awaited(database->payload(clip->id)), UnsealError);
    execute(("UPDATE clips SET payload = x'" + database->crypto().seal("no list").toHex() + "';").constData());
    EXPECT_THROW(awaited(database->payload(clip->id)), std::runtime_error);
    EXPECT_EQ(load(*database).size(), 1U);
}

TEST_F(ClipDatabaseTest, DeletingIsAllOrNothing) {
    const auto database = m_history.open().database;
    const ClipRef one = someClip(1);
    const ClipRef two = someClip(2);
    insert(*database, one);
    insert(*database, two);
    execute("CREATE TRIGGER keep BEFORE DELETE ON clips WHEN old.used = 2 BEGIN SELECT RAISE(ABORT, 'kept'); END;");
    try {
        awaited(database->deleteAll({one->id, two->id}));
        FAIL();
    } catch (const SQLiteError& error) {
        EXPECT_STREQ(error.what(), "History file error: kept");
    }
    EXPECT_EQ(load(*database).size(), 2U);
    execute("DROP TRIGGER keep;");
    awaited(database->deleteAll({}));
    awaited(database->deleteAll({one->id, two->id, QUuid::createUuid()}));
    EXPECT_TRUE(load(*database).empty());
}

TEST_F(ClipDatabaseTest, ReclaimingLeavesNothingOfADeletedRow) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    insert(*database, clip, {{{{{u"t"_s, QByteArray(300'000, 'x')}}, std::nullopt}}});
    const QByteArray sealed = query("SELECT hex(substr(payload, 100000, 64)) FROM clips;");
    ASSERT_TRUE(allBytes().toHex().toUpper().contains(sealed));
    awaited(database->deleteAll({clip->id}));
    awaited(database->reclaimSpace());
    const QByteArray left = allBytes();
    EXPECT_FALSE(left.toHex().toUpper().contains(sealed));
    EXPECT_FALSE(left.contains(rowidentity::textOf(clip->id).toLatin1()));
    EXPECT_LT(QFile(m_history.path()).size(), 100'000);
    EXPECT_EQ(QFile(m_history.path() + u"-wal"_s).size(), 0);
}

TEST_F(ClipDatabaseTest, AReaderThatKeepsTheLogIsReported) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    insert(*database, clip);
    SQLiteDatabase other(m_history.path(), SQLiteDatabase::Access::readOnly);
    {
        auto reading = other.prepare("SELECT id FROM clips;");
        ASSERT_TRUE(reading.step());
        awaited(database->deleteAll({clip->id}));
        EXPECT_THROW(awaited(database->reclaimSpace()), SQLiteError);
        EXPECT_GT(QFile(m_history.path() + u"-wal"_s).size(), 0);
    }
    awaited(database->reclaimSpace());
    EXPECT_EQ(QFile(m_history.path() + u"-wal"_s).size(), 0);
}

TEST_F(ClipDatabaseTest, OperationsRunInTheOrderOfTheirCalls) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    auto inserting = database->insert(clip, {});
    auto using1 = database->updateUsed(clip->id, 7);
    auto deleting = database->deleteAll({clip->id});
    auto again = database->insert(clip, {});
    auto using2 = database->updateUsed(clip->id, 9);
    EXPECT_EQ(load(*database)[0]->lastUsedAt, 9);
    for (auto* task : {&inserting, &using1, &deleting, &again, &using2})
        awaited(std::move(*task));
}

TEST_F(ClipDatabaseTest, WhatIsQueuedIsWrittenBeforeTheDatabaseGoes) {
    {
        const auto database = m_history.open().database;
        for (int i = 0; i < 20; ++i)
            auto unawaited = database->insert(someClip(i), {});
    }
    EXPECT_EQ(query("SELECT count(*) FROM clips;"), "20");
}

TEST_F(ClipDatabaseTest, AFullDiskRefusesTheRowAndKeepsTheOld) {
    const auto database = m_history.open().database;
    const ClipRef clip = someClip(1);
    insert(*database, clip);
    auto larger = std::make_shared<Clip>(*clip);
    larger->title = u"larger"_s;
    {
        const FileSizeLimit limit(200'000);
        EXPECT_THROW(insert(*database, larger, {{{{{u"t"_s, QByteArray(1'000'000, 'x')}}, std::nullopt}}}),
                     SQLiteError);
    }
    EXPECT_EQ(*load(*database)[0], *clip);
    insert(*database, larger, {{{{{u"t"_s, QByteArray(1'000'000, 'x')}}, std::nullopt}}});
    EXPECT_EQ(*load(*database)[0], *larger);
}

} // namespace
} // namespace vellumry
