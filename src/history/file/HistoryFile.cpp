// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/HistoryFile.h"

#include "foundation/BulkWork.h"
#include "history/file/ClipRows.h"
#include "history/file/SQLiteDatabase.h"
#include "history/file/Unsealer.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <filesystem>
#include <sqlite3.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace vellumry::historyfile {

namespace {

namespace fs = std::filesystem;

QByteArray encodedCompanion(const QString& path, const char* suffix) {
    return QFile::encodeName(path) + suffix;
}

/// What the check could not read is not thereby damaged: of a page that the disk refused it says so among the faults,
/// in these words, and goes on.
bool couldNotRead(const QByteArray& finding) {
    static const QRegularExpression errorCode(QStringLiteral("error code=(\\d+)"));
    if (finding.contains("failed to get page"))
        return true;
    auto codes = errorCode.globalMatch(QString::fromUtf8(finding));
    while (codes.hasNext()) {
        if ((codes.next().captured(1).toInt() & 0xff) != SQLITE_CORRUPT)
            return true;
    }
    return false;
}

bool passesQuickCheck(SQLiteDatabase& database) {
    // Of all pages the check needs a few again. So many stay in the processor's own cache.
    database.execute("PRAGMA cache_size = 64;");
    auto check = database.prepare("PRAGMA quick_check;");
    QByteArray findings;
    while (check.step())
        findings += check.text(0).toByteArray() + '\n';
    if (couldNotRead(findings) || database.hasBeenRefused())
        throw SQLiteError(SQLiteError::Case::step, SQLITE_IOERR_READ, "a page cannot be read");
    return findings == "ok\n";
}

bool hasClipsTable(SQLiteDatabase& database) {
    auto table = database.prepare("SELECT name FROM sqlite_master WHERE type='table' AND name='clips';");
    return table.step();
}

/// The test of the key: a sound file that was sealed with another key has no row that opens. The first one that does
/// ends the search, as a rule the latest.
bool anyClipOpens(SQLiteDatabase& database, const SymmetricKey& key) {
    auto metas = database.prepare("SELECT meta FROM clips ORDER BY used DESC;");
    if (!metas.step())
        return true;
    Unsealer unsealer(key);
    do {
        if (unsealer.open(metas.blob(0)))
            return true;
    } while (metas.step());
    return false;
}

bool isSound(const QString& path, const SymmetricKey& key) {
    // A journal can be played back by a connection only that may write.
    const bool hasJournal = QFile::exists(QFile::decodeName(encodedCompanion(path, "-journal")));
    try {
        SQLiteDatabase database(path,
                                hasJournal ? SQLiteDatabase::Access::recover : SQLiteDatabase::Access::readThrough);
        if (!passesQuickCheck(database))
            return false;
        if (!hasClipsTable(database))
            return true;
        cliprows::requireColumns(database);
        return anyClipOpens(database, key);
    } catch (const SQLiteError& error) {
        if (isDamage(error))
            return false;
        throw;
    }
}

bool hasPassedCheck(const QString& path) {
    try {
        SQLiteDatabase database(path, SQLiteDatabase::Access::readThrough);
        return passesQuickCheck(database);
    } catch (const SQLiteError& error) {
        if (isDamage(error))
            return false;
        throw;
    }
}

/// The file gives single pages back already; where it does not, opening it rewrites it.
bool hasIncrementalVacuum(SQLiteDatabase& database) {
    auto mode = database.prepare("PRAGMA auto_vacuum;");
    return mode.step() && mode.text(0) == "2";
}

} // namespace

bool isDamage(const SQLiteError& error) {
    const bool isForeignTable = error.code() == SQLITE_ERROR && error.kind() == SQLiteError::Case::prepare;
    return error.code() == SQLITE_CORRUPT || error.code() == SQLITE_NOTADB || isForeignTable;
}

bool isReadable(const QString& path, const SymmetricKey& key) {
    return isSound(path, key) || isSound(path, key);
}

bool looksReadable(const QString& path, const SymmetricKey& key) {
    if (!QFile::exists(path) || QFile::exists(QFile::decodeName(encodedCompanion(path, "-journal"))))
        return false;
    try {
        SQLiteDatabase database(path, SQLiteDatabase::Access::readOnly);
        if (!hasIncrementalVacuum(database) || !hasClipsTable(database))
            return false;
        cliprows::requireColumns(database);
        auto meta = database.prepare("SELECT meta FROM clips ORDER BY used DESC LIMIT 1;");
        return meta.step() && Unsealer(key).open(meta.blob(0)).has_value();
    } catch (const std::exception&) {
        return false;
    }
}

bool passesCheck(const QString& path) {
    const BulkWork work;
    return hasPassedCheck(path) || hasPassedCheck(path);
}

void moveAside(const QString& path, Date now) {
    const auto seconds = static_cast<qint64>(now);
    const QString stamp = QDateTime::fromSecsSinceEpoch(seconds).toUTC().toString(Qt::ISODate).replace(u':', u'-');
    const fs::path folder = fs::path(QFile::encodeName(path).toStdString()).parent_path();
    const std::string backup = "History-unreadable-" + stamp.toStdString() + ".sqlite";
    std::vector<std::pair<fs::path, fs::path>> moved;
    try {
        for (const char* suffix : companionSuffixes) {
            const fs::path from(encodedCompanion(path, suffix).toStdString());
            const fs::path to = folder / (backup + suffix);
            if (!fs::exists(from))
                continue;
            if (fs::exists(to))
                throw fs::filesystem_error("Couldn't put the history file aside", from, to,
                                           std::make_error_code(std::errc::file_exists));
            fs::rename(from, to);
            moved.emplace_back(from, to);
        }
    } catch (...) {
        // A file that is parted from its log has lost what is in the log.
        for (const auto& [from, to] : moved) {
            std::error_code ignored;
            fs::rename(to, from, ignored);
        }
        throw;
    }
}

QStringList backups(const QString& folder) {
    QStringList paths;
    for (const QString& name :
         QDir(folder).entryList({QStringLiteral("History-unreadable-*.sqlite")}, QDir::Files, QDir::Name))
        paths.append(QDir(folder).filePath(name));
    return paths;
}

void restrictToUser(const QString& path) {
    for (const char* suffix : companionSuffixes) {
        const QByteArray name = encodedCompanion(path, suffix);
        if (QFile::exists(QFile::decodeName(name)))
            ::chmod(name.constData(), S_IRUSR | S_IWUSR);
    }
}

} // namespace vellumry::historyfile
