// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/SQLiteDatabase.h"

#include <QFile>
#include <QTemporaryDir>
#include <array>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

using Access = SQLiteDatabase::Access;

class SQLiteDatabaseTest : public testing::Test {
protected:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("Test.sqlite")); }
    QTemporaryDir m_folder;
};

template <typename Action>
std::string failureOf(Action action, SQLiteError::Case expected) {
    try {
        action();
    } catch (const SQLiteError& error) {
        EXPECT_EQ(error.kind(), expected);
        EXPECT_EQ(error.errorDescription().toStdString(), error.what());
        return error.what();
    }
    return "no failure";
}

TEST_F(SQLiteDatabaseTest, BindsEveryKindOfValueInOrder) {
    SQLiteDatabase database(path(), Access::readWrite);
    database.execute("CREATE TABLE t (a, b, c, d, e);");
    const std::array<SQLValue, 5> values{qint64{-7}, 2.5, u"grün"_s, QByteArray("\0\1", 2), std::monostate()};
    auto insertion = database.prepare("INSERT INTO t VALUES (?, ?, ?, ?, ?);");
    insertion.bind(values);
    EXPECT_FALSE(insertion.step());
    auto row = database.prepare("SELECT a, b, c, d, e FROM t;");
    ASSERT_TRUE(row.step());
    EXPECT_EQ(row.integer(0), -7);
    EXPECT_EQ(row.real(1), 2.5);
    EXPECT_EQ(row.text(2), QByteArrayView("gr\xc3\xbcn"));
    EXPECT_EQ(row.blob(3), QByteArrayView("\0\1", 2));
    EXPECT_TRUE(row.isNull(4));
    EXPECT_TRUE(row.text(4).isNull());
    EXPECT_FALSE(row.step());
}

TEST_F(SQLiteDatabaseTest, AnEmptyBlobIsNotNull) {
    SQLiteDatabase database(path(), Access::readWrite);
    database.execute("CREATE TABLE t (a BLOB NOT NULL);");
    for (const QByteArray& empty : {QByteArray(), QByteArray("")}) {
        auto insertion = database.prepare("INSERT INTO t VALUES (?);");
        insertion.bind(std::array<SQLValue, 1>{empty});
        EXPECT_FALSE(insertion.step());
    }
    auto row = database.prepare("SELECT a, typeof(a) FROM t;");
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(row.step());
        EXPECT_FALSE(row.isNull(0));
        EXPECT_TRUE(row.blob(0).isEmpty());
        EXPECT_EQ(row.text(1), QByteArrayView("blob"));
    }
}

TEST_F(SQLiteDatabaseTest, AWritableConnectionWritesAheadAndDeletesSecurely) {
    SQLiteDatabase database(path(), Access::readWrite);
    auto journal = database.prepare("PRAGMA journal_mode;");
    ASSERT_TRUE(journal.step());
    EXPECT_EQ(journal.text(0), QByteArrayView("wal"));
    auto secure = database.prepare("PRAGMA secure_delete;");
    ASSERT_TRUE(secure.step());
    EXPECT_EQ(secure.integer(0), 1);
    auto synchronous = database.prepare("PRAGMA synchronous;");
    ASSERT_TRUE(synchronous.step());
    EXPECT_EQ(synchronous.integer(0), 2) << "a commit that was reported must survive a power cut";
}

TEST_F(SQLiteDatabaseTest, ReadingAMissingFileFailsToOpen) {
    const auto message = failureOf([this] { SQLiteDatabase(path(), Access::readOnly); }, SQLiteError::Case::open);
    EXPECT_EQ(message, "Couldn't open the history file: unable to open database file");
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(SQLiteDatabaseTest, AReadOnlyConnectionCannotWrite) {
    { SQLiteDatabase(path(), Access::readWrite).execute("CREATE TABLE t (a);"); }
    SQLiteDatabase database(path(), Access::readOnly);
    EXPECT_EQ(failureOf([&] { database.execute("INSERT INTO t VALUES (1);"); }, SQLiteError::Case::step),
              "History file error: attempt to write a readonly database");
}

TEST_F(SQLiteDatabaseTest, AFileThatIsNoDatabaseFailsConstruction) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    EXPECT_EQ(failureOf([this] { SQLiteDatabase(path(), Access::readWrite); }, SQLiteError::Case::step),
              "History file error: file is not a database");
}

TEST_F(SQLiteDatabaseTest, AKeptStatementForgetsWhatItWasUsedFor) {
    SQLiteDatabase database(path(), Access::readWrite);
    database.execute("CREATE TABLE t (a); INSERT INTO t VALUES (1), (2);");
    static const char* const sql = "SELECT a, ? FROM t ORDER BY a;";
    {
        auto rows = database.prepareKept(sql);
        rows.bind(std::array<SQLValue, 1>{qint64{7}});
        ASSERT_TRUE(rows.step());
        EXPECT_EQ(rows.integer(1), 7);
        auto meanwhile = database.prepareKept(sql);
        ASSERT_TRUE(meanwhile.step()) << "it may be used twice at a time";
        EXPECT_TRUE(meanwhile.isNull(1));
    }
    auto rows = database.prepareKept(sql);
    ASSERT_TRUE(rows.step());
    EXPECT_EQ(rows.integer(0), 1) << "it begins anew";
    EXPECT_TRUE(rows.isNull(1));
    database.execute("ALTER TABLE t ADD COLUMN b;");
    EXPECT_TRUE(database.prepareKept("SELECT b FROM t;").step());
}

TEST_F(SQLiteDatabaseTest, EachFailureSaysWhatSQLiteSays) {
    SQLiteDatabase database(path(), Access::readWrite);
    database.execute("CREATE TABLE t (a INTEGER NOT NULL);");
    EXPECT_EQ(failureOf([&] { (void)database.prepare("SELEKT 1;"); }, SQLiteError::Case::prepare),
              "History file error: near \"SELEKT\": syntax error");
    EXPECT_EQ(failureOf([&] { database.execute("SELEKT 1;"); }, SQLiteError::Case::step),
              "History file error: near \"SELEKT\": syntax error");
    EXPECT_EQ(failureOf([&] { (void)database.prepare(""); }, SQLiteError::Case::prepare),
              "History file error: an empty statement");
    auto insertion = database.prepare("INSERT INTO t VALUES (?);");
    EXPECT_EQ(failureOf(
                  [&] {
                      insertion.bind(std::array<SQLValue, 2>{qint64{1}, qint64{2}});
                  },
                  SQLiteError::Case::step),
              "History file error: column index out of range");
    auto null = database.prepare("INSERT INTO t VALUES (NULL);");
    EXPECT_EQ(failureOf([&] { null.step(); }, SQLiteError::Case::step),
              "History file error: NOT NULL constraint failed: t.a");
}

} // namespace
} // namespace vellumry
