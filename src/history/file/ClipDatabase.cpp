// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipDatabase.h"

#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"

#include <QDir>
#include <QFile>

namespace vellumry {

namespace {

/// Lets the file give single pages back. A file that cannot yet, a new one included, is rewritten once.
void enableIncrementalVacuum(SQLiteDatabase& database) {
    {
        auto mode = database.prepare("PRAGMA auto_vacuum;");
        if (mode.step() && mode.text(0) == "2")
            return;
    }
    database.execute("PRAGMA auto_vacuum = INCREMENTAL;");
    database.execute("VACUUM;");
}

/// SQLite builds each row in a page of memory that it keeps as long as the connection lives and that still holds the
/// last one, perhaps of a clip just deleted. Lets it build a row of zeros there, which never gets to the file: it fills
/// the page to the last byte that SQLite leaves to a row, 35 being the page's own and 12 the row's header.
void overwriteWorkingSpace(SQLiteDatabase& database) {
    for (const char* sql : {"BEGIN;",
                            "INSERT INTO clips VALUES ('', 0, 0, 0, 0, NULL, '', 0, x'',"
                            " zeroblob((SELECT page_size FROM pragma_page_size) - 47));",
                            "ROLLBACK;"}) {
        try {
            database.execute(sql);
        } catch (const SQLiteError&) {
            // A file that takes no row has given its space back all the same, and no transaction may stay open.
        }
    }
}

} // namespace

OpenedHistory ClipDatabase::openHistory(const QString& folder, KeyStore& keyStore) {
    ClipCrypto::selfTest();
    const QString path = QDir(folder).filePath(historyfile::fileName);
    bool putAside = false;
    std::optional<SymmetricKey> key = keyStore.load();
    if (!key) {
        // Whatever lies there was sealed with a key that is gone.
        if (QFile::exists(path)) {
            historyfile::moveAside(path, currentDate());
            putAside = true;
        }
        key = SymmetricKey::random();
        keyStore.save(*key);
    }
    if (QFile::exists(path) && !historyfile::isReadable(path, *key)) {
        historyfile::moveAside(path, currentDate());
        putAside = true;
    }
    return {std::make_shared<ClipDatabase>(path, ClipCrypto(*std::move(key))), putAside};
}

ClipDatabase::ClipDatabase(const QString& path, ClipCrypto crypto)
    : m_sqlite(path, SQLiteDatabase::Access::readWrite)
    , m_crypto(std::move(crypto))
    , m_executor("History") {
    historyfile::restrictToUser(path);
    enableIncrementalVacuum(m_sqlite);
    cliprows::createTable(m_sqlite);
}

template <typename Result>
QCoro::Task<Result> ClipDatabase::onExecutor(std::function<Result(SQLiteDatabase&)> job) {
    auto bound = [this, job = std::move(job)] { return job(m_sqlite); };
    auto running = m_executor.run(std::move(bound));
    co_return co_await running;
}

QCoro::Task<std::vector<ClipRef>> ClipDatabase::loadAll() {
    return onExecutor<std::vector<ClipRef>>(
        [this](SQLiteDatabase& sqlite) { return cliprows::readAll(sqlite, m_crypto); });
}

QCoro::Task<std::optional<ClipPayload>> ClipDatabase::payload(QUuid id) {
    return onExecutor<std::optional<ClipPayload>>(
        [this, id](SQLiteDatabase& sqlite) { return cliprows::readPayload(sqlite, m_crypto, id); });
}

QCoro::Task<void> ClipDatabase::insert(ClipRef clip, ClipPayload payload) {
    return onExecutor<void>([this, clip = std::move(clip), payload = std::move(payload)](SQLiteDatabase& sqlite) {
        cliprows::write(sqlite, m_crypto, *clip, payload);
    });
}

QCoro::Task<void> ClipDatabase::updateMeta(ClipRef clip) {
    return onExecutor<void>(
        [this, clip = std::move(clip)](SQLiteDatabase& sqlite) { cliprows::writeMeta(sqlite, m_crypto, *clip); });
}

QCoro::Task<void> ClipDatabase::updateExpiry(QUuid id, std::optional<Date> date) {
    return onExecutor<void>([id, date](SQLiteDatabase& sqlite) { cliprows::writeExpiry(sqlite, id, date); });
}

QCoro::Task<void> ClipDatabase::updateUsed(QUuid id, Date date) {
    return onExecutor<void>([id, date](SQLiteDatabase& sqlite) { cliprows::writeUsed(sqlite, id, date); });
}

QCoro::Task<void> ClipDatabase::updatePinned(QUuid id, qint64 value) {
    return onExecutor<void>([id, value](SQLiteDatabase& sqlite) { cliprows::writePinned(sqlite, id, value); });
}

QCoro::Task<void> ClipDatabase::deleteAll(std::vector<QUuid> ids) {
    return onExecutor<void>([ids = std::move(ids)](SQLiteDatabase& sqlite) { cliprows::removeAll(sqlite, ids); });
}

QCoro::Task<void> ClipDatabase::deleteAllOf(std::function<std::vector<QUuid>()> ids) {
    return onExecutor<void>([ids = std::move(ids)](SQLiteDatabase& sqlite) { cliprows::removeAll(sqlite, ids()); });
}

QCoro::Task<void> ClipDatabase::reclaimSpace() {
    return onExecutor<void>([](SQLiteDatabase& sqlite) {
        overwriteWorkingSpace(sqlite);
        sqlite.execute("PRAGMA incremental_vacuum;");
        sqlite.execute("PRAGMA wal_checkpoint(TRUNCATE);");
    });
}

} // namespace vellumry
