// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/DatabaseTest.h"

#include <QRandomGenerator>
#include <sys/stat.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

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

class OpenHistoryTest : public DatabaseTest {};

TEST_F(OpenHistoryTest, AFirstStartMakesAKeyAndAnEmptyHistory) {
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

TEST_F(OpenHistoryTest, AKeyStoreThatFailsLeavesTheFileAlone) {
    { const OpenedHistory history = m_history.open(); }
    const QByteArray before = allBytes();
    FailingKeyStore failing;
    EXPECT_THROW((void)ClipDatabase::openHistory(m_history.folder(), failing), CryptoError);
    EXPECT_EQ(allBytes(), before);
    EXPECT_TRUE(m_history.backups().isEmpty());
}

TEST_F(OpenHistoryTest, AKeyThatCannotBeSavedThrowsAfterTheOldFileWasPutAside) {
    { const OpenedHistory history = m_history.open(); }
    FailingKeyStore failing;
    failing.failsToLoad = false;
    EXPECT_THROW((void)ClipDatabase::openHistory(m_history.folder(), failing), CryptoError);
    EXPECT_EQ(m_history.backups().size(), 1);
    EXPECT_FALSE(QFile::exists(m_history.path()));
}

TEST_F(OpenHistoryTest, AFileWithoutItsKeyIsPutAside) {
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

TEST_F(OpenHistoryTest, AnotherKeyPutsTheFileAsideAndItOpensAgainWithItsOwn) {
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

TEST_F(OpenHistoryTest, AForeignTableIsKeptAndJoinedByOurs) {
    m_history.keyStore().save(SymmetricKey::random());
    execute("CREATE TABLE other (a); INSERT INTO other VALUES (42);");
    const OpenedHistory history = m_history.open();
    EXPECT_FALSE(history.recoveredFromDamage);
    insert(*history.database, someClip(1));
    EXPECT_EQ(query("SELECT a FROM other;"), "42");
    EXPECT_EQ(query("PRAGMA auto_vacuum;"), "2");
}

TEST_F(OpenHistoryTest, AFolderThatIsNotThereThrows) {
    EXPECT_THROW((void)ClipDatabase::openHistory(m_history.folder() + u"/missing"_s, m_history.keyStore()),
                 SQLiteError);
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

} // namespace
} // namespace vellumry
