// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The settings' file on the disk: what tells its states apart, reading it, and replacing it whole. Any thread.
namespace vellumry::settingsfile {

/// What tells one state of a file from the next. A value; the default one is that of no file.
struct FileState {
    quint64 inode = 0;
    qint64 size = -1;              ///< bytes
    qint64 changedNanoseconds = 0; ///< since 1970, UTC
    bool isRegular = false;
    bool operator==(const FileState&) const = default;
};

[[nodiscard]] FileState stateOf(const QString& path);

/// True while the next change of the file may leave its state as it is: a file's time moves in steps of some
/// milliseconds.
[[nodiscard]] bool mayChangeUnseen(const FileState& state);

/// The content of a regular file of at most 1 MiB; nothing for any other, or without permission. Never waits for a
/// writer, as opening a pipe would.
[[nodiscard]] std::optional<QByteArray> contentOf(const QString& path);

/// Replaces the file by one with this content, which only the user may read, and makes its folder if need be. On
/// success it outlives a loss of power; on failure the old file is there, whole.
[[nodiscard]] bool write(const QString& path, const QByteArray& content);

} // namespace vellumry::settingsfile
