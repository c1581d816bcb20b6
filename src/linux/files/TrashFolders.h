// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/files/FileSearch.h"

namespace vellumry {

/// The Trash folders of the user, at home and on volumes (freedesktop Trash Specification 1.0). A value; any thread.
class TrashFolders {
public:
    /// `dataHome` is `$XDG_DATA_HOME`; `user` the number that names the folders on volumes.
    TrashFolders(QByteArray dataHome, quint32 user);

    /// True when `path` lies among the files of a Trash.
    [[nodiscard]] bool contains(const QByteArray& path) const;
    /// Where the file is in the Trash that it would go to from `bookmark.path`: by its identity, and where it went with
    /// a folder above it, or a Trash on another file system made it a new file, by the note of where that came from.
    /// `search` bounds the look.
    [[nodiscard]] std::optional<QByteArray> find(const FileBookmark& bookmark, const MountTable& mounts,
                                                 FileSearch& search) const;

private:
    [[nodiscard]] std::vector<QByteArray> foldersFor(const QByteArray& mountPoint) const;
    [[nodiscard]] std::optional<QByteArray> findByNote(const QByteArray& trash, const FileBookmark& bookmark,
                                                       FileSearch& search) const;

    QByteArray m_homeTrash;
    QByteArray m_user;
};

} // namespace vellumry
