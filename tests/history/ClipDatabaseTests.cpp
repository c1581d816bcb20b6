// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ClipDatabase.h"

#include "history/ClipRows.h"
#include "support/Drafts.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryHistory.h"

#include <QFile>
#include <QRandomGenerator>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

ClipRef someClip(Date used, const QString& title = u"title"_s) {
    auto clip = std::make_shared<Clip>();
    clip->id = QUuid::createUuid();
    clip->title = title;
    clip->lastUsedAt = used;
    clip->fingerprint = clip->id.toString();
    return clip;
}

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

class FailingKeyStore : public KeyStore {
public:
    [[nodiscard]] std::optional<SymmetricKey> load() override {
        if (failsToLoad)
            throw CryptoError::invalidKeyData();
        return std::nullopt;
    }
    void save(const SymmetricKey&) override { throw CryptoError::keychain(-5); }
    bool failsToLoad = true;
};

class ClipDatabaseTest : public testing::Test {
protected:
    void insert(ClipDatabase& database, const ClipRef& clip, const ClipPayload& payload = {}) {
        awaited(database.insert(clip, payload));
    }
    [[nodiscard]] std::vector<ClipRef> load(ClipDatabase& database) { return awaited(database.loadAll()); }
    void execute(const char* sql) const { m_history.connect().execute(sql); }
    [[nodiscard]] QByteArray query(const char* sql) const {
        auto database = m_history.connect();
        auto row = database.prepare(sql);
        return row.step() ? row.text(0).toByteArray() : QByteArray();
    }
    [[nodiscard]] QByteArray allBytes() const {
        QByteArray bytes;
        for (const char* suffix : historyfile::companionSuffixes) {
            QFile file(m_history.path() + QLatin1StringView(suffix));
            if (file.open(QIODevice::ReadOnly))
                bytes += file.readAll();
        }
        return bytes;
    }
    TemporaryHistory m_history;
};

TEST_F(ClipDatabaseTest, AFirstStartMakesAKeyAndAnEmptyHistory) {
    const OpenedHistory history = m_history.open();
    EXPECT_FALSE(history.recoveredFromDamage);
    EXPECT_TRUE(load(*history.database).empty());
    EXPECT_EQ(m_history.key(), history.database->crypto().key());
    EXPECT_EQ(query("PRAGMA auto_vacuum;"), "2");
    EXPECT_EQ(query("PRAGMA journal_mode;"), "wal");
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(m_history.path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

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
    EXPECT_TRUE(allBytes().contains(cliprows::uuidString(clip->id).toLatin1()));
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
        const QString sql = u"UPDATE clips SET %1 WHERE used = %2;"_s.arg(QLatin1StringView(assignment)).arg(100 - index);
        execute(sql.toLatin1().constData());
    };
    spoil(1, "kind = 6");
    spoil(2, "kind = -1");
    spoil(3, "id = 'not-a-uuid'");
    spoil(4, "meta = x'00'");
    spoil(5, "meta = zeroblob(100)");
    execute(("UPDATE clips SET meta = x'" + database->crypto().seal("no list").toHex() + "' WHERE used = 94;").constData());
    const auto loaded = load(*database);
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(*loaded[0], *clips[0]);
    EXPECT_EQ(*loaded[1], *clips[7]);
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
    EXPECT_FALSE(left.contains(cliprows::uuidString(clip->id).toLatin1()));
    EXPECT_LT(QFile(m_history.path()).size(), 100'000);
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
        EXPECT_THROW(insert(*database, larger, {{{{{u"t"_s, QByteArray(1'000'000, 'x')}}, std::nullopt}}}), SQLiteError);
    }
    EXPECT_EQ(*load(*database)[0], *clip);
    insert(*database, larger, {{{{{u"t"_s, QByteArray(1'000'000, 'x')}}, std::nullopt}}});
    EXPECT_EQ(*load(*database)[0], *larger);
}

TEST_F(ClipDatabaseTest, AKeyStoreThatFailsLeavesTheFileAlone) {
    { const OpenedHistory history = m_history.open(); }
    const QByteArray before = allBytes();
    FailingKeyStore failing;
    EXPECT_THROW((void)ClipDatabase::openHistory(m_history.folder(), failing), CryptoError);
    EXPECT_EQ(allBytes(), before);
    EXPECT_TRUE(m_history.backups().isEmpty());
}

