// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/files/FileSearch.h"
#include "linux/files/TrashFolders.h"
#include "platform/files/FileBookmarks.h"

#include <QStringList>
#include <functional>

namespace vellumry {

/// Finds files again by inode and birth time (statx(2)): at their path, in their folder, in the Trash, and by a bounded
/// look through the user's own folders. Network file systems are never touched. Blocking, milliseconds; any thread.
class PosixFileBookmarks : public FileBookmarks {
public:
    /// Where to look, and whose Trash it is.
    struct Places {
        QString dataHome;
        QStringList userFolders; ///< looked through in this order, their folders included
        QString home;            ///< only its own entries are looked through
        /// The mounts as they are at the time of the call.
        std::function<MountTable()> mounts = MountTable::current;
    };
    /// The places of the user whose process this is.
    [[nodiscard]] static Places usersPlaces();

    explicit PosixFileBookmarks(Places places = usersPlaces(), FileSearch::Bounds bounds = FileSearch::Bounds());

    [[nodiscard]] std::optional<QByteArray> make(const QString& path) const override;
    [[nodiscard]] std::optional<QString> resolve(const QByteArray& bookmark) const override;
    [[nodiscard]] bool isInTrash(const QString& path) const override;

private:
    [[nodiscard]] std::optional<QByteArray> look(const FileBookmark& bookmark, const MountTable& mounts,
                                                 bool isReplaced) const;

    Places m_places;
    FileSearch::Bounds m_bounds;
    TrashFolders m_trash;
};

} // namespace vellumry
