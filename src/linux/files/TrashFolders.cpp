// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/TrashFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <algorithm>
#include <sys/stat.h>

namespace vellumry {

namespace {

/// A shared Trash counts only with the sticky bit, so that no user can plant files in another's name.
bool isSharedTrash(const QByteArray& path) {
    struct stat status {};
    return lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX);
}

/// The `Path=` of a note; empty without one. Notes on volumes give it relative to the volume.
QByteArray originOf(const QString& note, const QByteArray& top) {
    QFile file(note);
    constexpr qint64 longestNote = 16 * 1024;
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : file.read(longestNote).split('\n')) {
        if (!line.startsWith("Path="))
            continue;
        const QByteArray path = QByteArray::fromPercentEncoding(line.sliced(5).trimmed());
        return path.startsWith('/') ? path : top + '/' + path;
    }
    return {};
}

/// The notes that may be those of `path` or of a folder above it: the Trash adds numbers to a name, but leaves its
/// beginning. The latest deletion comes first.
QFileInfoList notesOf(const QString& folder, const QByteArray& path) {
    QStringList stems;
    for (const QString& name : QFile::decodeName(path).split(u'/', Qt::SkipEmptyParts))
        stems.append(name.section(u'.', 0, 0, QString::SectionSkipEmpty));
    const QDir all(folder, QStringLiteral("*.trashinfo"), QDir::Unsorted, QDir::Files | QDir::Hidden);
    QFileInfoList notes;
    for (const QString& name : all.entryList()) {
        if (std::ranges::any_of(stems, [&name](const QString& stem) { return name.contains(stem); }))
            notes.append(QFileInfo(all.filePath(name)));
    }
    std::ranges::stable_sort(notes, std::ranges::greater(), [](const QFileInfo& note) { return note.lastModified(); });
    return notes;
}

} // namespace

TrashFolders::TrashFolders(QByteArray dataHome, quint32 user)
    : m_homeTrash(std::move(dataHome) + "/Trash")
    , m_user(QByteArray::number(user)) {}

bool TrashFolders::contains(const QByteArray& path) const {
    if (path.startsWith(m_homeTrash + "/files/"))
        return true;
    // Those of volumes: another user's Trash is no less a Trash.
    const QList<QByteArray> parts = path.split('/');
    for (qsizetype index = 1; index + 2 < parts.size(); ++index) {
        bool isUser = false;
        if (parts[index].startsWith(".Trash-") && parts[index + 1] == "files") {
            (void)parts[index].sliced(7).toUInt(&isUser);
        } else if (parts[index] == ".Trash" && index + 3 < parts.size() && parts[index + 2] == "files") {
            (void)parts[index + 1].toUInt(&isUser);
        }
        if (isUser)
            return true;
    }
    return false;
}

std::vector<QByteArray> TrashFolders::foldersFor(const QByteArray& mountPoint) const {
    const QByteArray top = mountPoint == "/" ? QByteArray() : mountPoint;
    std::vector<QByteArray> folders{m_homeTrash};
    if (isSharedTrash(top + "/.Trash"))
        folders.push_back(top + "/.Trash/" + m_user);
    folders.push_back(top + "/.Trash-" + m_user);
    return folders;
}

std::optional<QByteArray> TrashFolders::find(const FileBookmark& bookmark, const MountTable& mounts,
                                             FileSearch& search) const {
    const std::vector<QByteArray> folders = foldersFor(mounts.mountPointOf(bookmark.path));
    for (const QByteArray& trash : folders) {
        if (auto found = search.inFolder(trash + "/files"))
            return found;
    }
    for (const QByteArray& trash : folders) {
        if (auto found = findByNote(trash, bookmark, search))
            return found;
    }
    return std::nullopt;
}

std::optional<QByteArray> TrashFolders::findByNote(const QByteArray& trash, const FileBookmark& bookmark,
                                                   FileSearch& search) const {
    const auto home = FileIdentity::of(trash + "/files");
    if (!home)
        return std::nullopt;
    // A file that was renamed into the Trash keeps its identity, and lies there itself or in a folder that did.
    const bool keepsIdentity = home->isOnSameFileSystem(bookmark.identity);
    const QByteArray top = trash.first(trash.lastIndexOf('/'));
    for (const QFileInfo& note : notesOf(QFile::decodeName(trash + "/info"), bookmark.path)) {
        if (search.isExhausted())
            return std::nullopt;
        const QByteArray origin = originOf(note.filePath(), top);
        if (origin.isEmpty() || (origin != bookmark.path && !bookmark.path.startsWith(origin + '/')))
            continue;
        const QByteArray path =
            trash + "/files/" + QFile::encodeName(note.completeBaseName()) + bookmark.path.sliced(origin.size());
        const auto identity = FileIdentity::of(path);
        if (!identity)
            continue;
        if (keepsIdentity ? identity->isSameFile(bookmark.identity) : identity->size == bookmark.identity.size)
            return path;
    }
    return std::nullopt;
}

} // namespace vellumry
