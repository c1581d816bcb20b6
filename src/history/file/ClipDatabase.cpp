// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipDatabase.h"

#include "foundation/BulkWork.h"
#include "foundation/Logging.h"
#include "foundation/UnusedMemory.h"
#include "history/clips/ClipList.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <sqlite3.h>

namespace vellumry {

namespace {

bool hasLog(const QString& path) {
    return QFileInfo(path + QStringLiteral("-wal")).size() > 0;
}

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

namespace {

void putAside(const QString& path, const char* why) {
    historyfile::moveAside(path, currentDate());
    qCWarning(logging::history) << "the history file was put aside:" << why;
}

/// The key of the history at `path`, made when there is none. The file goes aside after the new key is kept and not
/// before: without its key it cannot be read, but a key that turns up again opens it.
std::expected<SymmetricKey, HistoryFailure> keyFor(const QString& path, KeyStore& keyStore, KeyStore::Asking asking,
                                                   bool& isPutAside) {
    const bool hasFile = QFile::exists(path);
    auto loaded = keyStore.load(asking);
    // Where nothing was ever kept, no key is missed.
    const bool isFirstStart = !loaded && loaded.error() == KeyFailure::uncertain && !hasFile;
    if (!loaded && !isFirstStart)
        return std::unexpected(historyFailureOf(loaded.error()));
    if (loaded && *loaded)
        return **loaded;
    const SymmetricKey key = SymmetricKey::random();
    if (const auto saved = keyStore.save(key, asking); !saved)
        return std::unexpected(historyFailureOf(saved.error()));
    if (hasFile) {
        putAside(path, "the keyring has no key for it");
        isPutAside = true;
    }
    return key;
}

OpenedHistory opened(const QString& path, const ClipCrypto& crypto, bool isPutAside) {
    try {
        return {std::make_shared<ClipDatabase>(path, crypto), isPutAside, path};
    } catch (const SQLiteError& error) {
        // The check looks at less than the work.
        if (!historyfile::isDamage(error))
            throw;
    }
    putAside(path, "it cannot be worked with");
    return {std::make_shared<ClipDatabase>(path, crypto), true, path};
}

} // namespace

std::expected<OpenedHistory, HistoryFailure> ClipDatabase::openHistory(const QString& folder, KeyStore& keyStore,
                                                                       KeyStore::Asking asking, FileCheck check) {
    ClipCrypto::selfTest();
    const QString path = QDir(folder).filePath(historyfile::fileName);
    try {
        bool isPutAside = false;
        auto key = keyFor(path, keyStore, asking, isPutAside);
        if (!key)
            return std::unexpected(key.error());
        const bool isLeftToCaller = check == FileCheck::beside && historyfile::looksReadable(path, *key);
        if (QFile::exists(path) && !isLeftToCaller && !historyfile::isReadable(path, *key)) {
            putAside(path, "it is damaged, foreign, or sealed with another key");
            isPutAside = true;
        }
        OpenedHistory history = opened(path, ClipCrypto(*std::move(key)), isPutAside);
        history.isChecked = !isLeftToCaller || history.recoveredFromDamage;
        return history;
    } catch (const SQLiteError& error) {
        qCInfo(logging::history) << "the history file was not opened: SQLite" << error.extendedCode() << "errno"
                                 << error.systemError();
        return std::unexpected(historyFailureOf(error, path));
    } catch (const std::filesystem::filesystem_error& error) {
        qCInfo(logging::history) << "the history file was not put aside: errno" << error.code().value();
        return std::unexpected(historyFailureOf(error.code()));
    }
}

ClipDatabase::ClipDatabase(const QString& path, ClipCrypto crypto)
    : m_path(path)
    , m_foundLog(hasLog(path))
    , m_sqlite(path, SQLiteDatabase::Access::readWrite)
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
    return onExecutor<std::vector<ClipRef>>([this](SQLiteDatabase& sqlite) {
        auto clips = cliprows::readAll(sqlite, m_crypto);
        giveBackUnusedMemory();
        return clips;
    });
}

QCoro::Task<NewestClips> ClipDatabase::loadNewest(qint64 count) {
    return onExecutor<NewestClips>(
        [this, count](SQLiteDatabase& sqlite) { return cliprows::readNewest(sqlite, m_crypto, count); });
}

QCoro::Task<std::shared_ptr<ClipList>> ClipDatabase::loadBeside() {
    auto load = [this] {
        const BulkWork work;
        auto list = std::make_shared<ClipList>();
        {
            SQLiteDatabase sqlite(m_path, SQLiteDatabase::Access::readOnly);
            list->assign(cliprows::readAll(sqlite, m_crypto));
        }
        list->copyForAnother();
        // What the connection had read, and what was sealed, lay among the clips.
        giveBackUnusedMemory();
        return list;
    };
    m_loader = std::make_unique<SerialExecutor>("History load");
    auto loading = m_loader->run(std::move(load));
    std::shared_ptr<ClipList> list = co_await loading;
    m_loader.reset();
    co_return list;
}

QCoro::Task<std::optional<ClipPayload>> ClipDatabase::payload(QUuid id) {
    return onExecutor<std::optional<ClipPayload>>(
        [this, id](SQLiteDatabase& sqlite) { return cliprows::readPayload(sqlite, m_crypto, id); });
}

QCoro::Task<void> ClipDatabase::insert(ClipRef clip, ClipPayload payload) {
    return insert(std::move(clip), std::make_shared<const ClipPayload>(std::move(payload)), QUuid());
}

QCoro::Task<void> ClipDatabase::insert(ClipRef clip, std::shared_ptr<const ClipPayload> payload, QUuid replaced) {
    return onExecutor<void>(
        [this, clip = std::move(clip), payload = std::move(payload), replaced](SQLiteDatabase& sqlite) {
            replaced.isNull() ? cliprows::write(sqlite, m_crypto, *clip, *payload)
                              : cliprows::writeReplacing(sqlite, m_crypto, *clip, *payload, replaced);
        });
}

QCoro::Task<void> ClipDatabase::updateRow(ClipRef clip) {
    return onExecutor<void>(
        [this, clip = std::move(clip)](SQLiteDatabase& sqlite) { cliprows::writeFields(sqlite, m_crypto, *clip); });
}

void ClipDatabase::writeLast(std::vector<QUuid> deleted, std::vector<Row> rows) {
    m_executor.post([this, deleted = std::move(deleted), rows = std::move(rows)] {
        try {
            if (!deleted.empty())
                cliprows::removeAll(m_sqlite, deleted);
            for (const Row& row : rows) {
                if (!row.payload)
                    cliprows::writeFields(m_sqlite, m_crypto, *row.clip);
                else if (row.replaced.isNull())
                    cliprows::write(m_sqlite, m_crypto, *row.clip, *row.payload);
                else
                    cliprows::writeReplacing(m_sqlite, m_crypto, *row.clip, *row.payload, row.replaced);
            }
        } catch (const std::exception&) {
            qCWarning(logging::history) << "the history file refuses changes to the end; the latest are lost";
        }
    });
}

void ClipDatabase::dispose(std::shared_ptr<const void> thing) {
    m_executor.post([thing = std::move(thing)] {});
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
        auto checkpoint = sqlite.prepare("PRAGMA wal_checkpoint(TRUNCATE);");
        if (checkpoint.step() && checkpoint.integer(0) != 0)
            throw SQLiteError(SQLiteError::Case::step, SQLITE_BUSY, "a reader keeps the write-ahead log");
    });
}

} // namespace vellumry
