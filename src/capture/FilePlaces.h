// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace vellumry {

/// Where files lie that may be out of reach: the user's own folders, which a sandbox or a policy may close, and the
/// folders under which removable volumes are mounted. A value; any thread.
struct FilePlaces {
    struct Folder {
        QString path; ///< absolute, no slash at the end
        QString name; ///< as the user knows it
        bool operator==(const Folder&) const = default;
    };
    /// Desktop, Documents and Downloads, in this order.
    std::vector<Folder> personal;
    /// Further folders that are tried before a paste, without a name of their own.
    QStringList others;
    /// Folders whose subfolders are volumes, such as "/run/media/USER".
    QStringList volumeRoots;

    /// The folders of the user-dirs settings (freedesktop), the home Trash, and the usual places of removable volumes.
    [[nodiscard]] static FilePlaces ofUser(const QString& home);
    /// The same with the English folder names under `home`, whatever the settings say. The disk is not touched.
    [[nodiscard]] static FilePlaces underHome(const QString& home, const QString& user);

    /// The folder of the volume that `path` lies on, "/run/media/USER/NAME"; nothing for a path on no volume.
    [[nodiscard]] std::optional<QString> volumeOf(const QString& path) const;

    bool operator==(const FilePlaces&) const = default;
};

/// True when `path` is `folder` or lies under it. Both absolute, without a slash at the end; nothing is resolved.
[[nodiscard]] bool isAtOrUnder(const QString& path, const QString& folder);

} // namespace vellumry
