// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/PictureFiles.h"

#include "capture/DiskPath.h"
#include "capture/FileAccess.h"
#include "foundation/FileUrl.h"
#include "foundation/UniformType.h"

#include <QFile>
#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vellumry {

namespace {

bool isPicture(const QString& path) {
    const QString extension = fileurl::pathExtension(path);
    return !extension.isEmpty() && uniformtype::isImageExtension(extension);
}

/// Does not wait for the other side of a pipe or device. Negative when it cannot be opened.
int openedForReading(const QString& path) {
    return open(diskPathOf(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

/// The bytes of a regular file; nothing for a pipe or device.
std::optional<QByteArray> bytesOf(const QString& path) {
    QFile file;
    const int descriptor = openedForReading(path);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return std::nullopt;
    struct stat attributes {};
    if (fstat(descriptor, &attributes) != 0 || !S_ISREG(attributes.st_mode) ||
        attributes.st_size > PictureFiles::maxFileBytes)
        return std::nullopt;
    QByteArray bytes = file.read(PictureFiles::maxFileBytes + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > PictureFiles::maxFileBytes)
        return std::nullopt;
    return bytes;
}

} // namespace

PictureFiles PictureFiles::collect(const std::vector<FileRef>& files, bool isAsked, const Status& status,
                                   const CanReadQuietly& canReadQuietly) {
    QStringList paths;
    for (std::size_t index = 0; index < std::min<std::size_t>(files.size(), maxFiles); ++index) {
        const std::optional<QString> path = status(files[index]).path();
        if (path && isPicture(*path))
            paths.append(*path);
    }
    PictureFiles found;
    if (!isAsked && !std::ranges::all_of(paths, canReadQuietly)) {
        found.isLeftForUser = true;
        return found;
    }
    for (const QString& path : paths) {
        if (std::optional<QByteArray> bytes = bytesOf(path))
            found.pictures.push_back(std::move(*bytes));
    }
    return found;
}

bool PictureFiles::opens(const QString& path) {
    const int descriptor = openedForReading(path);
    if (descriptor < 0)
        return false;
    close(descriptor);
    return true;
}

bool PictureFiles::isOutside(const FilePlaces& places, const QString& path) {
    bool isInside = false;
    (void)FileAccess::examine({path}, places, [&isInside](const QString&) {
        isInside = true;
        return true;
    });
    return !isInside;
}

} // namespace vellumry
