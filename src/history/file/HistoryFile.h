// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "foundation/SecureBytes.h"
#include "history/file/SQLiteError.h"

#include <QString>
#include <QStringList>
#include <array>

/// The history file seen from outside, before anybody works with it. Any thread; blocking.
namespace vellumry::historyfile {

inline const QString fileName = QStringLiteral("History.sqlite");
/// What SQLite puts behind the file's name for its companions; the first is the file itself.
inline constexpr std::array companionSuffixes{"", "-wal", "-shm", "-journal"};

/// Whether the failure shows damage, rather than a disk or a process that is in the way.
[[nodiscard]] bool isDamage(const SQLiteError& error);

/// Whether the existing file at `path` is a sound history that `key` opens: SQLite's own check holds, the table has our
/// columns, and at least one of its rows can be unsealed. A file without clips has nothing to lose and counts as
/// readable. False means damage, seen twice; where a full disk, a lock or a bad sector keeps the file from being looked
/// at, throws SQLiteError. Changes nothing but that it plays back what a power cut left in a rollback journal.
[[nodiscard]] bool isReadable(const QString& path, const SymmetricKey& key);

/// Whether the existing file can be worked with before it was looked through: nothing has to be played back or
/// rewritten, the table has our columns, and `key` opens its latest row. Never throws: false when anything is in doubt.
[[nodiscard]] bool looksReadable(const QString& path, const SymmetricKey& key);

/// The part of `isReadable` that goes through the whole file: SQLite's own check. False means damage, seen twice;
/// throws SQLiteError as that does.
[[nodiscard]] bool passesCheck(const QString& path);

/// Moves the file and its companions to "History-unreadable-", the time and ".sqlite" in the same folder, never over a
/// file that is there. Throws std::filesystem::filesystem_error at the first that cannot be moved; what was moved is
/// moved back then.
void moveAside(const QString& path, Date now);

/// The paths of what was put aside in `folder`, oldest first, companions left out.
[[nodiscard]] QStringList backups(const QString& folder);

/// Makes the file and its companions the user's alone (mode 600). A failure is ignored: some file systems know no
/// modes.
void restrictToUser(const QString& path);

} // namespace vellumry::historyfile
