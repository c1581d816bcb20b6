// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/HistoryFile.h"

#include "history/file/SQLiteDatabase.h"
#include "history/file/Unsealer.h"

#include <QDateTime>
#include <QFile>
#include <filesystem>
#include <optional>
#include <sys/stat.h>

namespace vellumry::historyfile {

namespace {

namespace fs = std::filesystem;

QByteArray encodedCompanion(const QString& path, const char* suffix) {
    return QFile::encodeName(path) + suffix;
}

bool passesQuickCheck(SQLiteDatabase& database) {
    auto check = database.prepare("PRAGMA quick_check;");
    return check.step() && check.text(0) == "ok";
}

/// A file whose table of contents cannot be asked is treated as one without clips; what else is wrong with it shows
/// when the database is made.
bool mayHaveClips(SQLiteDatabase& database) {
    try {
        auto table = database.prepare("SELECT name FROM sqlite_master WHERE type='table' AND name='clips';");
        return table.step();
    } catch (const SQLiteError&) {
        return false;
    }
}

/// The test of the key: a sound file that was sealed with another key has no row among its latest five that opens.
bool latestClipsOpen(SQLiteDatabase& database, const SymmetricKey& key) {
    auto latest = database.prepare("SELECT meta FROM clips ORDER BY used DESC LIMIT 5;");
    try {
        if (!latest.step())
            return true;
    } catch (const SQLiteError&) {
        return true;
    }
    Unsealer unsealer(key);
    do {
        if (unsealer.open(latest.blob(0)))
            return true;
    } while (latest.step());
    return false;
}

} // namespace

bool isReadable(const QString& path, const SymmetricKey& key) {
    try {
        SQLiteDatabase database(path, SQLiteDatabase::Access::readOnly);
        return passesQuickCheck(database) && (!mayHaveClips(database) || latestClipsOpen(database, key));
    } catch (const SQLiteError&) {
        return false;
    }
}

void moveAside(const QString& path, Date now) {
    const auto seconds = static_cast<qint64>(now);
    const QString stamp = QDateTime::fromSecsSinceEpoch(seconds).toUTC().toString(Qt::ISODate).replace(u':', u'-');
    const fs::path folder = fs::path(QFile::encodeName(path).toStdString()).parent_path();
    const std::string backup = "History-unreadable-" + stamp.toStdString() + ".sqlite";
    for (const char* suffix : companionSuffixes) {
        const fs::path from(encodedCompanion(path, suffix).toStdString());
        const fs::path to = folder / (backup + suffix);
        if (!fs::exists(from))
            continue;
        if (fs::exists(to))
            throw fs::filesystem_error("Couldn't put the history file aside", from, to,
                                       std::make_error_code(std::errc::file_exists));
        fs::rename(from, to);
    }
}

void restrictToUser(const QString& path) {
    for (const char* suffix : companionSuffixes) {
        const QByteArray name = encodedCompanion(path, suffix);
        if (QFile::exists(QFile::decodeName(name)))
            ::chmod(name.constData(), S_IRUSR | S_IWUSR);
    }
}

} // namespace vellumry::historyfile
