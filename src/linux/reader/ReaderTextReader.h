// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/reader/ReaderWorker.h"
#include "platform/files/TextReader.h"

namespace vellumry {

/// Has text read by a `vellumry-reader` that is kept apart from the one for thumbnails, which must not wait minutes.
/// A picture that ends the reader gives `failed`; one that is still being read at the time limit gives `tooSlow`, and
/// its reader is ended, so that it takes no processor any more. Main thread.
class ReaderTextReader : public TextReader {
public:
    /// `readerPath` is the program. Nothing is started before the first picture.
    explicit ReaderTextReader(QString readerPath)
        : m_worker(std::move(readerPath), QByteArrayLiteral("text"), ReaderWorker::Urgency::background) {}

    [[nodiscard]] QCoro::Task<Reading> read(QByteArray image, Mode mode, int maxPixelSize,
                                            std::chrono::milliseconds timeLimit) override;

private:
    /// Its end ends the reader; pictures not yet read give `failed`.
    ReaderWorker m_worker;
};

} // namespace vellumry
