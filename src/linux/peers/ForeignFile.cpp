// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/ForeignFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vellumry {

namespace {

/// Reading alone changes the time of the last access, where the file is the user's own to forbid it.
int openQuietly(const QByteArray& path) {
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK; // a pipe must not hold us
    const int descriptor = ::open(path.constData(), flags | O_NOATIME);
    return descriptor < 0 && errno == EPERM ? ::open(path.constData(), flags) : descriptor;
}

} // namespace

std::expected<ForeignFile, ForeignFile::Failure> ForeignFile::open(const QString& path, qint64 mostBytes) {
    const int descriptor = openQuietly(QFile::encodeName(path));
    if (descriptor < 0)
        return std::unexpected(errno == ENOENT || errno == ENOTDIR ? Failure::missing : Failure::unreadable);
    ForeignFile file;
    struct stat state {};
    const bool isRegular = ::fstat(descriptor, &state) == 0 && S_ISREG(state.st_mode);
    if (!isRegular || !file.m_file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        if (!file.m_file->isOpen())
            ::close(descriptor);
        return std::unexpected(Failure::unreadable);
    }
    if (state.st_size > mostBytes)
        return std::unexpected(Failure::tooLarge);
    file.m_size = state.st_size;
    file.m_modified = static_cast<Date>(state.st_mtim.tv_sec) + static_cast<Date>(state.st_mtim.tv_nsec) / 1e9;
    return file;
}

std::optional<QByteArray> ForeignFile::read(qint64 count) {
    if (count < 0 || count > left())
        return std::nullopt;
    QByteArray bytes = m_file->read(count);
    m_position += bytes.size();
    if (bytes.size() != count)
        return std::nullopt;
    return bytes;
}

bool ForeignFile::skip(qint64 count) {
    if (count < 0 || count > left() || !m_file->seek(m_position + count))
        return false;
    m_position += count;
    return true;
}

QByteArray ForeignFile::rest() {
    QByteArray bytes = m_file->read(left());
    m_position += bytes.size();
    return bytes;
}

} // namespace vellumry
