// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/FolderWatching.h"

namespace vellumry {

/// Watches folders through inotify(7), on a thread that sleeps until something happens. The kernel tells of what
/// programs of this machine do; in a folder of a network file system others' files are noticed with the next of ours.
class InotifyFolderWatching final : public FolderWatching {
public:
    [[nodiscard]] std::unique_ptr<FolderWatch> watch(QStringList folders, std::function<void()> onChanged) override;
};

} // namespace vellumry
