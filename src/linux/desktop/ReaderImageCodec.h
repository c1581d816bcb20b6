// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "linux/desktop/ReaderProcess.h"
#include "platform/ImageCodec.h"

#include <memory>

class QSocketNotifier;

namespace vellumry {

/// Has pictures opened by `vellumry-reader`, one after the other, on a thread of its own. A picture that ends the
/// reader, or keeps it busy beyond the deadline, gives an empty summary; the next one meets a fresh reader. Without
/// requests there is no reader and no timer. Main thread.
class ReaderImageCodec : public ImageCodec {
public:
    /// `readerPath` is the program. Nothing is started before the first picture.
    explicit ReaderImageCodec(QString readerPath, std::chrono::milliseconds deadline = std::chrono::seconds(10));
    /// Ends the reader; pictures not yet answered give empty summaries.
    ~ReaderImageCodec() override;
    ReaderImageCodec(const ReaderImageCodec&) = delete;
    ReaderImageCodec& operator=(const ReaderImageCodec&) = delete;

    [[nodiscard]] QCoro::Task<ImageSummary> summarise(QByteArray image, int thumbnailPixels) override;

private:
    void watch(readersocket::Descriptor end);

    std::unique_ptr<ReaderProcess> m_process;
    readersocket::Descriptor m_end;
    std::unique_ptr<QSocketNotifier> m_endNotifier;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);
    /// Last, so that it is joined before anything that its jobs use goes.
    SerialExecutor m_executor{"reader", true};
};

} // namespace vellumry
