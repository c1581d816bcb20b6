// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileStatus.h"
#include "history/clips/Clip.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

/// From the files that a clip remembers to the files as they are now. Pure functions; the disk is asked in between.
namespace vellumry::fileresolution {

/// A reference for each item that is a file, in item order: the clip's own where it has one for that path.
[[nodiscard]] std::vector<FileRef> references(const std::vector<PasteboardItem>& items,
                                              const std::vector<FileRef>& files);

/// The items with their files' present URLs; items of files that cannot be had are left out, items that are no files
/// stay. `statuses` belong to `references`. Nothing when none of the files can be had.
[[nodiscard]] std::optional<std::vector<PasteboardItem>> resolved(std::vector<PasteboardItem> items,
                                                                  const std::vector<FileStatus>& statuses);

/// One status for each of `files`, by `check`, which may look for a file for a while. Those that are where they were
/// come first; what is gone is looked for as long as all of them together have taken no more than `budget`, and is
/// missing after that. Blocks; any thread.
[[nodiscard]] std::vector<FileStatus>
statusesOf(const std::vector<FileRef>& files, const std::function<FileStatus(const FileRef&)>& check,
           std::chrono::milliseconds budget,
           const std::function<std::chrono::steady_clock::time_point()>& now = std::chrono::steady_clock::now);

/// The paths of the items' files, in their order.
[[nodiscard]] QStringList paths(const std::vector<PasteboardItem>& items);

/// The whole of it on the calling thread, which waits for the disk, `limit` at most. A disk that does not
/// answer by then proves nothing: the items as they are. `status` may run on after that, on another thread.
[[nodiscard]] std::optional<std::vector<PasteboardItem>>
resolveNow(std::vector<PasteboardItem> items, const std::vector<FileRef>& files,
           const std::function<FileStatus(const FileRef&)>& status, std::chrono::milliseconds limit);

} // namespace vellumry::fileresolution
