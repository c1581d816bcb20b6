// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/ProgramFile.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace vellumry {

namespace {

constexpr int versionMilliseconds = 20'000;

Reason lastError(const char* what) {
    return Reason{
        QStringLiteral("%1: %2").arg(QString::fromLatin1(what), QString::fromLocal8Bit(std::strerror(errno)))};
}

bool makeDurable(const QString& path) {
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isDurable = fsync(descriptor) == 0;
    close(descriptor);
    return isDurable;
}

/// Our environment without what the runtime of the AppImage that is going has put there.
std::vector<QByteArray> environmentOfUser() {
    std::vector<QByteArray> variables;
    for (char** variable = environ; *variable; ++variable) {
        const QByteArray entry(*variable);
        const QByteArray name = entry.left(entry.indexOf('='));
        if (name != "APPIMAGE" && name != "APPDIR" && name != "OWD" && name != "ARGV0")
            variables.push_back(entry);
    }
    return variables;
}

std::vector<char*> pointersTo(std::vector<QByteArray>& texts) {
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

ProgramFile::ProgramFile(QString path)
    : m_path(std::move(path)) {}

bool ProgramFile::isReplaceable() const {
    struct stat file {};
    const QFileInfo info(m_path);
    return info.isAbsolute() && lstat(QFile::encodeName(m_path).constData(), &file) == 0 && S_ISREG(file.st_mode) &&
           file.st_uid == geteuid() && !m_path.startsWith(QLatin1String("/usr/")) && info.isWritable() &&
           QFileInfo(info.path()).isWritable();
}

std::optional<QString> ProgramFile::stagedVersion() const {
    if (chmod(QFile::encodeName(staged()).constData(), 0700) != 0)
        return std::nullopt;
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(staged(), {QStringLiteral("--version")});
    if (!process.waitForFinished(versionMilliseconds) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        process.kill();
        process.waitForFinished(versionMilliseconds);
        return std::nullopt;
    }
    static const QRegularExpression said(QStringLiteral("^Vellumry (\\S+)"));
    const auto match = said.match(QString::fromUtf8(process.readAllStandardOutput()));
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

std::optional<Reason> ProgramFile::replace() const {
    const QByteArray program = QFile::encodeName(m_path);
    const QByteArray newer = QFile::encodeName(staged());
    const QByteArray older = QFile::encodeName(previous());
    struct stat file {};
    if (stat(program.constData(), &file) != 0)
        return lastError("the program's file is not there");
    if (chmod(newer.constData(), file.st_mode & 07777) != 0 || !makeDurable(staged()))
        return lastError("the newer file cannot be kept");
    discardPrevious();
    if (link(program.constData(), older.constData()) != 0 && !QFile::copy(m_path, previous()))
        return lastError("the program's file cannot be kept beside the newer one");
    if (rename(newer.constData(), program.constData()) != 0)
        return lastError("the newer file cannot take its place");
    (void)makeDurable(QFileInfo(m_path).path());
    return std::nullopt;
}

void ProgramFile::discardStaged() const {
    QFile::remove(staged());
}

void ProgramFile::discardPrevious() const {
    QFile::remove(previous());
}

// A shell waits for the end of a pipe that this process holds open: the one instance of a session starts when the one
// before has gone, whenever and however it ends.
bool ProgramFile::startAfterThisProcess() const {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[0], STDIN_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    std::vector<QByteArray> words{"sh", "-c", "read -r line; exec \"$0\" </dev/null", QFile::encodeName(m_path)};
    std::vector<QByteArray> variables = environmentOfUser();
    pid_t shell = 0;
    const int error =
        posix_spawn(&shell, "/bin/sh", &actions, &attributes, pointersTo(words).data(), pointersTo(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    close(ends[0]);
    if (error != 0)
        close(ends[1]);
    return error == 0; // the other end stays open as long as this process
}

} // namespace vellumry
