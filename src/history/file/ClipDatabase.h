// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/Clip.h"
#include "history/file/ClipCrypto.h"
#include "history/file/HistoryFailure.h"
#include "history/file/SQLiteDatabase.h"
#include "platform/desktop/KeyStore.h"

#include <QCoroTask>
#include <expected>
#include <functional>
#include <memory>

namespace vellumry {

class ClipList;
struct NewestClips;
struct OpenedHistory;

/// When the whole of a history file is looked through for damage.
enum class FileCheck {
    first, ///< before anything else is done with it
    beside ///< by the caller, while the history is at work; where there is any doubt, first all the same
};

/// The history file: clips as rows, everything that could show content sealed. Owns the connection and the one thread
/// that uses it; operations queue there in the order of their calls and resume the caller on the main thread. When one
/// that writes is done without an error, the change survives a power cut.
///
/// Operations are called on the main thread. They throw `SQLiteError`, `CryptoError`, `UnsealError`, all
/// std::runtime_error. The destructor waits for what is queued.
class ClipDatabase {
public:
    /// Opens "History.sqlite" in `folder`, which must exist, making the key and the file where there are none. A file
    /// that this key does not open, or that is damaged, is put aside as a backup and a new one begun; a file that
    /// cannot be looked at for any other reason, or whose key cannot be had, stays where it is. Throws CryptoError
    /// where encryption itself does not work. Any thread; reads the whole file once, so better not the main one.
    [[nodiscard]] static std::expected<OpenedHistory, HistoryFailure>
    openHistory(const QString& folder, KeyStore& keyStore, KeyStore::Asking asking = KeyStore::Asking::allowed,
                FileCheck check = FileCheck::first);

    /// The file at `path` with a key that is known to fit. Blocking; any thread.
    ClipDatabase(const QString& path, ClipCrypto crypto);
    ClipDatabase(const ClipDatabase&) = delete;
    ClipDatabase& operator=(const ClipDatabase&) = delete;

    [[nodiscard]] const ClipCrypto& crypto() const { return m_crypto; }
    /// A write-ahead log lay beside the file: an earlier run was killed, and what it deleted may still be in there.
    [[nodiscard]] bool foundLog() const { return m_foundLog; }

    /// Every readable clip, latest first.
    [[nodiscard]] QCoro::Task<std::vector<ClipRef>> loadAll();
    /// The readable clips of the latest `count` rows.
    [[nodiscard]] QCoro::Task<NewestClips> loadNewest(qint64 count);
    /// Every readable clip as a list, made by a connection and a thread of their own: payloads can be read meanwhile.
    /// The caller keeps this alive until then.
    [[nodiscard]] QCoro::Task<std::shared_ptr<ClipList>> loadBeside();
    /// Nothing when there is no such row; throws for one that cannot be unsealed or decoded.
    [[nodiscard]] QCoro::Task<std::optional<ClipPayload>> payload(QUuid id);
    /// Writes the clip's row, over the one with the same id.
    [[nodiscard]] QCoro::Task<void> insert(ClipRef clip, ClipPayload payload);
    /// The same; in one change with it the row `replaced` goes, if that is not null.
    [[nodiscard]] QCoro::Task<void> insert(ClipRef clip, std::shared_ptr<const ClipPayload> payload, QUuid replaced);
    /// Writes what may change of a row while its payload stays.
    [[nodiscard]] QCoro::Task<void> updateRow(ClipRef clip);
    [[nodiscard]] QCoro::Task<void> updateMeta(ClipRef clip);
    [[nodiscard]] QCoro::Task<void> updateExpiry(QUuid id, std::optional<Date> date);
    [[nodiscard]] QCoro::Task<void> updateUsed(QUuid id, Date date);
    /// Stores `value` as it is: 0 is unpinned.
    [[nodiscard]] QCoro::Task<void> updatePinned(QUuid id, qint64 value);
    /// All or, on an error, none.
    [[nodiscard]] QCoro::Task<void> deleteAll(std::vector<QUuid> ids);
    /// As `deleteAll`, for so many that listing them takes a while: `ids` is asked, and let go, on the history's own
    /// thread.
    [[nodiscard]] QCoro::Task<void> deleteAllOf(std::function<std::vector<QUuid>()> ids);
    /// Gives freed pages back and empties the write-ahead log, so that nothing deleted is left in either. Throws
    /// SQLiteError as long as another connection reads what is in the log.
    [[nodiscard]] QCoro::Task<void> reclaimSpace();
    /// A row to write; its payload is null where that stands in the file already.
    struct Row {
        ClipRef clip;
        std::shared_ptr<const ClipPayload> payload;
        QUuid replaced; ///< goes in one change with it, if that is not null
    };
    /// Deletes and writes what it can, until the file refuses something. The outcome goes to the log alone: for the end
    /// of the program, when the destructor waits for it.
    void writeLast(std::vector<QUuid> deleted, std::vector<Row> rows);
    /// Lets go of something on the history's own thread, behind what is queued.
    void dispose(std::shared_ptr<const void> thing);

private:
    template <typename Result>
    QCoro::Task<Result> onExecutor(std::function<Result(SQLiteDatabase&)> job);

    const QString m_path;
    const bool m_foundLog; // before the connection, which makes a log
    SQLiteDatabase m_sqlite;
    const ClipCrypto m_crypto;
    SerialExecutor m_executor;                // behind the connection, so that its thread has ended before that closes
    std::unique_ptr<SerialExecutor> m_loader; ///< while a list is loaded
};

struct OpenedHistory {
    std::shared_ptr<ClipDatabase> database;
    bool recoveredFromDamage = false; ///< an earlier history could not be read and was put aside
    QString path{};                   ///< the file's
    bool isChecked = true;            ///< false: `historyfile::passesCheck` was left to the caller
};

} // namespace vellumry
