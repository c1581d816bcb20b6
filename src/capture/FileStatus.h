// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FilePlaces.h"
#include "history/clips/Clip.h"
#include "platform/files/FileBookmarks.h"

#include <functional>

namespace vellumry {

/// Where a remembered file is now.
struct FileStatus {
    enum class Case : quint8 {
        available,         ///< where it was copied from
        moved,             ///< under another path
        inTrash,           ///< in a Trash folder
        volumeUnavailable, ///< its volume is not mounted
        missing,           ///< not found
    };
    Case kind = Case::missing;
    /// `available`, `moved`, `inTrash`: the present path. `volumeUnavailable`: the volume's name. Empty for `missing`.
    QString payload;

    [[nodiscard]] static FileStatus available(QString path) { return {Case::available, std::move(path)}; }
    [[nodiscard]] static FileStatus moved(QString path) { return {Case::moved, std::move(path)}; }
    [[nodiscard]] static FileStatus inTrash(QString path) { return {Case::inTrash, std::move(path)}; }
    [[nodiscard]] static FileStatus volumeUnavailable(QString name) {
        return {Case::volumeUnavailable, std::move(name)};
    }
    [[nodiscard]] static FileStatus missing() { return {}; }

    /// The present path, where there is one.
    [[nodiscard]] std::optional<QString> path() const;

    /// Answers "does something lie at this path", symbolic links followed.
    using Exists = std::function<bool(const QString& path)>;
    /// Looks at the disk and may block; not for the main thread.
    [[nodiscard]] static FileStatus check(const FileRef& ref, const FileBookmarks& bookmarks, const FilePlaces& places,
                                          const Exists& exists);
    /// The same with the disk itself to answer.
    [[nodiscard]] static FileStatus check(const FileRef& ref, const FileBookmarks& bookmarks, const FilePlaces& places);

    bool operator==(const FileStatus&) const = default;
};

} // namespace vellumry
