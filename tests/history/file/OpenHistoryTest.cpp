// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/DatabaseTest.h"
#include "support/FileSizeLimit.h"
#include "support/LoggedLines.h"
#include "torture/TestVfs.h"

#include <QRandomGenerator>
#include <array>
#include <sqlite3.h>
#include <sys/stat.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

using Asking = KeyStore::Asking;

/// A keyring that answers as it is told.
class FailingKeyStore : public KeyStore {
public:
    std::expected<std::optional<SymmetricKey>, KeyFailure> loaded = std::nullopt;
    std::expected<void, KeyFailure> saved;
    [[nodiscard]] std::expected<std::optional<SymmetricKey>, KeyFailure> load(Asking) override { return loaded; }
    [[nodiscard]] std::expected<void, KeyFailure> save(const SymmetricKey&, Asking) override { return saved; }
};

/// Of all calls that reach the disk, the one of this number fails, with this code.
struct Trouble {
    enum class On { read, write, sync };
    On on;
    int code;
    int left = 0;
    int times = 1; ///< in a row
    [[nodiscard]] bool isNow(On call) { return call == on && left-- <= 0 && left >= -times; }
};

class TroubledFile : public VfsFile {
public:
    TroubledFile(sqlite3_file* real, Trouble& trouble)
        : VfsFile(real)
        , m_trouble(&trouble) {}
    int read(void* bytes, int size, std::int64_t offset) override {
        return m_trouble->isNow(Trouble::On::read) ? m_trouble->code : VfsFile::read(bytes, size, offset);
    }
    int write(const void* bytes, int size, std::int64_t offset) override {
        return m_trouble->isNow(Trouble::On::write) ? m_trouble->code : VfsFile::write(bytes, size, offset);
    }
    int sync(int flags) override {
        return m_trouble->isNow(Trouble::On::sync) ? m_trouble->code : VfsFile::sync(flags);
    }

private:
    Trouble* m_trouble;
};

class OpenHistoryTest : public DatabaseTest {
protected:
    void keepOneClip() {
        const auto database = m_history.open().database;
        insert(*database, someClip(1, u"kept"_s));
    }
    [[nodiscard]] HistoryFailure failure(KeyStore& keyStore) const {
        const auto opened = ClipDatabase::openHistory(m_history.folder(), keyStore);
        EXPECT_FALSE(opened.has_value());
        return opened.has_value() ? HistoryFailure{-1} : opened.error();
    }
    [[nodiscard]] HistoryFailure failure() { return failure(m_history.keyStore()); }
    void expectTheClip() {
        const OpenedHistory history = m_history.open();
        EXPECT_FALSE(history.recoveredFromDamage);
        EXPECT_TRUE(m_history.backups().isEmpty());
        const auto clips = load(*history.database);
        ASSERT_EQ(clips.size(), 1U);
        EXPECT_EQ(clips.front()->title, u"kept"_s);
    }
};

TEST_F(OpenHistoryTest, AFirstStartMakesAKeyAndAnEmptyHistory) {
    const OpenedHistory history = m_history.open();
    EXPECT_FALSE(history.recoveredFromDamage);
    EXPECT_TRUE(load(*history.database).empty());
    EXPECT_EQ(m_history.key(), history.database->crypto().key());
    EXPECT_EQ(query("PRAGMA auto_vacuum;"), "2");
    EXPECT_EQ(query("PRAGMA journal_mode;"), "wal");
    for (const char* suffix : {"", "-wal", "-shm"}) {
        struct stat status {};
        ASSERT_EQ(::stat((QFile::encodeName(m_history.path()) + suffix).constData(), &status), 0) << suffix;
        EXPECT_EQ(status.st_mode & 0777, 0600U) << suffix;
    }
}

TEST_F(OpenHistoryTest, AKeyStoreThatFailsLeavesTheFileAloneAndSaysWhy) {
    keepOneClip();
    const QByteArray before = allBytes();
    FailingKeyStore failing;
    const std::array<std::pair<KeyFailure, HistoryFailure>, 5> reasons{{
        {KeyFailure::absent, HistoryFailure::keyringAbsent},
        {KeyFailure::uncertain, HistoryFailure::keyringLocked},
        {KeyFailure::locked, HistoryFailure::keyringLocked},
        {KeyFailure::refused, HistoryFailure::keyringRefused},
        {KeyFailure::damaged, HistoryFailure::keyDamaged},
    }};
    for (const auto& [reason, expected] : reasons) {
        failing.loaded = std::unexpected(reason);
        EXPECT_EQ(failure(failing), expected);
    }
    EXPECT_EQ(allBytes(), before);
    EXPECT_TRUE(m_history.backups().isEmpty());
}

