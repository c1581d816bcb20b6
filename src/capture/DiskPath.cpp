// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DiskPath.h"

#include <QFile>
#include <QStringList>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>

namespace vellumry {

namespace {

/// More entries than this are not looked through for one name.
constexpr int mostEntries = 20'000;

struct FolderClose {
    void operator()(DIR* folder) const { closedir(folder); }
};

std::optional<QByteArray> entryThatDecodesTo(const QString& name, const QByteArray& folder) {
    const std::unique_ptr<DIR, FolderClose> open(opendir(folder.isEmpty() ? "/" : folder.constData()));
    if (!open)
        return std::nullopt;
    for (int looked = 0; looked < mostEntries; ++looked) {
        const dirent* const entry = readdir(open.get());
        if (!entry)
            break;
        if (QString::fromUtf8(entry->d_name) == name)
            return QByteArray(entry->d_name);
    }
    return std::nullopt;
}

} // namespace

QByteArray diskPathOf(const QString& path) {
    if (!path.contains(QChar::ReplacementCharacter))
        return QFile::encodeName(path);
    QByteArray result;
    for (const QString& component : path.split(u'/', Qt::SkipEmptyParts)) {
        std::optional<QByteArray> name;
        if (component.contains(QChar::ReplacementCharacter))
            name = entryThatDecodesTo(component, result);
        result += '/' + name.value_or(QFile::encodeName(component));
    }
    return result;
}

bool existsOnDisk(const QString& path) {
    struct statx status {};
    return statx(AT_FDCWD, diskPathOf(path).constData(), AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC, STATX_TYPE, &status) ==
           0;
}

} // namespace vellumry
