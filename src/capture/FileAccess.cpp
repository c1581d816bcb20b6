// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FileAccess.h"

#include "capture/DiskPath.h"
#include "foundation/FileUrl.h"
#include "foundation/RunDetached.h"

#include <QFile>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace vellumry {

namespace {

constexpr std::chrono::milliseconds longestProbe{3000};

/// `path` with its symbolic links followed as far as it exists.
QString resolved(const QString& path) {
    std::error_code error;
    const auto canonical = std::filesystem::weakly_canonical(QFile::encodeName(path).constData(), error);
    return error ? path : fileurl::standardized(QFile::decodeName(canonical.c_str()));
}

QStringList bothForms(const QString& path) {
    QStringList forms{fileurl::standardized(path)};
    if (const QString followed = resolved(forms.constFirst()); followed != forms.constFirst())
        forms.append(followed);
    return forms;
}

QStringList rootsOf(const FilePlaces& places) {
    QStringList roots;
    for (const FilePlaces::Folder& folder : places.personal)
        roots += bothForms(folder.path);
    for (const QString& folder : places.others)
        roots += bothForms(folder);
    return roots;
}

bool needsProbing(const QString& path, const QStringList& roots, const FilePlaces& places) {
    for (const QString& form : bothForms(path)) {
        if (places.volumeOf(form))
            return true;
        for (const QString& root : roots) {
            if (isAtOrUnder(form, root))
                return true;
        }
    }
    return false;
}

} // namespace

QCoro::Task<FileAccess::Result> FileAccess::check(QStringList paths, FilePlaces places) {
    std::function<Result()> job = [paths, places] { return examine(paths, places, canRead); };
    auto probing = runDetached(std::move(job), longestProbe);
    const std::optional<Result> result = co_await probing;
    co_return result.value_or(Result());
}

FileAccess::Result FileAccess::examine(const QStringList& paths, const FilePlaces& places, const Probe& probe) {
    const QStringList roots = rootsOf(places);
    for (const QString& path : paths) {
        if (needsProbing(path, roots, places) && !probe(path))
            return Result{displayName(path, places)};
    }
    return Result();
}

bool FileAccess::canRead(const QString& path) {
    const QByteArray name = diskPathOf(path);
    struct stat attributes {};
    if (stat(name.constData(), &attributes) != 0)
        return !isPermissionError(errno);
    if (S_ISDIR(attributes.st_mode)) {
        DIR* folder = opendir(name.constData());
        if (!folder)
            return !isPermissionError(errno);
        closedir(folder);
        return true;
    }
    if (!S_ISREG(attributes.st_mode))
        return true;
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return !isPermissionError(errno);
    close(file);
    return true;
}

QString FileAccess::displayName(const QString& path, const FilePlaces& places) {
    const QString standard = fileurl::standardized(path);
    for (const FilePlaces::Folder& folder : places.personal) {
        if (isAtOrUnder(standard, folder.path))
            return folder.name;
    }
    if (const auto volume = places.volumeOf(standard))
        return fileurl::lastPathComponent(*volume);
    return fileurl::lastPathComponent(standard.section(u'/', 0, -2));
}

bool FileAccess::isPermissionError(int error) {
    return error == EACCES || error == EPERM;
}

} // namespace vellumry
