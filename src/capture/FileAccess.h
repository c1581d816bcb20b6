// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FilePlaces.h"

#include <QCoroTask>
#include <functional>

namespace vellumry {

/// Tells whether this process may read files right now, by really trying, so that a paste can name the folder that is
/// closed in place of pasting nothing.
class FileAccess {
public:
    /// The answer for a set of files.
    struct Result {
        /// The name of the place of the first file that may not be read; nothing when all may.
        std::optional<QString> blocked;

        [[nodiscard]] bool isAllowed() const { return !blocked.has_value(); }
        bool operator==(const Result&) const = default;
    };
    /// Answers "may this be read"; blocking.
    using Probe = std::function<bool(const QString& path)>;

    /// Tries the files at `paths` (absolute) that lie in a protected place or on a volume, in their order; others are
    /// taken to be readable without a try. Main thread; the disk is touched elsewhere. A disk that does not answer
    /// within 3 seconds proves nothing and counts as allowed.
    [[nodiscard]] static QCoro::Task<Result> check(QStringList paths, FilePlaces places);

    /// `check` on the calling thread, which may block for as long as the disk does.
    [[nodiscard]] static Result examine(const QStringList& paths, const FilePlaces& places, const Probe& probe);

    /// False on proof of a permission failure only: a file that is missing or broken in another way gives true. Opens,
    /// and reads no byte. May block; any thread.
    [[nodiscard]] static bool canRead(const QString& path);

    /// The name by which the user knows the place of `path`: the folder's own, the volume's, else the parent folder's.
    [[nodiscard]] static QString displayName(const QString& path, const FilePlaces& places);

    /// EACCES and EPERM.
    [[nodiscard]] static bool isPermissionError(int error);
};

} // namespace vellumry