TEST_F(OpenHistoryTest, WithoutAFileAKeyringThatMayHideNoKeyIsAFirstStart) {
    FailingKeyStore keyring;
    keyring.loaded = std::unexpected(KeyFailure::uncertain);
    EXPECT_TRUE(ClipDatabase::openHistory(m_history.folder(), keyring).has_value());
    EXPECT_TRUE(QFile::exists(m_history.path()));
}

TEST_F(OpenHistoryTest, AFileIsNotPutAsideBeforeItsNewKeyIsKept) {
    keepOneClip();
    FailingKeyStore failing;
    failing.saved = std::unexpected(KeyFailure::refused);
    EXPECT_EQ(failure(failing), HistoryFailure::keyringRefused);
    expectTheClip();
}

TEST_F(OpenHistoryTest, AFullDiskLeavesTheFileWhereItIs) {
    keepOneClip();
    const QByteArray before = allBytes();
    {
        const FileSizeLimit nothing(0);
        EXPECT_EQ(failure(), HistoryFailure::diskFull);
    }
    EXPECT_EQ(allBytes(), before);
    expectTheClip();
}

TEST_F(OpenHistoryTest, AFileThatAnotherProcessHoldsStaysWhereItIs) {
    keepOneClip();
    {
        SQLiteDatabase other(m_history.path(), SQLiteDatabase::Access::recover);
        other.execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE;");
        EXPECT_EQ(failure(), HistoryFailure::fileBusy);
    }
    expectTheClip();
}

// Whatever call of the disk it is that fails, once, the history is opened or left; it is never called damaged.
TEST_F(OpenHistoryTest, NoSingleErrorOfTheDiskPutsTheFileAside) {
    {
        const auto database = m_history.open().database;
        for (int i = 0; i < 60; ++i)
            insert(*database, someClip(i, QString(300, u'x')));
        awaited(database->deleteAll({load(*database).back()->id}));
    }
    using enum Trouble::On;
    // The check reads whole blocks; one that fails is read page by page, so that only the second error counts.
    for (const auto& [on, code, times] :
         {std::tuple(read, SQLITE_IOERR_READ, 1), std::tuple(read, SQLITE_IOERR_READ, 2),
          std::tuple(write, SQLITE_FULL, 1), std::tuple(write, SQLITE_IOERR_WRITE, 1),
          std::tuple(sync, SQLITE_IOERR_FSYNC, 1)}) {
        int failures = 0;
        for (int number = 0; number < 200; ++number) {
            Trouble trouble{on, code, number, times};
            installTestVfs([&](sqlite3_file* real) { return std::make_unique<TroubledFile>(real, trouble); });
            {
                const auto opened = ClipDatabase::openHistory(m_history.folder(), m_history.keyStore());
                failures += opened.has_value() ? 0 : 1;
                EXPECT_FALSE(opened.has_value() && opened->recoveredFromDamage);
                EXPECT_TRUE(opened.has_value() ||
                            opened.error() ==
                                (code == SQLITE_FULL ? HistoryFailure::diskFull : HistoryFailure::fileUnreadable));
            }
            removeTestVfs();
            const bool hasHappened = trouble.left < 0;
            ASSERT_TRUE(m_history.backups().isEmpty()) << "call " << number;
            if (!hasHappened)
                break;
        }
        EXPECT_TRUE(on != read || failures > (times == 1 ? 0 : 5)) << failures;
    }
    EXPECT_EQ(load(*m_history.open().database).size(), 59U);
}

TEST_F(OpenHistoryTest, WithoutAWriteAheadLogTheHistoryWorksAllTheSame) {
    {
        installTestVfs([](sqlite3_file* real) { return std::make_unique<VfsFile>(real); }, SharedMemory::missing);
        {
            const auto database = m_history.open().database;
            insert(*database, someClip(1, u"kept"_s));
            awaited(database->reclaimSpace());
            EXPECT_EQ(query("PRAGMA journal_mode;"), "delete");
        }
        removeTestVfs();
    }
    expectTheClip();
}

TEST_F(OpenHistoryTest, AJournalLeftByAPowerCutIsPlayedBack) {
    QFile::remove(m_history.path());
    const QString other = m_history.folder() + u"/running.sqlite"_s;
    keepOneClip();
    {
        SQLiteDatabase running(m_history.path(), SQLiteDatabase::Access::recover);
        running.execute("PRAGMA journal_mode = DELETE; PRAGMA cache_size = 1; BEGIN;"
                        "CREATE TABLE filler (a); INSERT INTO filler VALUES (zeroblob(300000));"
                        "UPDATE clips SET meta = x'00';");
        for (const char* suffix : {"", "-journal"})
            ASSERT_TRUE(QFile::copy(m_history.path() + QLatin1StringView(suffix), other + QLatin1StringView(suffix)));
        running.execute("ROLLBACK;");
    }
    for (const char* suffix : {"", "-journal"}) {
        QFile::remove(m_history.path() + QLatin1StringView(suffix));
        ASSERT_TRUE(QFile::rename(other + QLatin1StringView(suffix), m_history.path() + QLatin1StringView(suffix)));
    }
    expectTheClip();
}

