// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SettingsFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace vellumry::settingsfile {

namespace {

/// No hand and no program of ours writes more.
constexpr qint64 mostBytes = 1024 * 1024;

/// Two writes within one such step look alike.
constexpr qint64 timeStampGrain = 50'000'000;

FileState stateFrom(const struct stat& status) {
    return {status.st_ino, status.st_size, status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec,
            S_ISREG(status.st_mode)};
}

qint64 nowNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * 1'000'000'000 + now.tv_nsec;
}

void makeFolderDurable(const QString& path) {
    const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    (void)fsync(folder);
    close(folder);
}

bool makePrivateFolder(const QString& path) {
    if (QFileInfo(path).isDir())
        return true;
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    return mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QFileInfo(path).isDir();
}

} // namespace

FileState stateOf(const QString& path) {
    struct stat status {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return stateFrom(status);
}

bool mayChangeUnseen(const FileState& state) {
    return state != FileState{} && nowNanoseconds() - state.changedNanoseconds < timeStampGrain;
}

std::optional<QByteArray> contentOf(const QString& path) {
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status {};
    const bool isBearable =
        descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= mostBytes;
    QFile source;
    if (!isBearable || !source.open(descriptor, QIODevice::ReadOnly)) {
        if (descriptor >= 0)
            close(descriptor);
        return std::nullopt;
    }
    // It may have grown since.
    QByteArray content = source.read(mostBytes);
    close(descriptor);
    return content;
}

bool write(const QString& path, const QByteArray& content) {
    const QString folder = QFileInfo(path).absolutePath();
    if (!makePrivateFolder(folder))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    // commit() of Qt 6.4 takes the place of the old file all the same when the last bytes found no room on the disk.
    if (file.write(content) != content.size() || !file.flush() || fsync(file.handle()) != 0 || !file.commit())
        return false;
    makeFolderDurable(folder);
    return true;
}

} // namespace vellumry::settingsfile
