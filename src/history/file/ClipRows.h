// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/file/ClipCrypto.h"
#include "history/file/SQLiteDatabase.h"

namespace vellumry {

/// The clips of the latest rows.
struct NewestClips {
    std::vector<ClipRef> clips;
    bool areAll = false; ///< there is no further row
};

} // namespace vellumry

/// Clips as rows of the table `clips`. Each function runs its statement on the caller's thread and throws what the
/// layers below throw: `SQLiteError`, `CryptoError`, `UnsealError`.
namespace vellumry::cliprows {

/// Makes the table and its index when they are missing.
void createTable(SQLiteDatabase& database);

/// Throws SQLiteError, of the case `prepare`, when a table of that name lacks one of our columns.
void requireColumns(SQLiteDatabase& database);

/// Every clip that can be read, latest first. A row with a strange id or kind, one that this key does not open and one
/// whose meta is not a meta are passed over: they are neither reported nor removed.
[[nodiscard]] std::vector<ClipRef> readAll(SQLiteDatabase& database, const ClipCrypto& crypto);

/// The same for the latest `count` rows.
[[nodiscard]] NewestClips readNewest(SQLiteDatabase& database, const ClipCrypto& crypto, qint64 count);

/// Nothing when there is no such row. Throws std::runtime_error for a payload that opens but cannot be decoded.
[[nodiscard]] std::optional<ClipPayload> readPayload(SQLiteDatabase& database, const ClipCrypto& crypto,
                                                     const QUuid& id);

/// Writes the whole row, over one with the same id.
void write(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip, const ClipPayload& payload);
/// The same, and in one change with it the row `replaced` goes.
void writeReplacing(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip, const ClipPayload& payload,
                    const QUuid& replaced);
/// All of the row that may change while its payload stays.
void writeFields(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip);
void writeMeta(SQLiteDatabase& database, const ClipCrypto& crypto, const Clip& clip);
void writeExpiry(SQLiteDatabase& database, const QUuid& id, std::optional<Date> date);
void writeUsed(SQLiteDatabase& database, const QUuid& id, Date date);
void writePinned(SQLiteDatabase& database, const QUuid& id, qint64 value);

/// All of them or, when one cannot be removed, none.
void removeAll(SQLiteDatabase& database, const std::vector<QUuid>& ids);

} // namespace vellumry::cliprows
