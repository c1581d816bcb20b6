// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipRows.h"

#include "history/clips/SharedClips.h"
#include "history/file/ClipLoading.h"
#include "history/file/ClipMeta.h"
#include "history/file/PayloadCoding.h"
#include "history/file/RowIdentity.h"
#include "history/file/SealedBlob.h"

#include <algorithm>
#include <array>

namespace vellumry::cliprows {

namespace {

/// What sealing puts around the bytes.
constexpr BinaryListWriter::Margins margins{sealedblob::nonceSize, sealedblob::tagSize};

/// The plain bytes become the sealed ones where they lie, so none are left behind.
QByteArray sealed(const ClipCrypto& crypto, QByteArray bytesWithMargins) {
    crypto.sealInPlace(bytesWithMargins);
    return bytesWithMargins;
}

QByteArray sealedMeta(const ClipCrypto& crypto, const Clip& clip) {
    return sealed(crypto, ClipMeta::of(clip).encoded(margins));
}

void run(SQLiteDatabase& database, const char* sql, std::span<const SQLValue> values) {
    auto statement = database.prepareKept(sql);
    statement.bind(values);
    statement.step();
}

SQLValue sqlDate(std::optional<Date> date) {
    return date ? SQLValue(*date) : SQLValue(std::monostate());
}

/// A pinned row must never read back as unpinned.
qint64 pinnedColumn(const Clip& clip) {
    return clip.isPinned ? std::max<qint64>(clip.pinOrder, 1) : 0;
}

void removeRow(SQLiteDatabase& database, const QUuid& id) {
    const std::array<SQLValue, 1> values{rowidentity::textOf(id)};
    run(database, "DELETE FROM clips WHERE id = ?;", values);
}

/// Of two clips of one time the later one of `clips` comes first. The times are sorted by themselves: the clips lie all
/// over the memory.
std::vector<ClipRef> latestFirst(std::vector<ClipRef> clips) {
    struct Place {
        Date lastUsedAt;
        std::size_t index;
    };
    std::vector<Place> places(clips.size());
    for (std::size_t count = 0; count < clips.size(); ++count) {
        const std::size_t index = clips.size() - 1 - count;
        if (index >= clipsAhead)
            __builtin_prefetch(&clips[index - clipsAhead]->lastUsedAt);
        places[count] = {clips[index]->lastUsedAt, index};
    }
    std::ranges::stable_sort(places, std::greater<>(), &Place::lastUsedAt);
    std::vector<ClipRef> sorted;
    sorted.reserve(clips.size());
    for (const Place& place : places)
        sorted.push_back(std::move(clips[place.index]));
    return sorted;
}

/// All that `work` does or, when it throws, nothing.
template <typename Work>
void inTransaction(SQLiteDatabase& database, Work work) {
    try {
        database.execute("BEGIN;");
        work();
        database.execute("COMMIT;");
    } catch (...) {
        const std::exception_ptr first = std::current_exception();
        try {
            database.execute("ROLLBACK;");
        } catch (const SQLiteError&) {
            // There may be no transaction any more; what went wrong first is what the caller must know.
        }
        std::rethrow_exception(first);
    }
}

} // namespace

void createTable(SQLiteDatabase& database) {
    database.execute("CREATE TABLE IF NOT EXISTS clips (\n"
                     "  id TEXT PRIMARY KEY NOT NULL,\n"
                     "  kind INTEGER NOT NULL,\n"
                     "  created REAL NOT NULL,\n"
                     "  used REAL NOT NULL,\n"
                     "  pinned INTEGER NOT NULL DEFAULT 0,\n"
                     "  expires REAL,\n"
                     "  fingerprint TEXT NOT NULL,\n"
                     "  size INTEGER NOT NULL,\n"
                     "  meta BLOB NOT NULL,\n"
                     "  payload BLOB NOT NULL\n"
                     ");\n"
                     "CREATE INDEX IF NOT EXISTS clips_used ON clips(used);");
}

void requireColumns(SQLiteDatabase& database) {
    (void)database.prepare(
        "SELECT id, kind, created, used, pinned, expires, fingerprint, size, meta, payload FROM clips;");
}

std::vector<ClipRef> readAll(SQLiteDatabase& database, const ClipCrypto& crypto) {
    // In the order in which they lie, and sorted here: by the index each row would be looked for in the table. Of two
    // of one time the later row comes first, as it does by the index backwards.
    auto rows = database.prepare(
        "SELECT id, kind, created, used, pinned, expires, fingerprint, size, meta FROM clips ORDER BY rowid;");
    ClipLoading loading(crypto);
    while (rows.step())
        loading.take(rows);
    return latestFirst(loading.finish());
}

NewestClips readNewest(SQLiteDatabase& database, const ClipCrypto& crypto, qint64 count) {
    auto rows = database.prepare("SELECT id, kind, created, used, pinned, expires, fingerprint, size, meta FROM clips "
                                 "ORDER BY used DESC LIMIT ?;");
    rows.bind(std::array<SQLValue, 1>{count});
    ClipLoading loading(crypto);
    qint64 found = 0;
    for (; rows.step(); ++found)
        loading.take(rows);
    return {loading.finish(), found < count};
}

std::optional<ClipPayload> readPayload(SQLiteDatabase& database, const ClipCrypto& crypto, const QUuid& id) {
    auto row = database.prepareKept("SELECT payload FROM clips WHERE id = ?;");
    row.bind(std::array<SQLValue, 1>{rowidentity::textOf(id)});
    if (!row.step())
        return std::nullopt;
    QByteArray plain = crypto.unseal(row.blob(0));
    auto payload = decodePayload(plain);
    wipe(plain.data(), static_cast<std::size_t>(plain.size()));
    if (!payload)
        throw std::runtime_error("The stored clip could not be decoded.");
    return payload;
}

void write(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip, const ClipPayload& payload) {
    QByteArray meta = sealedMeta(crypto, clip);
    QByteArray sealedPayload = sealed(crypto, encodePayload(payload, margins));
    const std::array<SQLValue, 10> values{rowidentity::textOf(clip.id),
                                          static_cast<qint64>(clip.kind),
                                          clip.createdAt,
                                          clip.lastUsedAt,
                                          pinnedColumn(clip),
                                          sqlDate(clip.expiresAt),
                                          clip.fingerprint.toString(),
                                          clip.byteSize,
                                          std::move(meta),
                                          std::move(sealedPayload)};
    run(database,
        "INSERT OR REPLACE INTO clips (id, kind, created, used, pinned, expires, fingerprint, size, meta, payload)\n"
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?);",
        values);
}

