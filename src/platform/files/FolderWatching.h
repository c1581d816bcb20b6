// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <functional>
#include <memory>

namespace vellumry {

/// Some folders that are being watched; its end is the end of the watching. Main thread.
class FolderWatch {
public:
    virtual ~FolderWatch() = default;
};

/// Notices what appears in folders. Main thread; the disk is touched elsewhere.
class FolderWatching {
public:
    virtual ~FolderWatching() = default;

    /// Calls `onChanged` on the main thread when an entry of one of `folders` appeared, was renamed or was written to
    /// its end; several changes may come as one call. A folder that does not exist, or goes away, is watched from when
    /// it is there (again), which is a change too. The watch begins in a while: that is told as well, for what changed
    /// until then. Null when the system has no means of watching.
    [[nodiscard]] virtual std::unique_ptr<FolderWatch> watch(QStringList folders, std::function<void()> onChanged) = 0;
};

} // namespace vellumry
