// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/reader/ReaderWorker.h"
#include "platform/files/ImageCodec.h"

namespace vellumry {

/// Has pictures opened by `vellumry-reader`. A picture that ends the reader, or keeps it busy beyond the deadline,
/// gives an empty summary; the next one meets a fresh reader. Main thread.
class ReaderImageCodec : public ImageCodec {
public:
    /// `readerPath` is the program. Nothing is started before the first
    /// picture, or the word that one comes.
    explicit ReaderImageCodec(QString readerPath, std::chrono::milliseconds deadline = std::chrono::seconds(10))
        : m_worker(std::move(readerPath), {}, ReaderWorker::Urgency::awaited)
        , m_deadline(deadline) {}

    void prepare() override { m_worker.prepare(); }
    void rest() override { m_worker.rest(); }
    [[nodiscard]] QCoro::Task<ImageSummary> summarise(QByteArray image, int thumbnailPixels) override;
    [[nodiscard]] QCoro::Task<QByteArray> preview(QByteArray image, int longerSide) override;

private:
    /// Its end ends the reader; pictures not yet answered give empty summaries.
    ReaderWorker m_worker;
    std::chrono::milliseconds m_deadline;
};

} // namespace vellumry
