// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/PosixFileBookmarks.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <unistd.h>

namespace vellumry {

namespace {

/// What programs call the old file when they save a new one in its place ("a.txt~", "a.txt.bak", ".a.txt.swp"). The
/// file that the user copied is the one that has the name, not its predecessor.
bool isBackupOf(const QByteArray& original, const QByteArray& path) {
    const auto folderEnd = original.lastIndexOf('/') + 1;
    if (!path.startsWith(original.first(folderEnd)))
        return false;
    const QByteArray originalName = original.sliced(folderEnd);
    const QByteArray name = path.sliced(folderEnd);
    return name.size() > originalName.size() && name.contains(originalName) && !name.contains('/');
}

} // namespace

PosixFileBookmarks::Places PosixFileBookmarks::usersPlaces() {
    Places places;
    places.home = QDir::homePath();
    places.dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    for (const auto location :
         {QStandardPaths::DesktopLocation, QStandardPaths::DownloadLocation, QStandardPaths::DocumentsLocation,
          QStandardPaths::PicturesLocation, QStandardPaths::MoviesLocation, QStandardPaths::MusicLocation}) {
        const QString folder = QStandardPaths::writableLocation(location);
        if (!folder.isEmpty() && folder != places.home && !places.userFolders.contains(folder))
            places.userFolders.append(folder);
    }
    return places;
}

PosixFileBookmarks::PosixFileBookmarks(Places places, FileSearch::Bounds bounds)
    : m_places(std::move(places))
    , m_bounds(bounds)
    , m_trash(QFile::encodeName(m_places.dataHome), getuid()) {}

std::optional<QByteArray> PosixFileBookmarks::make(const QString& path) const {
    const QByteArray encoded = QFile::encodeName(QDir::cleanPath(path));
    if (!encoded.startsWith('/') || !m_places.mounts().isLocal(encoded))
        return std::nullopt;
    const auto identity = FileIdentity::of(encoded);
    if (!identity)
        return std::nullopt;
    return FileBookmark{*identity, encoded}.encode();
}

std::optional<QString> PosixFileBookmarks::resolve(const QByteArray& bytes) const {
    const auto bookmark = FileBookmark::decode(bytes);
    if (!bookmark)
        return std::nullopt;
    const MountTable mounts = m_places.mounts();
    if (!mounts.isLocal(bookmark->path))
        return std::nullopt;
    const auto there = FileIdentity::of(bookmark->path);
    if (there && there->isSameFile(bookmark->identity))
        return QFile::decodeName(bookmark->path);
    const auto found = look(*bookmark, mounts, there.has_value());
    return found ? std::optional(QFile::decodeName(*found)) : std::nullopt;
}

std::optional<QByteArray> PosixFileBookmarks::look(const FileBookmark& bookmark, const MountTable& mounts,
                                                   bool isReplaced) const {
    // Each look has bounds of its own: a crowded folder must not use up what the other places need. Without folders to
    // descend into, an entry costs next to nothing.
    constexpr int flatEntriesFactor = 10;
    const FileSearch::Bounds flat{m_bounds.entries * flatEntriesFactor, m_bounds.time};
    FileSearch inFolder(bookmark.identity, mounts, flat);
    if (isReplaced)
        inFolder.isExcluded = [&bookmark](const QByteArray& path) { return isBackupOf(bookmark.path, path); };
    const auto folderEnd = std::max<qsizetype>(1, bookmark.path.lastIndexOf('/'));
    if (auto found = inFolder.inFolder(bookmark.path.first(folderEnd)))
        return found;

    FileSearch inTrash(bookmark.identity, mounts, flat);
    if (auto found = m_trash.find(bookmark, mounts, inTrash))
        return found;

    FileSearch atHome(bookmark.identity, mounts, m_bounds);
    atHome.isExcluded = inFolder.isExcluded;
    for (const QString& folder : m_places.userFolders) {
        if (auto found = atHome.below(QFile::encodeName(folder)))
            return found;
    }
    return atHome.inFolder(QFile::encodeName(m_places.home));
}

bool PosixFileBookmarks::isInTrash(const QString& path) const {
    return m_trash.contains(QFile::encodeName(QDir::cleanPath(path)));
}

} // namespace vellumry
