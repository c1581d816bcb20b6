// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/reader/ReaderWorker.h"

#include <QSocketNotifier>
#include <algorithm>

namespace vellumry {

ReaderWorker::ReaderWorker(QString readerPath, QByteArray argument, Urgency urgency)
    : m_process(std::make_unique<ReaderProcess>(std::move(readerPath), std::move(argument)))
    , m_executor("reader", urgency == Urgency::background) {
    m_process->onStarted = [this, life = std::weak_ptr(m_life)](readersocket::Descriptor end) {
        postToMain([this, life, handle = std::make_shared<readersocket::Descriptor>(std::move(end))] {
            if (!life.expired())
                watch(std::move(*handle));
        });
    };
}

ReaderWorker::~ReaderWorker() {
    m_process->interrupt();
}

void ReaderWorker::prepare() {
    m_executor.post([process = m_process.get()] { process->prepare(); });
}

void ReaderWorker::rest() {
    m_executor.post([process = m_process.get()] { process->rest(); });
}

QCoro::Task<ReaderProcess::Answer> ReaderWorker::ask(QByteArray picture, readerprotocol::Operation operation,
                                                     int pixels, std::chrono::milliseconds deadline) {
    if (picture.isEmpty())
        co_return ReaderProcess::Answer();
    const int bounded = std::clamp(pixels, 1, readerprotocol::maxPixels);
    const auto job = [process = m_process.get(), picture, operation, bounded, deadline] {
        return process->ask(picture, operation, bounded, deadline);
    };
    // From here on the worker may be gone.
    auto running = m_executor.run(job);
    co_return co_await running;
}

void ReaderWorker::watch(readersocket::Descriptor end) {
    m_endNotifier.reset();
    m_end = std::move(end);
    m_endNotifier = std::make_unique<QSocketNotifier>(m_end.get(), QSocketNotifier::Read);
    QObject::connect(m_endNotifier.get(), &QSocketNotifier::activated, m_endNotifier.get(), [this] {
        m_endNotifier->setEnabled(false);
        m_executor.post([process = m_process.get()] { process->reap(); });
    });
}

} // namespace vellumry
