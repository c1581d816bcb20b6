// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/TextRecognizer.h"

#include "foundation/Logging.h"
#include "foundation/OneShot.h"
#include "foundation/Text.h"

#include <QStringList>
#include <utility>

namespace vellumry {

namespace {

using Race = OneShot<TextReader::Reading>;

constexpr double fastLimit = 30.0;
constexpr double accurateLimit = 150.0;

QCoro::Task<void> run(TextReader* reader, QByteArray data, TextReader::Mode mode, std::chrono::milliseconds limit,
                      Race race) {
    TextReader::Reading reading;
    try {
        auto task = reader->read(std::move(data), mode, TextRecognizer::maxPixelSize, limit);
        reading = co_await task;
    } catch (const std::exception&) {
        reading.outcome = TextReader::Outcome::failed;
    }
    race.deliver(std::move(reading));
}

} // namespace

QCoro::Task<std::optional<QString>> TextRecognizer::read(QByteArray data, Reader reader,
                                                         std::optional<double> timeLimit) {
    using Outcome = TextReader::Outcome;
    const double seconds = timeLimit.value_or(reader == Reader::fast ? fastLimit : accurateLimit);
    const auto limit = std::chrono::milliseconds(static_cast<qint64>(seconds * 1000));
    const std::shared_ptr<int> failures = m_accurateFailures;
    const std::shared_ptr<bool> isAvailable = m_isAvailable;

    // The reader keeps to the limit as well; this holds when it never answers.
    const Race race;
    race.deliverAfter(limit, {Outcome::tooSlow, {}});
    run(m_reader, std::move(data), reader, limit, race);
    // Behind this the recognizer may be gone.
    const TextReader::Reading reading = co_await race;

    if (reading.outcome == Outcome::unavailable) {
        if (std::exchange(*isAvailable, false))
            qCWarning(logging::capture) << "Pictures are not found by their words: Tesseract or its data is missing.";
    } else if (reader == Reader::accurate && reading.outcome != Outcome::undecodable) {
        *failures = reading.outcome == Outcome::text ? 0 : *failures + 1;
    }
    if (reading.outcome != Outcome::text)
        co_return std::nullopt;
    co_return cleaned(reading.text);
}

QString TextRecognizer::cleaned(const QString& reading) {
    QStringList lines;
    for (const QString& line : reading.split(u'\n')) {
        const QString trimmed = text::trimmedOfWhitespace(line);
        if (!trimmed.isEmpty())
            lines.append(trimmed);
    }
    // Not null: a picture without text has been read.
    return lines.isEmpty() ? QStringLiteral("") : lines.join(u'\n');
}

} // namespace vellumry
