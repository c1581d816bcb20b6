// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/SQLiteError.h"
#include "platform/desktop/KeyStore.h"

#include <QString>
#include <system_error>

namespace vellumry {

/// Why the history file cannot be worked with now. It stays as it is, and may be opened later.
enum class HistoryFailure {
    keyringAbsent,
    keyringLocked,
    keyringRefused,
    keyDamaged,
    folderNotWritable,
    diskFull,
    fileUnreadable, ///< the disk or the file's mode keeps it from being read or written
    fileBusy,       ///< another process holds it
};

[[nodiscard]] HistoryFailure historyFailureOf(KeyFailure failure);
/// Of the history file at `path`.
[[nodiscard]] HistoryFailure historyFailureOf(const SQLiteError& error, const QString& path);
[[nodiscard]] HistoryFailure historyFailureOf(const std::error_code& error);

/// In a few words, in English, for the log and for those that help with a problem.
[[nodiscard]] const char* reasonOf(HistoryFailure failure);

} // namespace vellumry
