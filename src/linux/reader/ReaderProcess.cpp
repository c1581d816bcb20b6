// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/reader/ReaderProcess.h"

#include "foundation/Logging.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace vellumry {

namespace {

using readersocket::Descriptor;

/// The picture as a memory file that is sealed against changes; invalid when there is no memory for it.
Descriptor memoryFileOf(const QByteArray& picture) {
    Descriptor file(memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    qsizetype written = 0;
    while (file.isValid() && written < picture.size()) {
        const ssize_t count =
            write(file.get(), picture.constData() + written, static_cast<std::size_t>(picture.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return Descriptor();
        written += count;
    }
    if (file.isValid())
        (void)fcntl(file.get(), F_ADD_SEALS, F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE);
    return file;
}

/// What a decoder may know of the user's environment, in which names of hosts, files and secrets stand: where programs
/// and libraries are, the languages, and where the language data is. Sanitizers take their options from it.
bool isForReader(QByteArrayView variable) {
    constexpr std::array<QByteArrayView, 9> names{"PATH=", "LD_LIBRARY_PATH=", "LANG=",         "LANGUAGE=",     "LC_",
                                                  "TZ=",   "TESSDATA_PREFIX=", "ASAN_OPTIONS=", "UBSAN_OPTIONS="};
    return std::ranges::any_of(names, [variable](QByteArrayView name) { return variable.startsWith(name); });
}

/// The recognition library is told to use one thread: more take several times the processor for nothing. OpenMP reads
/// it when the program is loaded, so that the reader itself would be too late.
std::vector<char*> readerEnvironment() {
    static char oneThread[] = "OMP_THREAD_LIMIT=1";
    std::vector<char*> variables{oneThread};
    for (char** variable = environ; *variable; ++variable) {
        if (isForReader(*variable))
            variables.push_back(*variable);
    }
    variables.push_back(nullptr);
    return variables;
}

/// Starts `path` with `argument` and with `input` as its standard input, with no signal blocked or ignored; 0 on
/// failure.
pid_t spawn(const QByteArray& path, const QByteArray& argument, int input) {
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    QByteArray name = path;
    QByteArray first = argument;
    char* arguments[] = {name.data(), first.isEmpty() ? nullptr : first.data(), nullptr};
    std::vector<char*> variables = readerEnvironment();
    pid_t process = 0;
    if (posix_spawn(&process, path.constData(), &actions, &attributes, arguments, variables.data()) != 0)
        process = 0;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

} // namespace

ReaderProcess::ReaderProcess(QString path, QByteArray argument)
    : m_path(std::move(path))
    , m_argument(std::move(argument)) {}

ReaderProcess::~ReaderProcess() {
    finish();
}

void ReaderProcess::prepare() {
    if (!m_isInterrupted && !isRunning())
        (void)start();
}

void ReaderProcess::rest() {
    (void)finish();
}

ReaderProcess::Answer ReaderProcess::ask(const QByteArray& picture, readerprotocol::Operation operation, int pixels,
                                         std::chrono::milliseconds deadline) {
    const Descriptor file = memoryFileOf(picture);
    if (!file.isValid())
        return {};
    const readerprotocol::Request request{++m_lastId, operation, pixels};
    const auto end = readersocket::Clock::now() + deadline;
    readerprotocol::Reply reply;
    // A reader goes away when it has been idle, perhaps in this very moment: that is not the picture's fault.
    for (int attempt = 0; attempt < 2 && !m_isInterrupted; ++attempt) {
        if (!isRunning() && !start())
            return {};
        switch (exchange(request, file.get(), end, reply)) {
        case Outcome::answered:
            return {reply};
        case Outcome::failed: {
            if (m_isInterrupted)
                return {};
            const bool isLate = readersocket::Clock::now() >= end;
            qCWarning(logging::readerProcess)
                << (isLate ? "the reader of pictures took too long over one" : "the reader of pictures died of one");
            return {std::nullopt, isLate};
        }
        case Outcome::readerHadLeft:
            break;
        }
    }
    return {};
}

ReaderProcess::Outcome ReaderProcess::exchange(const readerprotocol::Request& request, int picture,
                                               readersocket::Clock::time_point deadline, readerprotocol::Reply& reply) {
    const bool isSent = readersocket::send(m_socket.get(), readerprotocol::encode(request), picture, deadline);
    const auto message =
        isSent ? readersocket::receive(m_socket.get(), readerprotocol::maxReplyBytes, deadline) : std::nullopt;
    const auto decoded = message ? readerprotocol::decodeReply(message->bytes) : std::nullopt;
    if (decoded && decoded->id == request.id) {
        reply = *decoded;
        return Outcome::answered;
    }
    return finish() ? Outcome::readerHadLeft : Outcome::failed;
}

bool ReaderProcess::start() {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return false;
    m_socket = Descriptor(ends[0]);
    const Descriptor other(ends[1]);
    pid_t process = 0;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_isInterrupted)
            process = m_process = spawn(QFile::encodeName(m_path), m_argument, other.get());
    }
    if (process == 0) {
        if (m_isInterrupted)
            return false;
        qCWarning(logging::readerProcess) << "the reader of pictures cannot be started";
        return false;
    }
    Descriptor end(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    if (onStarted && end.isValid())
        onStarted(std::move(end));
    return true;
}

bool ReaderProcess::isRunning() {
    const std::lock_guard lock(m_mutex);
    return m_process != 0;
}

bool ReaderProcess::finish() {
    m_socket = Descriptor();
    const std::lock_guard lock(m_mutex);
    if (m_process == 0)
        return false;
    int status = 0;
    // Has no effect on the status of a process that is on its way out already.
    kill(m_process, SIGKILL);
    waitpid(m_process, &status, 0);
    m_process = 0;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void ReaderProcess::reap() {
    const std::lock_guard lock(m_mutex);
    if (m_process != 0 && waitpid(m_process, nullptr, WNOHANG) == m_process)
        m_process = 0;
}

void ReaderProcess::interrupt() {
    const std::lock_guard lock(m_mutex);
    m_isInterrupted = true;
    if (m_process != 0)
        kill(m_process, SIGKILL);
}

} // namespace vellumry
