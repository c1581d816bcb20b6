// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/SQLValue.h"
#include "history/file/SQLiteError.h"

#include <QByteArray>
#include <QString>
#include <span>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace vellumry {

/// One connection to an SQLite file. Opened without SQLite's own mutex: one thread at a time may use a connection and
/// its statements, which the owner guarantees. Every operation throws `SQLiteError`.
class SQLiteDatabase {
public:
    enum class Access {
        readOnly,    ///< changes nothing in the file
        readThrough, ///< the same, for going through most of it: what lies behind one another is read at once
        recover,     ///< of an existing file: plays back what a power cut left unfinished, and changes nothing else
        readWrite,   ///< makes the file when it is missing, writes ahead and overwrites deleted content with zeros
    };

    /// A prepared statement, used once. Must go before its connection.
    class Statement {
    public:
        Statement(Statement&& other) noexcept;
        Statement& operator=(Statement&&) = delete;
        ~Statement();

        /// Binds to the parameters 1, 2, 3, …
        void bind(std::span<const SQLValue> values);
        /// True: there is a row. False: done.
        bool step();

        [[nodiscard]] bool isNull(int column) const;
        [[nodiscard]] qint64 integer(int column) const;
        [[nodiscard]] double real(int column) const;
        /// The column's bytes as they lie in SQLite, valid until the next `step`. NULL reads as empty, of a null
        /// pointer.
        [[nodiscard]] QByteArrayView text(int column) const;
        /// As `text`, unconverted.
        [[nodiscard]] QByteArrayView blob(int column) const;

    private:
        friend class SQLiteDatabase;
        Statement(SQLiteDatabase& database, sqlite3_stmt* pointer, const char* keptAs)
            : m_database(&database)
            , m_pointer(pointer)
            , m_keptAs(keptAs) {}
        SQLiteDatabase* m_database;
        sqlite3_stmt* m_pointer;
        const char* m_keptAs; ///< null for a statement that goes after its use
    };

    /// A writable connection keeps its changes in a rollback journal where the file system refuses a write-ahead log.
    /// A lock of another process is waited for during a quarter of a second.
    SQLiteDatabase(const QString& path, Access access);
    ~SQLiteDatabase();
    SQLiteDatabase(const SQLiteDatabase&) = delete;
    SQLiteDatabase& operator=(const SQLiteDatabase&) = delete;

    /// Runs one or more statements, rows ignored.
    void execute(const char* sql);
    [[nodiscard]] Statement prepare(const char* sql);
    /// The same for a literal that is used again and again: it is compiled once. Nothing that was bound to it is kept.
    [[nodiscard]] Statement prepareKept(const char* sql);

    /// Whether the disk has refused a page to this connection, which is one for reading through.
    [[nodiscard]] bool hasBeenRefused() const;

private:
    [[nodiscard]] sqlite3_stmt* compiled(const char* sql, unsigned flags);
    [[nodiscard]] SQLiteError error(SQLiteError::Case kind) const;
    void open(const QString& path, Access access);
    void prepareForWriting();
    void close();
    sqlite3* m_handle = nullptr;
    std::unordered_map<const char*, sqlite3_stmt*> m_kept; ///< by their literals, while nobody uses them
};

} // namespace vellumry
