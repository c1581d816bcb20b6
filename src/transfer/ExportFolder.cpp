// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ExportFolder.h"

#include "transfer/ExportFormat.h"

#include <QDir>
#include <QJsonDocument>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vellumry {

namespace {

using Failure = ExportFolder::Failure;

constexpr mode_t privateFolder = 0700;
constexpr mode_t privateFile = 0600;
const QString unfinishedIndex = QStringLiteral("index.json.part");

Failure failureOf(int error) {
    return error == ENOSPC || error == EDQUOT || error == EFBIG ? Failure::noRoom : Failure::refused;
}

int makeFile(const QString& path) {
    return ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                  privateFile);
}

/// 0, or the error.
int writeAll(int descriptor, const QByteArray& bytes) {
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            return errno;
        written += std::max<ssize_t>(count, 0);
    }
    return 0;
}

} // namespace

std::expected<std::unique_ptr<ExportFolder>, Failure> ExportFolder::create(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    std::unique_ptr<ExportFolder> folder(new ExportFolder(path));
    folder->m_isOurs = ::mkdir(name.constData(), privateFolder) == 0;
    if (!folder->m_isOurs && errno != EEXIST)
        return std::unexpected(failureOf(errno));
    if (!folder->m_isOurs) {
        const QDir directory(path);
        if (!directory.exists() || !directory.isReadable())
            return std::unexpected(Failure::refused);
        if (!directory.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System))
            return std::unexpected(Failure::notEmpty);
        if (::chmod(name.constData(), privateFolder) != 0)
            return std::unexpected(Failure::refused);
    }
    const int descriptor = makeFile(path + u'/' + unfinishedIndex);
    if (descriptor < 0)
        return std::unexpected(failureOf(errno));
    folder->m_written.append(unfinishedIndex);
    if (!folder->m_index.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return std::unexpected(Failure::refused);
    }
    const QByteArray head = "{\"vellumryExport\": " + QByteArray::number(exportformat::version) + ",\n \"clips\": [";
    if (auto begun = folder->append(head); !begun)
        return std::unexpected(begun.error());
    return folder;
}

ExportFolder::~ExportFolder() {
    if (m_isFinished)
        return;
    m_index.close();
    for (const QString& name : m_written)
        QFile::remove(m_path + u'/' + name);
    if (m_isOurs)
        ::rmdir(QFile::encodeName(m_path).constData());
}

std::expected<void, Failure> ExportFolder::append(const QByteArray& bytes) {
    if (const int error = writeAll(m_index.handle(), bytes))
        return std::unexpected(failureOf(error));
    return {};
}

std::expected<void, Failure> ExportFolder::writeFile(const QString& name, const QByteArray& bytes) {
    const int descriptor = makeFile(m_path + u'/' + name);
    if (descriptor < 0)
        return std::unexpected(failureOf(errno));
    m_written.append(name);
    int error = writeAll(descriptor, bytes);
    if (::close(descriptor) != 0 && error == 0)
        error = errno;
    if (error != 0)
        return std::unexpected(failureOf(error));
    return {};
}

std::expected<void, Failure> ExportFolder::write(const ImportEntry& entry) {
    std::vector<exportformat::File> files;
    const QJsonObject object = exportformat::coded(entry, m_clips + 1, files);
    for (const auto& [name, bytes] : files) {
        if (auto written = writeFile(name, bytes); !written)
            return written;
    }
    const QByteArray separator = m_clips == 0 ? "\n  " : ",\n  ";
    ++m_clips;
    return append(separator + QJsonDocument(object).toJson(QJsonDocument::Compact));
}

std::expected<void, Failure> ExportFolder::finish() {
    if (auto ended = append("\n ]}\n"); !ended)
        return ended;
    // The files first: an index that is there tells the truth.
    const int folder = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const QByteArray from = QFile::encodeName(m_path + u'/' + unfinishedIndex);
    const QByteArray to = QFile::encodeName(m_path + u'/' + exportformat::indexName);
    const bool isDone = folder >= 0 && ::syncfs(folder) == 0 && std::rename(from.constData(), to.constData()) == 0;
    const int error = errno;
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    if (!isDone)
        return std::unexpected(failureOf(error));
    m_isFinished = true;
    m_index.close();
    return {};
}

} // namespace vellumry
