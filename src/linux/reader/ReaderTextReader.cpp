// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/reader/ReaderTextReader.h"

namespace vellumry {

namespace {

TextReader::Reading readingOf(const ReaderProcess::Answer& answer) {
    using Outcome = TextReader::Outcome;
    if (!answer.reply)
        return {answer.wasLate ? Outcome::tooSlow : Outcome::failed, {}};
    if (answer.reply->lacksEngine)
        return {Outcome::unavailable, {}};
    if (answer.reply->text)
        return {Outcome::text, *answer.reply->text};
    return {answer.reply->pixelSize ? Outcome::failed : Outcome::undecodable, {}};
}

} // namespace

QCoro::Task<TextReader::Reading> ReaderTextReader::read(QByteArray image, Mode mode, int maxPixelSize,
                                                        std::chrono::milliseconds timeLimit) {
    if (image.isEmpty())
        co_return Reading{Outcome::undecodable, {}};
    const auto operation =
        mode == Mode::fast ? readerprotocol::Operation::readFast : readerprotocol::Operation::readAccurately;
    auto asking = m_worker.ask(std::move(image), operation, maxPixelSize, timeLimit);
    // Behind this the reader may be gone.
    const ReaderProcess::Answer answer = co_await asking;
    co_return readingOf(answer);
}

} // namespace vellumry
