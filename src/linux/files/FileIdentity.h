// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace vellumry {

/// What makes a file the same file under another name. A value; any thread.
struct FileIdentity {
    quint64 device = 0;
    quint64 fileSystem =
        0; ///< the file system's own number (statfs(2), f_fsid), which outlives device numbers; 0: none
    quint64 inode = 0;
    qint64 birthSeconds = 0;
    quint32 birthNanoseconds = 0;
    bool hasBirthTime = false;
    qint64 size = 0; ///< bytes; not part of the identity where there is a birth time: files grow

    bool operator==(const FileIdentity&) const = default;

    /// The identity of what lies at `path`, links not followed; nothing when it cannot be examined.
    [[nodiscard]] static std::optional<FileIdentity> of(const QByteArray& path);
    [[nodiscard]] bool isSameFile(const FileIdentity& other) const;
    [[nodiscard]] bool isOnSameFileSystem(const FileIdentity& other) const;
};

/// A remembered file: which it was and where. Encoded as opaque bytes with a version in front.
struct FileBookmark {
    FileIdentity identity;
    QByteArray path; ///< as the file system spells it

    bool operator==(const FileBookmark&) const = default;

    [[nodiscard]] QByteArray encode() const;
    /// Nothing for bytes that `encode` did not make.
    [[nodiscard]] static std::optional<FileBookmark> decode(const QByteArray& bytes);
};

} // namespace vellumry
