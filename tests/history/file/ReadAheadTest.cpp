// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ReadAhead.h"

#include "history/file/DatabaseTest.h"
#include "torture/TestVfs.h"

#include <sqlite3.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;
using Access = SQLiteDatabase::Access;

constexpr qint64 pageSize = 4096;

/// Counts what is read, and refuses what touches one page.
class WatchedFile : public VfsFile {
public:
    struct Watch {
        int reads = 0;
        qint64 bytes = 0;
        qint64 badPage = -1;
    };
    WatchedFile(sqlite3_file* real, Watch& watch)
        : VfsFile(real)
        , m_watch(&watch) {}
    int read(void* bytes, int size, std::int64_t offset) override {
        ++m_watch->reads;
        m_watch->bytes += size;
        const qint64 bad = m_watch->badPage * pageSize;
        const bool isBad = m_watch->badPage >= 0 && offset < bad + pageSize && offset + size > bad;
        return isBad ? SQLITE_IOERR_READ : VfsFile::read(bytes, size, offset);
    }

private:
    Watch* m_watch;
};

class ReadAheadTest : public DatabaseTest {
protected:
    /// Short texts, and between them payloads of many pages.
    void SetUp() override {
        const auto database = m_history.open().database;
        for (int i = 0; i < 40; ++i)
            insertPayload(*database, i, i % 8 == 3 ? 60'000 : 40);
        awaited(database->reclaimSpace());
    }
    void insertPayload(ClipDatabase& database, int number, qsizetype size) {
        ClipPayload::Item item;
        item.representations[u"public.png"_s] = QByteArray(size, static_cast<char>('a' + number % 26));
        ClipPayload payload;
        payload.items = {item};
        insert(database, someClip(number, QString(300, u'x')), payload);
    }
    [[nodiscard]] qint64 pages() const { return QFileInfo(m_history.path()).size() / pageSize; }

    /// What a connection says that goes through the file: the verdict, and how many payloads could be read.
    struct Findings {
        QByteArray verdict;
        int payloads = 0;
        int error = 0;
        bool operator==(const Findings&) const = default;
    };
    enum class Reading { none, payloads };
    [[nodiscard]] Findings findings(Access access, Reading reading = Reading::payloads) const {
        Findings found;
        try {
            SQLiteDatabase database(m_history.path(), access);
            auto check = database.prepare("PRAGMA quick_check;");
            while (check.step())
                found.verdict += check.text(0).toByteArray() + '\n';
            if (reading == Reading::none)
                return found;
            auto rows = database.prepare("SELECT payload FROM clips ORDER BY rowid;");
            while (rows.step())
                found.payloads += rows.blob(0).isEmpty() ? 0 : 1;
        } catch (const SQLiteError& error) {
            found.error = error.code();
        }
        return found;
    }

    WatchedFile::Watch m_watch;
};

TEST_F(ReadAheadTest, AFileOfPicturesIsReadInFewCalls) {
    const auto reads = [this](Access access) {
        m_watch.reads = 0;
        installTestVfs([this](sqlite3_file* real) { return std::make_unique<WatchedFile>(real, m_watch); });
        EXPECT_EQ(findings(access).verdict, "ok\n");
        removeTestVfs();
        return m_watch.reads;
    };
    const int plain = reads(Access::readOnly);
    EXPECT_GT(plain, pages());
    EXPECT_LT(reads(Access::readThrough), plain / 2);
}

TEST_F(ReadAheadTest, NoPictureIsReadTwice) {
    {
        const auto database = m_history.open().database;
        for (int i = 0; i < 60; ++i)
            insertPayload(*database, 100 + i, 80'000 + 1'000 * i);
        awaited(database->reclaimSpace());
    }
    installTestVfs([this](sqlite3_file* real) { return std::make_unique<WatchedFile>(real, m_watch); });
    EXPECT_EQ(findings(Access::readThrough, Reading::none).verdict, "ok\n");
    removeTestVfs();
    EXPECT_GT(m_watch.bytes, pages() * pageSize);
    EXPECT_LT(m_watch.bytes, pages() * pageSize * 5 / 4);
}

TEST_F(ReadAheadTest, EveryDamagedPageIsFoundAsByReadingPageByPage) {
    QFile file(m_history.path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray sound = file.readAll();
    int damaged = 0;
    for (qint64 page = 1; page < pages(); ++page) {
        file.seek(page * pageSize);
        file.write(QByteArray(16, '\xff'));
        file.flush();
        const Findings plain = findings(Access::readOnly);
        EXPECT_EQ(findings(Access::readThrough), plain) << page;
        damaged += plain.verdict == "ok\n" ? 0 : 1;
        file.seek(page * pageSize);
        file.write(sound.sliced(page * pageSize, pageSize));
        file.flush();
    }
    EXPECT_EQ(damaged, pages() - 1);
    EXPECT_TRUE(historyfile::passesCheck(m_history.path()));
}

TEST_F(ReadAheadTest, ABadSectorCountsForItsOwnPageOnly) {
    for (qint64 page = 1; page < pages(); ++page) {
        m_watch.badPage = page;
        installTestVfs([this](sqlite3_file* real) { return std::make_unique<WatchedFile>(real, m_watch); });
        EXPECT_EQ(findings(Access::readThrough), findings(Access::readOnly)) << page;
        EXPECT_THROW((void)historyfile::passesCheck(m_history.path()), SQLiteError) << page;
        removeTestVfs();
    }
}

TEST_F(ReadAheadTest, WhatIsWrittenBesideItIsSeenByTheNextStatement) {
    SQLiteDatabase through(m_history.path(), Access::readThrough);
    const auto total = [&through] {
        auto sum = through.prepare("SELECT sum(length(hex(payload))) FROM clips;");
        sum.step();
        return sum.integer(0);
    };
    const qint64 before = total();
    execute("UPDATE clips SET payload = zeroblob(length(payload) + 5000);");
    execute("PRAGMA wal_checkpoint(PASSIVE);");
    EXPECT_EQ(total(), before + 40 * 10'000);
}

} // namespace
} // namespace vellumry
