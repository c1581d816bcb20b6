// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/KlipperDatabaseHistory.h"

#include "linux/peers/PeerItems.h"

#include <QHash>
#include <algorithm>
#include <sqlite3.h>

namespace vellumry {

namespace {

constexpr qint64 largestDatabase = qint64{256} << 20;
/// More than the program lets anybody keep.
constexpr std::size_t mostRows = 1'000'000;

struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

std::unique_ptr<sqlite3_stmt, Close> prepared(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    return std::unique_ptr<sqlite3_stmt, Close>(statement);
}

QByteArray bytesOf(sqlite3_stmt* statement, int column) {
    const void* bytes = sqlite3_column_blob(statement, column);
    return {static_cast<const char*>(bytes), sqlite3_column_bytes(statement, column)};
}

/// Names of folders and files: the program takes check sums, and nothing else may lead out of its folder.
bool isName(const QString& name) {
    return !name.isEmpty() && std::ranges::all_of(name, [](QChar letter) {
        return (letter >= u'0' && letter <= u'9') || (letter >= u'a' && letter <= u'z') || letter == u'-';
    });
}

bool copyFile(ForeignFile& from, const QString& to) {
    QFile file(to);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray bytes = from.rest();
    return file.write(bytes) == bytes.size() && file.flush();
}

/// Nothing there is worked out while it is read: a column that is could hold more than all memory.
bool hasPlainColumns(sqlite3* database) {
    const auto columns = prepared(database, "SELECT 1 FROM pragma_table_xinfo('main') WHERE hidden <> 0 "
                                            "UNION ALL SELECT 1 FROM pragma_table_xinfo('aux') WHERE hidden <> 0");
    return columns && sqlite3_step(columns.get()) == SQLITE_DONE;
}

} // namespace

std::expected<std::unique_ptr<KlipperDatabaseHistory>, PeerHistory::State>
KlipperDatabaseHistory::open(const QString& folder, const QString& scratch) {
    auto database = ForeignFile::open(folder + QStringLiteral("/history3.sqlite"), largestDatabase);
    if (!database)
        return std::unexpected(stateOf(database.error()));
    // QTemporaryDir completes the name, makes the folder with mode 700 and removes it with its content.
    const QTemporaryDir copy(scratch + QStringLiteral("/vellumry-"));
    const QString path = copy.filePath(QStringLiteral("history3.sqlite"));
    if (!copy.isValid() || !copyFile(*database, path))
        return std::unexpected(PeerHistory::State::unreadable);
    auto log = ForeignFile::open(folder + QStringLiteral("/history3.sqlite-wal"), largestDatabase);
    if (log && !copyFile(*log, path + QStringLiteral("-wal")))
        return std::unexpected(PeerHistory::State::unreadable);
    std::unique_ptr<KlipperDatabaseHistory> history(new KlipperDatabaseHistory(folder));
    history->m_modified = database->modified();
    history->m_isDamaged = !history->readEntries(path);
    return history;
}

/// False where the database is none, or ends in the middle.
bool KlipperDatabaseHistory::readEntries(const QString& path) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &opened,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, Close> database(opened);
    if (result != SQLITE_OK)
        return false;
    // Triggers and views of a foreign file are none of ours to run.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, static_cast<int>(peeritems::mostBytes));
    if (!hasPlainColumns(opened))
        return false;
    auto rows = prepared(opened, "SELECT uuid, text, coalesce(last_used_time, added_time), starred FROM main "
                                 "ORDER BY last_used_time DESC, added_time DESC");
    if (!rows) // without the column that came later
        rows = prepared(opened, "SELECT uuid, text, coalesce(last_used_time, added_time), 0 FROM main "
                                "ORDER BY last_used_time DESC, added_time DESC");
    if (!rows)
        return false;
    int step = 0;
    QHash<QString, Entry*> byIdentifier;
    while ((step = sqlite3_step(rows.get())) == SQLITE_ROW && m_entries.size() < mostRows) {
        Entry entry{QString::fromUtf8(bytesOf(rows.get(), 0)), bytesOf(rows.get(), 1), std::nullopt};
        if (const double time = sqlite3_column_double(rows.get(), 2); time > 0)
            entry.usedAt = time;
        entry.isPinned = sqlite3_column_int(rows.get(), 3) != 0;
        m_entries.push_back(std::move(entry));
        byIdentifier.insert(m_entries.back().identifier, &m_entries.back());
    }
    const bool areRowsWhole = step == SQLITE_DONE;
    const auto forms = prepared(opened, "SELECT uuid, mimetype, data_uuid FROM aux");
    std::size_t count = 0;
    while (forms && (step = sqlite3_step(forms.get())) == SQLITE_ROW && ++count < mostRows) {
        if (Entry* entry = byIdentifier.value(QString::fromUtf8(bytesOf(forms.get(), 0))))
            entry->forms.emplace_back(QString::fromUtf8(bytesOf(forms.get(), 1)),
                                      QString::fromUtf8(bytesOf(forms.get(), 2)));
    }
    return areRowsWhole && forms && step == SQLITE_DONE;
}

std::optional<PeerClip> KlipperDatabaseHistory::next() {
    if (m_entries.empty())
        return std::nullopt;
    const Entry entry = std::move(m_entries.front());
    m_entries.pop_front();
    peeritems::Formats formats;
    for (const auto& [type, name] : entry.forms) {
        if (!isName(entry.identifier) || !isName(name))
            continue;
        auto file = ForeignFile::open(m_folder + QStringLiteral("/data/") + entry.identifier + u'/' + name,
                                      peeritems::mostBytes);
        if (file)
            formats.emplace_back(type, file->rest());
    }
    PeerClip clip = peeritems::ofFormats(formats);
    if (clip.items.empty() && !clip.isLocked && !entry.text.isEmpty())
        clip.items = peeritems::text(entry.text);
    clip.copiedAt = entry.usedAt;
    clip.isPinned = entry.isPinned;
    return clip;
}

} // namespace vellumry
