// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/HistoryFile.h"
#include "history/file/MemoryKeyStore.h"
#include "support/Awaited.h"

#include <QDir>
#include <QTemporaryDir>

namespace vellumry {

/// A folder with a history of its own, and the key to it; both go with it. Needs `vellumry_history`.
class TemporaryHistory {
public:
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QString path() const { return m_folder.filePath(historyfile::fileName); }
    [[nodiscard]] MemoryKeyStore& keyStore() { return m_keyStore; }
    [[nodiscard]] SymmetricKey key() { return *m_keyStore.key(); }

    [[nodiscard]] OpenedHistory open() { return ClipDatabase::openHistory(folder(), m_keyStore).value(); }
    [[nodiscard]] std::unique_ptr<ClipStore> openStore(RetentionPolicy policy = {}) {
        const OpenedHistory history = open();
        return awaited(ClipStore::open(history.database, policy, history.recoveredFromDamage));
    }

    /// A connection beside the program's own, for looking into the file and for getting in its way.
    [[nodiscard]] SQLiteDatabase connect() const { return {path(), SQLiteDatabase::Access::readWrite}; }
    /// The names of the history files that were put aside, their companions not counted.
    [[nodiscard]] QStringList backups() const {
        return QDir(folder()).entryList({QStringLiteral("History-unreadable-*.sqlite")}, QDir::Files, QDir::Name);
    }

private:
    QTemporaryDir m_folder;
    MemoryKeyStore m_keyStore;
};

} // namespace vellumry
