// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/SQLiteDatabase.h"

#include <QFile>
#include <QString>
#include <array>
#include <stdexcept>

namespace vellumry {

/// Overwrites where SQLite notes the rows of a page, in each page that names the first row used at `used` or later: the
/// file opens, and what lies on other pages can be read.
inline void damagePageOfRow(const QString& path, double used) {
    QByteArray id;
    {
        SQLiteDatabase database(path, SQLiteDatabase::Access::readWrite);
        database.execute("PRAGMA wal_checkpoint(TRUNCATE);");
        auto row = database.prepare("SELECT id FROM clips WHERE used >= ? ORDER BY used LIMIT 1;");
        row.bind(std::array<SQLValue, 1>{used});
        row.step();
        id = row.text(0).toByteArray();
    }
    QFile file(path);
    if (id.isEmpty() || !file.open(QIODevice::ReadWrite))
        throw std::runtime_error("There is no such row.");
    QByteArray bytes = file.readAll();
    constexpr qsizetype pageSize = 4096;
    constexpr qsizetype headerSize = 8;
    for (qsizetype at = bytes.indexOf(id); at >= 0; at = bytes.indexOf(id, at + 1))
        bytes.replace(at / pageSize * pageSize + headerSize, 16, QByteArray(16, '\xff'));
    file.seek(0);
    file.write(bytes);
}

} // namespace vellumry
