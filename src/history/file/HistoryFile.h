// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "foundation/SecureBytes.h"

#include <QString>
#include <array>

/// The history file seen from outside, before anybody works with it. Any thread; blocking.
namespace vellumry::historyfile {

inline const QString fileName = QStringLiteral("History.sqlite");
/// What SQLite puts behind the file's name for its companions; the first is the file itself.
inline constexpr std::array companionSuffixes{"", "-wal", "-shm"};

/// Whether the existing file at `path` is a sound history that `key` opens: SQLite's own check holds, and of its five
/// latest rows at least one can be unsealed. A file without clips has nothing to lose and counts as readable. Changes
/// nothing.
[[nodiscard]] bool isReadable(const QString& path, const SymmetricKey& key);

/// Moves the file and its companions to "History-unreadable-", the time and ".sqlite" in the same folder, never over a
/// file that is there. Throws std::filesystem::filesystem_error at the first that cannot be moved; what was moved stays
/// moved.
void moveAside(const QString& path, Date now);

/// Makes the file and its companions the user's alone (mode 600). A failure is ignored: some file systems know no
/// modes.
void restrictToUser(const QString& path);

} // namespace vellumry::historyfile