void writeMeta(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip) {
    const std::array<SQLValue, 2> values{sealedMeta(crypto, clip), rowidentity::textOf(clip.id)};
    run(database, "UPDATE clips SET meta = ? WHERE id = ?;", values);
}

void writeExpiry(SQLiteDatabase& database, const QUuid& id, std::optional<Date> date) {
    const std::array<SQLValue, 2> values{sqlDate(date), rowidentity::textOf(id)};
    run(database, "UPDATE clips SET expires = ? WHERE id = ?;", values);
}

void writeUsed(SQLiteDatabase& database, const QUuid& id, Date date) {
    const std::array<SQLValue, 2> values{date, rowidentity::textOf(id)};
    run(database, "UPDATE clips SET used = ? WHERE id = ?;", values);
}

void writePinned(SQLiteDatabase& database, const QUuid& id, qint64 value) {
    const std::array<SQLValue, 2> values{value, rowidentity::textOf(id)};
    run(database, "UPDATE clips SET pinned = ? WHERE id = ?;", values);
}

void writeReplacing(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip, const ClipPayload& payload,
                    const QUuid& replaced) {
    inTransaction(database, [&] {
        removeRow(database, replaced);
        write(database, crypto, clip, payload);
    });
}

void writeFields(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip) {
    const std::array<SQLValue, 5> values{clip.lastUsedAt, pinnedColumn(clip), sqlDate(clip.expiresAt),
                                         sealedMeta(crypto, clip), rowidentity::textOf(clip.id)};
    run(database, "UPDATE clips SET used = ?, pinned = ?, expires = ?, meta = ? WHERE id = ?;", values);
}

void removeAll(SQLiteDatabase& database, const std::vector<QUuid>& ids) {
    if (ids.empty())
        return;
    inTransaction(database, [&] {
        for (const QUuid& id : ids)
            removeRow(database, id);
    });
}

} // namespace vellumry::cliprows
