// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/desktop/ReaderImageCodec.h"

#include <QSocketNotifier>
#include <algorithm>

namespace vellumry {

ReaderImageCodec::ReaderImageCodec(QString readerPath, std::chrono::milliseconds deadline)
    : m_process(std::make_unique<ReaderProcess>(std::move(readerPath), deadline)) {
    m_process->onStarted = [this, life = std::weak_ptr(m_life)](readersocket::Descriptor end) {
        postToMain([this, life, handle = std::make_shared<readersocket::Descriptor>(std::move(end))] {
            if (!life.expired())
                watch(std::move(*handle));
        });
    };
}

ReaderImageCodec::~ReaderImageCodec() {
    m_process->interrupt();
}

QCoro::Task<ImageSummary> ReaderImageCodec::summarise(QByteArray image, int thumbnailPixels) {
    ImageSummary summary;
    if (image.isEmpty())
        co_return summary;
    const int pixels = std::clamp(thumbnailPixels, 1, readerprotocol::maxThumbnailPixels);
    const auto job = [process = m_process.get(), image, pixels] { return process->ask(image, pixels); };
    // From here on the codec may be gone.
    const std::optional<readerprotocol::Reply> reply = co_await m_executor.run(job);
    if (reply) {
        summary.pixelSize = reply->pixelSize;
        summary.thumbnail = reply->thumbnail;
        summary.isScreenshot = reply->isScreenshot;
    }
    co_return summary;
}

void ReaderImageCodec::watch(readersocket::Descriptor end) {
    m_endNotifier.reset();
    m_end = std::move(end);
    m_endNotifier = std::make_unique<QSocketNotifier>(m_end.get(), QSocketNotifier::Read);
    QObject::connect(m_endNotifier.get(), &QSocketNotifier::activated, m_endNotifier.get(), [this] {
        m_endNotifier->setEnabled(false);
        m_executor.post([process = m_process.get()] { process->reap(); });
    });
}

} // namespace vellumry
