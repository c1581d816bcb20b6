// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/HistoryFile.h"

#include "history/file/ClipRows.h"
#include "support/TemporaryHistory.h"

#include <QFile>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;
using historyfile::isReadable;

class HistoryFileTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* suffix = "") const { return m_history.path() + QLatin1StringView(suffix); }
    void write(const QString& file, const QByteArray& bytes) const {
        QFile target(file);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        ASSERT_EQ(target.write(bytes), bytes.size());
    }
    static QByteArray read(const QString& file) {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }
    /// A history whose rows were sealed with these keys, the first the least recently used.
    void makeHistory(const std::vector<SymmetricKey>& keys) const {
        SQLiteDatabase database(path(), SQLiteDatabase::Access::readWrite);
        cliprows::createTable(database);
        double used = 0;
        for (const SymmetricKey& key : keys) {
            Clip clip;
            clip.id = QUuid::createUuid();
            clip.lastUsedAt = ++used;
            cliprows::write(database, ClipCrypto(key), clip, {});
        }
    }
    void execute(const char* sql) const { m_history.connect().execute(sql); }

    TemporaryHistory m_history;
    SymmetricKey m_key = SymmetricKey::random();
    SymmetricKey m_otherKey = SymmetricKey::random();
};

TEST_F(HistoryFileTest, AHistoryIsReadableWithItsKeyOnly) {
    makeHistory({m_key});
    EXPECT_TRUE(isReadable(path(), m_key));
    EXPECT_FALSE(isReadable(path(), m_otherKey));
}

TEST_F(HistoryFileTest, AnyRowThatOpensIsEnoughHoweverOld) {
    std::vector<SymmetricKey> keys(40, m_otherKey);
    keys[20] = m_key;
    makeHistory(keys);
    EXPECT_TRUE(isReadable(path(), m_key));
    execute("DELETE FROM clips WHERE used = 21;");
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, ATooShortMetaOnlyCountsAsAFailedRow) {
    makeHistory({m_key, m_key});
    execute("UPDATE clips SET meta = x'00' WHERE used = 2;");
    EXPECT_TRUE(isReadable(path(), m_key));
    execute("UPDATE clips SET meta = x'';");
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, AnEmptyTableHasNothingToLose) {
    makeHistory({});
    EXPECT_TRUE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, AFileWithoutTheTableHasNothingToLose) {
    execute("CREATE TABLE other (a); INSERT INTO other VALUES (1);");
    EXPECT_TRUE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, AnEmptyFileIsADatabaseWithoutTables) {
    write(path(), "");
    EXPECT_TRUE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, ATableOfThatNameWithOtherColumnsIsNotReadable) {
    execute("CREATE TABLE clips (a);");
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, ATableThatLacksOneOfOurColumnsIsNotReadable) {
    execute("CREATE TABLE clips (id, kind, created, used, pinned, expires, fingerprint, size, meta);");
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, RandomBytesAreNotReadable) {
    write(path(), QByteArray(10'000, '\x5a'));
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, ATruncatedHistoryIsNotReadable) {
    makeHistory(std::vector(200, m_key));
    const QByteArray whole = read(path());
    ASSERT_GT(whole.size(), 20'000);
    write(path(), whole.first(whole.size() / 2));
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, ADamagedPageIsNotReadable) {
    makeHistory(std::vector(200, m_key));
    QByteArray bytes = read(path());
    for (qsizetype i = 4096; i < 4096 * 3; ++i)
        bytes[i] = '\x77';
    write(path(), bytes);
    EXPECT_FALSE(isReadable(path(), m_key));
}

TEST_F(HistoryFileTest, AFileThatCannotBeOpenedIsNotCalledDamaged) {
    EXPECT_THROW((void)isReadable(path(), m_key), SQLiteError);
}

TEST_F(HistoryFileTest, LookingChangesNothing) {
    makeHistory({m_key});
    const QByteArray before = read(path());
    EXPECT_TRUE(isReadable(path(), m_key));
    EXPECT_EQ(read(path()), before);
}

TEST_F(HistoryFileTest, MovingAsideKeepsTheCompanionsTogether) {
    write(path(), "main");
    write(path("-wal"), "log");
    write(path("-shm"), "index");
    write(path("-journal"), "journal");
    historyfile::moveAside(path(), 1'794'775'055.9);
    const QString stem = m_history.folder() + u"/History-unreadable-2026-11-15T20-37-35Z.sqlite"_s;
    EXPECT_EQ(read(stem), "main");
    EXPECT_EQ(read(stem + u"-wal"_s), "log");
    EXPECT_EQ(read(stem + u"-shm"_s), "index");
    EXPECT_EQ(read(stem + u"-journal"_s), "journal");
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_FALSE(QFile::exists(path("-wal")));
    EXPECT_EQ(historyfile::backups(m_history.folder()), QStringList(stem));
}

TEST_F(HistoryFileTest, AFileIsNeverPartedFromItsLog) {
    write(path(), "main");
    write(path("-wal"), "log");
    write(m_history.folder() + u"/History-unreadable-1970-01-01T00-00-05Z.sqlite-wal"_s, "in the way");
    EXPECT_THROW(historyfile::moveAside(path(), 5), std::filesystem::filesystem_error);
    EXPECT_EQ(read(path()), "main");
    EXPECT_EQ(read(path("-wal")), "log");
}

TEST_F(HistoryFileTest, MovingAsideNeverOverwritesABackup) {
    write(path(), "one");
    historyfile::moveAside(path(), 5);
    write(path(), "two");
    EXPECT_THROW(historyfile::moveAside(path(), 5), std::filesystem::filesystem_error);
    EXPECT_EQ(read(path()), "two");
    EXPECT_EQ(read(m_history.folder() + u'/' + m_history.backups().value(0)), "one");
    historyfile::moveAside(path(), 6);
    EXPECT_EQ(m_history.backups().size(), 2);
}

TEST_F(HistoryFileTest, OnlyTheUserMayReadTheFileAndItsCompanions) {
    for (const char* suffix : {"", "-wal"}) {
        write(path(suffix), "x");
        ASSERT_EQ(::chmod(QFile::encodeName(path(suffix)).constData(), 0666), 0);
    }
    historyfile::restrictToUser(path());
    for (const char* suffix : {"", "-wal"}) {
        struct stat status {};
        ASSERT_EQ(::stat(QFile::encodeName(path(suffix)).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0600U);
    }
    EXPECT_FALSE(QFile::exists(path("-shm")));
}

} // namespace
} // namespace vellumry