TEST_F(OpenHistoryTest, AFileWithoutItsKeyIsPutAside) {
    {
        const auto database = m_history.open().database;
        insert(*database, someClip(1));
    }
    MemoryKeyStore empty;
    const OpenedHistory history = ClipDatabase::openHistory(m_history.folder(), empty).value();
    EXPECT_TRUE(history.recoveredFromDamage);
    EXPECT_TRUE(load(*history.database).empty());
    EXPECT_EQ(m_history.backups().size(), 1);
    EXPECT_TRUE(empty.key().has_value());
}

TEST_F(OpenHistoryTest, AnotherKeyPutsTheFileAsideAndItOpensAgainWithItsOwn) {
    {
        const auto database = m_history.open().database;
        insert(*database, someClip(1, u"kept"_s));
    }
    MemoryKeyStore other(SymmetricKey::random());
    const LoggedLines log;
    EXPECT_TRUE(ClipDatabase::openHistory(m_history.folder(), other).value().recoveredFromDamage);
    EXPECT_EQ(log.count(QtWarningMsg, u"the history file was put aside"), 1);
    const auto backups = m_history.backups();
    ASSERT_EQ(backups.size(), 1);
    ClipDatabase backup(m_history.folder() + u'/' + backups[0], ClipCrypto(m_history.key()));
    EXPECT_EQ(load(backup)[0]->title, u"kept"_s);
}

TEST_F(OpenHistoryTest, AForeignTableIsKeptAndJoinedByOurs) {
    (void)m_history.keyStore().save(SymmetricKey::random(), Asking::forbidden);
    execute("CREATE TABLE other (a); INSERT INTO other VALUES (42);");
    const OpenedHistory history = m_history.open();
    EXPECT_FALSE(history.recoveredFromDamage);
    insert(*history.database, someClip(1));
    EXPECT_EQ(query("SELECT a FROM other;"), "42");
    EXPECT_EQ(query("PRAGMA auto_vacuum;"), "2");
}

TEST_F(OpenHistoryTest, TheCheckOfAFileThatSeemsSoundIsLeftToTheCallerWhereItIsWanted) {
    keepOneClip();
    EXPECT_TRUE(m_history.open().isChecked);
    const auto beside = [this](KeyStore& keyStore) {
        return ClipDatabase::openHistory(m_history.folder(), keyStore, Asking::allowed, FileCheck::beside).value();
    };
    EXPECT_FALSE(beside(m_history.keyStore()).isChecked);
    EXPECT_TRUE(historyfile::passesCheck(m_history.path()));
    MemoryKeyStore other(SymmetricKey::random());
    const OpenedHistory fresh = beside(other);
    EXPECT_TRUE(fresh.isChecked);
    EXPECT_TRUE(fresh.recoveredFromDamage) << "the key is tried first in any case";
}

TEST_F(OpenHistoryTest, DamageThatOnlyTheWholeCheckSeesIsSeenByIt) {
    {
        const auto database = m_history.open().database;
        for (int i = 0; i < 60; ++i)
            insert(*database, someClip(i, QString(300, u'x')));
    }
    damageRowOf(0);
    EXPECT_TRUE(historyfile::looksReadable(m_history.path(), m_history.key()));
    EXPECT_FALSE(historyfile::passesCheck(m_history.path()));
}

TEST_F(OpenHistoryTest, AFolderThatIsNotThereCannotBeWrittenTo) {
    const auto opened = ClipDatabase::openHistory(m_history.folder() + u"/missing"_s, m_history.keyStore());
    ASSERT_FALSE(opened.has_value());
    EXPECT_EQ(opened.error(), HistoryFailure::folderNotWritable);
}

// Whatever lies under the history's name, a start gives a working history, and what was there is either kept or put
// aside.
TEST_F(OpenHistoryTest, AnyBytesUnderItsNameGiveAWorkingHistory) {
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
    int worked = 0;
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

        const auto history = ClipDatabase::openHistory(m_history.folder(), m_history.keyStore());
        ASSERT_TRUE(history.has_value()) << "round " << round;
        EXPECT_EQ(history->recoveredFromDamage, !m_history.backups().isEmpty());
        try {
            const std::size_t before = load(*history->database).size();
            insert(*history->database, someClip(1000));
            EXPECT_EQ(load(*history->database).size(), before + 1);
            ++worked;
        } catch (const SQLiteError&) {
            // Sound enough for the check, not for the work: the caller goes on in memory, and the file is still there.
            EXPECT_TRUE(QFile::exists(m_history.path()));
        }
    }
    EXPECT_GT(worked, 15);
}

} // namespace
} // namespace vellumry
