// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/FileBookmarks.h"

#include <QSet>
#include <map>

namespace vellumry {

/// Bookmarks without a disk: the bookmark of a path is "bookmark:" and the path, and leads where `moves` says.
class FakeFileBookmarks : public FileBookmarks {
public:
    QSet<QString> unreadablePaths;    ///< `make` gives nothing for these
    QSet<QString> lostPaths;          ///< `resolve` finds nothing for bookmarks of these
    std::map<QString, QString> moves; ///< from where a file was to where it is now
    QSet<QString> trashedPaths;       ///< present paths that lie in a Trash folder

    [[nodiscard]] static QByteArray bookmarkOf(const QString& path) { return "bookmark:" + path.toUtf8(); }

    [[nodiscard]] std::optional<QByteArray> make(const QString& path) const override {
        if (unreadablePaths.contains(path))
            return std::nullopt;
        return bookmarkOf(path);
    }
    [[nodiscard]] std::optional<QString> resolve(const QByteArray& bookmark) const override {
        if (!bookmark.startsWith("bookmark:"))
            return std::nullopt;
        const auto path = QString::fromUtf8(bookmark.mid(9));
        if (lostPaths.contains(path))
            return std::nullopt;
        const auto moved = moves.find(path);
        return moved == moves.end() ? path : moved->second;
    }
    [[nodiscard]] bool isInTrash(const QString& path) const override { return trashedPaths.contains(path); }
};

} // namespace vellumry
