// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotFile.h"

#include "capture/DiskPath.h"
#include "capture/ImageCompleteness.h"
#include "capture/screenshots/ScreenshotNames.h"
#include "foundation/FileUrl.h"
#include "foundation/PropertyList.h"
#include "foundation/UniformType.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace vellumry {

namespace {

struct FolderClose {
    void operator()(DIR* folder) const { closedir(folder); }
};

/// The mark that another system leaves beside the file, where the file system carries it over.
bool hasMarkAttribute(const QByteArray& path) {
    constexpr const char* name = "user.com.apple.metadata:kMDItemIsScreenCapture";
    constexpr ssize_t longest = 1023;
    const ssize_t size = lgetxattr(path.constData(), name, nullptr, 0);
    if (size < 1 || size > longest)
        return false;
    QByteArray value(size, Qt::Uninitialized);
    if (lgetxattr(path.constData(), name, value.data(), static_cast<std::size_t>(size)) != size)
        return false;
    const std::optional<PropertyList> list = PropertyList::fromBytes(value);
    if (!list)
        return false;
    if (const bool* flag = list->boolean())
        return *flag;
    if (const qint64* number = list->integer())
        return *number != 0;
    const double* real = list->real();
    return real && *real != 0;
}

std::optional<Date> creationDate(const QString& path) {
    const QDateTime birth = QFileInfo(path).birthTime();
    if (!birth.isValid())
        return std::nullopt;
    return static_cast<double>(birth.toMSecsSinceEpoch()) / 1000.0;
}

/// As many bytes as the file had when it was opened; fewer when it shrinks meanwhile.
std::optional<QByteArray> contentOf(int descriptor, qint64 size) {
    QByteArray bytes(size, Qt::Uninitialized);
    qint64 done = 0;
    while (done < size) {
        const ssize_t got = ::read(descriptor, bytes.data() + done, static_cast<std::size_t>(size - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += got;
    }
    if (done < size)
        return std::nullopt;
    return bytes;
}

} // namespace

ScreenshotFile ScreenshotFile::load(const QString& path) {
    ScreenshotFile file;
    const std::optional<QString> type = uniformtype::imageTypeOfExtension(fileurl::pathExtension(path));
    if (!type)
        return file;
    file.type = *type;

    const QByteArray name = diskPathOf(path);
    // A pipe must not hold us, and a link leads elsewhere.
    const int descriptor = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        file.state = errno == ELOOP || errno == ENXIO ? State::unsuitable : State::incomplete;
        return file;
    }
    struct stat attributes {};
    const bool isFile = fstat(descriptor, &attributes) == 0 && S_ISREG(attributes.st_mode);
    if (isFile && attributes.st_size <= mostBytes) {
        file.state = State::incomplete;
        std::optional<QByteArray> bytes = contentOf(descriptor, attributes.st_size);
        if (bytes && !bytes->isEmpty() && imagecompleteness::isComplete(*bytes, file.type)) {
            file.state = State::readable;
            file.mayHoldMark = imagecompleteness::mayHoldScreenshotMark(*bytes);
            file.bytes = std::move(*bytes);
            file.createdAt = creationDate(path);
            file.isMarked =
                screenshotnames::isScreenshotName(fileurl::lastPathComponent(path)) || hasMarkAttribute(name);
        }
    }
    close(descriptor);
    return file;
}

std::optional<QStringList> ScreenshotFile::namesIn(const QString& folder) {
    const std::unique_ptr<DIR, FolderClose> open(opendir(QFile::encodeName(folder).constData()));
    if (!open)
        return errno == ENOENT ? std::optional(QStringList()) : std::nullopt;
    QStringList names;
    while (const dirent* entry = readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.append(QFile::decodeName(entry->d_name));
    }
    return names;
}

} // namespace vellumry
