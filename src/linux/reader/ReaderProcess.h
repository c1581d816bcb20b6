// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/ReaderProtocol.h"
#include "reader/ReaderSocket.h"

#include <QString>
#include <atomic>
#include <functional>
#include <mutex>
#include <sys/types.h>

namespace vellumry {

/// One reader process at a time: started for a request, kept for the next, replaced when it has died. Blocks; all calls
/// on one thread, except `interrupt`.
class ReaderProcess {
public:
    /// `path` is the program, started with `argument` unless that is empty.
    explicit ReaderProcess(QString path, QByteArray argument = {});
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;
    /// Ends the process.
    ~ReaderProcess();

    /// Called with a descriptor that becomes readable when the process just started has ended (pidfd_open(2)). The
    /// receiver owns it and calls `reap` then, so that a process that went away idle does not stay a zombie.
    std::function<void(readersocket::Descriptor)> onStarted;

    /// Starts the process unless it runs.
    void prepare();

    struct Answer {
        std::optional<readerprotocol::Reply> reply; ///< nothing when the process could not be started, died or was late
        bool wasLate = false;
    };
    /// Hands the picture over and waits for the answer. A reply that has not come after `deadline` never will: the
    /// process is ended.
    [[nodiscard]] Answer ask(const QByteArray& picture, readerprotocol::Operation operation, int pixels,
                             std::chrono::milliseconds deadline);
    /// Ends the process, if there is one; the next request starts another.
    void rest();
    /// Collects a process that has ended of its own; does nothing while it runs.
    void reap();
    /// Ends a running request at once and lets no other begin. Any thread.
    void interrupt();

private:
    enum class Outcome { answered, failed, readerHadLeft };

    [[nodiscard]] Outcome exchange(const readerprotocol::Request& request, int picture,
                                   readersocket::Clock::time_point deadline, readerprotocol::Reply& reply);
    [[nodiscard]] bool start();
    [[nodiscard]] bool isRunning();
    /// Ends the process; true when it had left of its own and in peace before.
    bool finish();

    QString m_path;
    QByteArray m_argument;
    readersocket::Descriptor m_socket;
    std::atomic<bool> m_isInterrupted{false};
    /// Held while the process is collected: until then its number is not reused.
    std::mutex m_mutex;
    pid_t m_process = 0;
    quint64 m_lastId = 0;
};

} // namespace vellumry
