// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FilePlaces.h"
#include "capture/FileStatus.h"

#include <QByteArray>
#include <functional>
#include <vector>

namespace vellumry {

/// The pictures that a clip of files stands for, read from the disk for the sake of their text.
struct PictureFiles {
    /// Bytes of the files that could be read, in order.
    std::vector<QByteArray> pictures;
    /// A file lies where only the user's own word lets us read: nothing was read.
    bool isLeftForUser = false;

    /// At most this many files of a clip are looked at.
    static constexpr int maxFiles = 5;
    /// A larger file is not read.
    static constexpr qint64 maxFileBytes = 104'857'600;

    using Status = std::function<FileStatus(const FileRef&)>;
    using CanReadQuietly = std::function<bool(const QString& path)>;

    /// Reads those of `files` that are still to be found, are pictures by their names, and are regular files. Looks at
    /// the disk and may block; not for the main thread.
    [[nodiscard]] static PictureFiles collect(const std::vector<FileRef>& files, bool isAsked, const Status& status,
                                              const CanReadQuietly& canReadQuietly);

    /// True when the file can be opened for reading. Looks at the disk and may block.
    [[nodiscard]] static bool opens(const QString& path);
    /// True when `path`, and what it leads to, lies in no protected folder and on no volume.
    [[nodiscard]] static bool isOutside(const FilePlaces& places, const QString& path);
};

} // namespace vellumry
