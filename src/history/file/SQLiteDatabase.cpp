// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/SQLiteDatabase.h"

#include "history/file/ReadAhead.h"

#include <QFile>
#include <sqlite3.h>
#include <utility>

namespace vellumry {

namespace {

constexpr int busyMilliseconds = 250;

int flagsOf(SQLiteDatabase::Access access) {
    switch (access) {
    case SQLiteDatabase::Access::readOnly:
    case SQLiteDatabase::Access::readThrough:
        return SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    case SQLiteDatabase::Access::recover:
        return SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    case SQLiteDatabase::Access::readWrite:
        break;
    }
    return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
}

} // namespace

SQLiteDatabase::SQLiteDatabase(const QString& path, Access access) {
    try {
        open(path, access);
        if (access == Access::readWrite)
            prepareForWriting();
        // What the layer has read is looked at where it lies.
        if (access == Access::readThrough)
            execute("PRAGMA mmap_size = 1;");
    } catch (...) {
        close();
        throw;
    }
}

void SQLiteDatabase::open(const QString& path, Access access) {
    const char* const layer = access == Access::readThrough ? readahead::layer() : nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &m_handle, flagsOf(access), layer);
    if (!m_handle)
        throw SQLiteError(SQLiteError::Case::open, result, "code " + std::to_string(result));
    sqlite3_extended_result_codes(m_handle, 1);
    // SQLite's own pool of small blocks hands them on without clearing them; what is given back to the heap is cleared.
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_LOOKASIDE, nullptr, 0, 0);
    if (result != SQLITE_OK)
        throw error(SQLiteError::Case::open);
    sqlite3_busy_timeout(m_handle, busyMilliseconds);
    // SQLite opens what it may not write for reading, without a word; every change would then be lost.
    const bool mayWrite = access == Access::recover || access == Access::readWrite;
    if (mayWrite && sqlite3_db_readonly(m_handle, "main") == 1)
        throw SQLiteError(SQLiteError::Case::open, SQLITE_READONLY, "attempt to write a readonly database");
}

void SQLiteDatabase::prepareForWriting() {
    // Some network file systems have no shared memory: the answer is then another mode, which does as well.
    execute("PRAGMA journal_mode=WAL;");
    execute("PRAGMA secure_delete = ON;");
}

SQLiteDatabase::~SQLiteDatabase() {
    close();
}

void SQLiteDatabase::close() {
    for (const auto& [sql, statement] : std::exchange(m_kept, {}))
        sqlite3_finalize(statement);
    sqlite3_close(m_handle);
    m_handle = nullptr;
}

void SQLiteDatabase::execute(const char* sql) {
    char* message = nullptr;
    if (sqlite3_exec(m_handle, sql, nullptr, nullptr, &message) == SQLITE_OK)
        return;
    sqlite3_free(message);
    throw error(SQLiteError::Case::step);
}

SQLiteDatabase::Statement SQLiteDatabase::prepare(const char* sql) {
    return {*this, compiled(sql, 0), nullptr};
}

SQLiteDatabase::Statement SQLiteDatabase::prepareKept(const char* sql) {
    if (const auto kept = m_kept.extract(sql))
        return {*this, kept.mapped(), sql};
    return {*this, compiled(sql, SQLITE_PREPARE_PERSISTENT), sql};
}

bool SQLiteDatabase::hasBeenRefused() const {
    return readahead::hasRefused(m_handle);
}

sqlite3_stmt* SQLiteDatabase::compiled(const char* sql, unsigned flags) {
    sqlite3_stmt* pointer = nullptr;
    if (sqlite3_prepare_v3(m_handle, sql, -1, flags, &pointer, nullptr) != SQLITE_OK)
        throw error(SQLiteError::Case::prepare);
    if (!pointer)
        throw SQLiteError(SQLiteError::Case::prepare, SQLITE_MISUSE, "an empty statement");
    return pointer;
}

SQLiteError SQLiteDatabase::error(SQLiteError::Case kind) const {
    if (!m_handle)
        return {kind, SQLITE_MISUSE, "closed"};
    return {kind, sqlite3_extended_errcode(m_handle), sqlite3_errmsg(m_handle), sqlite3_system_errno(m_handle)};
}

SQLiteDatabase::Statement::Statement(Statement&& other) noexcept
    : m_database(other.m_database)
    , m_pointer(std::exchange(other.m_pointer, nullptr))
    , m_keptAs(other.m_keptAs) {}

SQLiteDatabase::Statement::~Statement() {
    if (m_pointer && m_keptAs) {
        sqlite3_reset(m_pointer);
        sqlite3_clear_bindings(m_pointer);
        if (m_database->m_kept.emplace(m_keptAs, m_pointer).second)
            return;
    }
    sqlite3_finalize(m_pointer);
}

namespace {

int bindValue(sqlite3_stmt* statement, int index, const SQLValue& value) {
    if (const auto* integer = std::get_if<qint64>(&value))
        return sqlite3_bind_int64(statement, index, *integer);
    if (const auto* real = std::get_if<double>(&value))
        return sqlite3_bind_double(statement, index, *real);
    if (const auto* text = std::get_if<QString>(&value))
        return sqlite3_bind_text(statement, index, text->toUtf8().constData(), -1, SQLITE_TRANSIENT);
    // A QByteArray never answers with a null pointer, so empty bytes become an empty blob and not NULL.
    if (const auto* blob = std::get_if<QByteArray>(&value))
        return sqlite3_bind_blob64(statement, index, blob->constData(), static_cast<sqlite3_uint64>(blob->size()),
                                   SQLITE_TRANSIENT);
    return sqlite3_bind_null(statement, index);
}

} // namespace

void SQLiteDatabase::Statement::bind(std::span<const SQLValue> values) {
    int index = 0;
    for (const SQLValue& value : values) {
        if (bindValue(m_pointer, ++index, value) != SQLITE_OK)
            throw m_database->error(SQLiteError::Case::step);
    }
}

bool SQLiteDatabase::Statement::step() {
    const int result = sqlite3_step(m_pointer);
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    throw m_database->error(SQLiteError::Case::step);
}

bool SQLiteDatabase::Statement::isNull(int column) const {
    return sqlite3_column_type(m_pointer, column) == SQLITE_NULL;
}

qint64 SQLiteDatabase::Statement::integer(int column) const {
    return sqlite3_column_int64(m_pointer, column);
}

double SQLiteDatabase::Statement::real(int column) const {
    return sqlite3_column_double(m_pointer, column);
}

QByteArrayView SQLiteDatabase::Statement::text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_pointer, column));
    return {bytes, bytes ? sqlite3_column_bytes(m_pointer, column) : 0};
}

QByteArrayView SQLiteDatabase::Statement::blob(int column) const {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_pointer, column));
    return {bytes, bytes ? sqlite3_column_bytes(m_pointer, column) : 0};
}

} // namespace vellumry
