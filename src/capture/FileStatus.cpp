// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FileStatus.h"

#include "capture/DiskPath.h"
#include "foundation/FileUrl.h"

namespace vellumry {

std::optional<QString> FileStatus::path() const {
    switch (kind) {
    case Case::available:
    case Case::moved:
    case Case::inTrash:
        return payload;
    case Case::volumeUnavailable:
    case Case::missing:
        break;
    }
    return std::nullopt;
}

FileStatus FileStatus::check(const FileRef& ref, const FileBookmarks& bookmarks, const FilePlaces& places,
                             const Exists& exists) {
    const QString recorded = fileurl::standardized(ref.path);

    if (const auto found = ref.bookmark ? bookmarks.resolve(*ref.bookmark) : std::nullopt) {
        const QString now = fileurl::standardized(*found);
        if (exists(now)) {
            // The Trash comes first: a file that was copied out of it is still a deleted one.
            if (bookmarks.isInTrash(now))
                return inTrash(now);
            return now == recorded ? available(now) : moved(now);
        }
    }

    if (exists(recorded))
        return available(recorded);

    if (const auto volume = places.volumeOf(recorded); volume && !exists(*volume))
        return volumeUnavailable(fileurl::lastPathComponent(*volume));
    return missing();
}

FileStatus FileStatus::check(const FileRef& ref, const FileBookmarks& bookmarks, const FilePlaces& places) {
    return check(ref, bookmarks, places, existsOnDisk);
}

} // namespace vellumry
