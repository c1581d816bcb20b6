// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/HistoryFailure.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <sqlite3.h>
#include <unistd.h>

namespace vellumry {

namespace {

/// A quota and a limit on the length of files look like a full disk to a writer, and to the user.
bool isLackOfRoom(int systemError) {
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

bool isFolderWritable(const QString& path) {
    return ::access(QFile::encodeName(QFileInfo(path).path()).constData(), W_OK | X_OK) == 0;
}

} // namespace

HistoryFailure historyFailureOf(KeyFailure failure) {
    switch (failure) {
    case KeyFailure::absent:
        return HistoryFailure::keyringAbsent;
    case KeyFailure::uncertain:
    case KeyFailure::locked:
        return HistoryFailure::keyringLocked;
    case KeyFailure::damaged:
        return HistoryFailure::keyDamaged;
    case KeyFailure::refused:
        break;
    }
    return HistoryFailure::keyringRefused;
}

HistoryFailure historyFailureOf(const SQLiteError& error, const QString& path) {
    // A cleanly closed history needs room for its "-shm" before anybody can read it.
    if (error.code() == SQLITE_FULL || error.extendedCode() == SQLITE_IOERR_SHMSIZE ||
        isLackOfRoom(error.systemError()))
        return HistoryFailure::diskFull;
    switch (error.code()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        return HistoryFailure::fileBusy;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_READONLY:
        return isFolderWritable(path) ? HistoryFailure::fileUnreadable : HistoryFailure::folderNotWritable;
    default:
        return HistoryFailure::fileUnreadable;
    }
}

const char* reasonOf(HistoryFailure failure) {
    switch (failure) {
    case HistoryFailure::keyringAbsent:
        return "no keyring answers";
    case HistoryFailure::keyringLocked:
        return "the keyring is locked or closed";
    case HistoryFailure::keyringRefused:
        return "the keyring refused the key";
    case HistoryFailure::keyDamaged:
        return "the key in the keyring is damaged";
    case HistoryFailure::folderNotWritable:
        return "the folder cannot be written to";
    case HistoryFailure::diskFull:
        return "the disk is full";
    case HistoryFailure::fileUnreadable:
        return "the file cannot be read or written";
    case HistoryFailure::fileBusy:
        break;
    }
    return "another process holds the file";
}

HistoryFailure historyFailureOf(const std::error_code& error) {
    return isLackOfRoom(error.value()) ? HistoryFailure::diskFull : HistoryFailure::folderNotWritable;
}

} // namespace vellumry
