// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "linux/reader/ReaderProcess.h"

#include <QCoroTask>
#include <memory>

class QSocketNotifier;

namespace vellumry {

/// Has pictures looked at by a `vellumry-reader` of its own, one after the other, on a thread of its own. A picture
/// that ends the reader, or keeps it busy beyond the deadline, costs that answer; the next one meets a fresh reader.
/// Without requests there is no reader and no timer. Main thread.
class ReaderWorker {
public:
    enum class Urgency {
        awaited,   ///< the user's copy is not kept before the answer is there
        background ///< the thread, and with it the reader, comes behind everything that the user waits for
    };

    /// `readerPath` is the program, started with `argument` unless that is empty, and not before the first picture.
    ReaderWorker(QString readerPath, QByteArray argument, Urgency urgency);
    /// Ends the reader; pictures not yet answered get no answer.
    ~ReaderWorker();
    ReaderWorker(const ReaderWorker&) = delete;
    ReaderWorker& operator=(const ReaderWorker&) = delete;

    /// Starts the reader unless it runs, so that it is ready when a picture comes. Returns at once.
    void prepare();
    /// Ends the reader behind the requests that were made; the next one starts another. Returns at once.
    void rest();
    /// As ReaderProcess::ask; the deadline counts from the moment that the picture's turn comes. The worker may be gone
    /// when the task ends.
    [[nodiscard]] QCoro::Task<ReaderProcess::Answer> ask(QByteArray picture, readerprotocol::Operation operation,
                                                         int pixels, std::chrono::milliseconds deadline);

private:
    void watch(readersocket::Descriptor end);

    std::unique_ptr<ReaderProcess> m_process;
    readersocket::Descriptor m_end;
    std::unique_ptr<QSocketNotifier> m_endNotifier;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);
    /// Last, so that it is joined before anything that its jobs use goes.
    SerialExecutor m_executor;
};

} // namespace vellumry