TEST_F(ClipDatabaseTest, AKeyThatCannotBeSavedThrowsAfterTheOldFileWasPutAside) {
    { const OpenedHistory history = m_history.open(); }
    FailingKeyStore failing;
    failing.failsToLoad = false;
    EXPECT_THROW((void)ClipDatabase::openHistory(m_history.folder(), failing), CryptoError);
    EXPECT_EQ(m_history.backups().size(), 1);
    EXPECT_FALSE(QFile::exists(m_history.path()));
}

TEST_F(ClipDatabaseTest, AFileWithoutItsKeyIsPutAside) {
    {
        const auto database = m_history.open().database;
        insert(*database, someClip(1));
    }
    MemoryKeyStore empty;
    const OpenedHistory history = ClipDatabase::openHistory(m_history.folder(), empty);
    EXPECT_TRUE(history.recoveredFromDamage);
    EXPECT_TRUE(load(*history.database).empty());
    EXPECT_EQ(m_history.backups().size(), 1);
    EXPECT_TRUE(empty.load().has_value());
}

TEST_F(ClipDatabaseTest, AnotherKeyPutsTheFileAsideAndItOpensAgainWithItsOwn) {
    {
        const auto database = m_history.open().database;
        insert(*database, someClip(1, u"kept"_s));
    }
    MemoryKeyStore other;
    other.save(SymmetricKey::random());
    EXPECT_TRUE(ClipDatabase::openHistory(m_history.folder(), other).recoveredFromDamage);
    const auto backups = m_history.backups();
    ASSERT_EQ(backups.size(), 1);
    ClipDatabase backup(m_history.folder() + u'/' + backups[0], ClipCrypto(m_history.key()));
    EXPECT_EQ(load(backup)[0]->title, u"kept"_s);
}

TEST_F(ClipDatabaseTest, AForeignTableIsKeptAndJoinedByOurs) {
    m_history.keyStore().save(SymmetricKey::random());
    execute("CREATE TABLE other (a); INSERT INTO other VALUES (42);");
    const OpenedHistory history = m_history.open();
    EXPECT_FALSE(history.recoveredFromDamage);
    insert(*history.database, someClip(1));
    EXPECT_EQ(query("SELECT a FROM other;"), "42");
    EXPECT_EQ(query("PRAGMA auto_vacuum;"), "2");
}

TEST_F(ClipDatabaseTest, AFolderThatIsNotThereThrows) {
    EXPECT_THROW((void)ClipDatabase::openHistory(m_history.folder() + u"/missing"_s, m_history.keyStore()), SQLiteError);
}

// Whatever lies under the history's name, a start gives a working history, and what was there is either kept or put aside.
TEST_F(ClipDatabaseTest, AnyBytesUnderItsNameGiveAWorkingHistory) {
    {
        const auto database = m_history.open().database;
        for (int i = 0; i < 50; ++i)
            insert(*database, someClip(i));
    }
    QFile file(m_history.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray sound = file.readAll();
    file.close();
    QRandomGenerator random(11);
    for (int round = 0; round < 30; ++round) {
        QByteArray bytes = round == 0 ? QByteArray() : sound;
        if (round % 3 == 1)
            bytes.truncate(random.bounded(bytes.size()));
        for (int left = round % 3 == 2 ? 20 : 0; left > 0; --left)
            bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
        for (const QString& name : QDir(m_history.folder()).entryList(QDir::Files))
            QFile::remove(m_history.folder() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();

        try {
            const OpenedHistory history = m_history.open();
            EXPECT_EQ(history.recoveredFromDamage, !m_history.backups().isEmpty());
            const std::size_t before = load(*history.database).size();
            insert(*history.database, someClip(1000));
            EXPECT_EQ(load(*history.database).size(), before + 1);
        } catch (const SQLiteError&) {
            // Sound enough for the check, not for the work: the caller goes on in memory, and the file is still there.
            EXPECT_TRUE(QFile::exists(m_history.path()));
        }
    }
}

TEST(ClipRows, AnIdIsReadInAnyCaseAndInNoOtherForm) {
    const QUuid id(u"0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9"_s);
    EXPECT_EQ(cliprows::uuidOf("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9"), id);
    EXPECT_EQ(cliprows::uuidOf("0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9"), id);
    EXPECT_EQ(cliprows::uuidOf("00000000-0000-0000-0000-000000000000"), QUuid());
    for (const char* wrong : {"", "{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9}", "0A1B2C3D4E5F60718293A4B5C6D7E8F9",
                              "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8FG", "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9 ",
                              "0A1B2C3D+4E5F-6071-8293-A4B5C6D7E8F9"})
        EXPECT_EQ(cliprows::uuidOf(wrong), std::nullopt) << wrong;
}

} // namespace
} // namespace vellumry
