// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/FileIdentity.h"

#include <QDataStream>
#include <QIODevice>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/sysmacros.h>

namespace vellumry {

namespace {

constexpr quint8 formatVersion = 1;

} // namespace

std::optional<FileIdentity> FileIdentity::of(const QByteArray& path) {
    struct statx status {};
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
    if (statx(AT_FDCWD, path.constData(), flags, STATX_BASIC_STATS | STATX_BTIME, &status) != 0)
        return std::nullopt;
    FileIdentity identity;
    identity.device = makedev(status.stx_dev_major, status.stx_dev_minor);
    identity.inode = status.stx_ino;
    identity.size = static_cast<qint64>(status.stx_size);
    identity.hasBirthTime = status.stx_mask & STATX_BTIME;
    if (identity.hasBirthTime) {
        identity.birthSeconds = status.stx_btime.tv_sec;
        identity.birthNanoseconds = status.stx_btime.tv_nsec;
    }
    struct statfs fileSystem {};
    // Follows a link at the end, hence not for links.
    if (!S_ISLNK(status.stx_mode) && statfs(path.constData(), &fileSystem) == 0) {
        static_assert(sizeof(fileSystem.f_fsid) == sizeof(identity.fileSystem));
        std::memcpy(&identity.fileSystem, &fileSystem.f_fsid, sizeof(identity.fileSystem));
    }
    return identity;
}

bool FileIdentity::isOnSameFileSystem(const FileIdentity& other) const {
    if (fileSystem != 0 && other.fileSystem != 0)
        return fileSystem == other.fileSystem;
    return device == other.device;
}

bool FileIdentity::isSameFile(const FileIdentity& other) const {
    if (inode != other.inode || !isOnSameFileSystem(other))
        return false;
    if (hasBirthTime && other.hasBirthTime)
        return birthSeconds == other.birthSeconds && birthNanoseconds == other.birthNanoseconds;
    // Inodes are given out again; without a birth time the size has to speak against that.
    return size == other.size;
}

QByteArray FileBookmark::encode() const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << formatVersion << identity.device << identity.fileSystem << identity.inode << identity.birthSeconds
           << identity.birthNanoseconds << identity.hasBirthTime << identity.size << path;
    return bytes;
}

std::optional<FileBookmark> FileBookmark::decode(const QByteArray& bytes) {
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    quint8 version = 0;
    FileBookmark bookmark;
    FileIdentity& identity = bookmark.identity;
    stream >> version >> identity.device >> identity.fileSystem >> identity.inode >> identity.birthSeconds >>
        identity.birthNanoseconds >> identity.hasBirthTime >> identity.size >> bookmark.path;
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || version != formatVersion)
        return std::nullopt;
    if (!bookmark.path.startsWith('/') || bookmark.path.contains('\0'))
        return std::nullopt;
    return bookmark;
}

} // namespace vellumry
