// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/reader/ReaderImageCodec.h"

namespace vellumry {

QCoro::Task<ImageSummary> ReaderImageCodec::summarise(QByteArray image, int thumbnailPixels) {
    auto asking = m_worker.ask(std::move(image), readerprotocol::Operation::summarise, thumbnailPixels, m_deadline);
    // Behind this the codec may be gone.
    const ReaderProcess::Answer answer = co_await asking;
    ImageSummary summary;
    if (answer.reply) {
        summary.pixelSize = answer.reply->pixelSize;
        summary.thumbnail = answer.reply->thumbnail;
        summary.isScreenshot = answer.reply->isScreenshot;
    }
    co_return summary;
}

QCoro::Task<QByteArray> ReaderImageCodec::preview(QByteArray image, int longerSide) {
    auto asking = m_worker.ask(std::move(image), readerprotocol::Operation::preview, longerSide, m_deadline);
    // Behind this the codec may be gone.
    const ReaderProcess::Answer answer = co_await asking;
    QByteArray png;
    if (answer.reply)
        png = answer.reply->thumbnail.value_or(QByteArray());
    co_return png;
}

} // namespace vellumry
