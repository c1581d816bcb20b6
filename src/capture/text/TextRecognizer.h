// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/TextReader.h"

#include <memory>
#include <optional>

namespace vellumry {

/// Turns the bytes of a picture into its text under a time limit that holds even when the reader behind it never
/// answers, and counts how often the accurate mode failed in a row. Main thread.
class TextRecognizer {
public:
    using Reader = TextReader::Mode;

    /// The longer side of a picture as it is read, in pixels at most.
    static constexpr int maxPixelSize = 8192;

    /// `reader` must outlive the tasks.
    explicit TextRecognizer(TextReader& reader)
        : m_reader(&reader) {}

    /// The text, its lines without blanks around them and without empty ones; "" for a picture without text. Nothing
    /// for bytes that are no picture, for a reading that broke off, and after `timeLimit` seconds (30 for a fast
    /// reading and 150 for an accurate one when absent).
    [[nodiscard]] QCoro::Task<std::optional<QString>> read(QByteArray data, Reader reader,
                                                           std::optional<double> timeLimit = std::nullopt);

    /// False once three accurate readings in a row broke off or took too long. A picture that cannot be opened does not
    /// count, nor does anything that happens to a fast reading.
    [[nodiscard]] bool isAccurateUsable() const { return *m_accurateFailures < accurateFailuresAllowed; }

    /// False once a reader said that this computer has nothing that reads text.
    [[nodiscard]] bool isAvailable() const { return *m_isAvailable; }

    /// Lines trimmed of blanks and tabs, empty ones left out, joined with a line feed.
    [[nodiscard]] static QString cleaned(const QString& reading);

private:
    static constexpr int accurateFailuresAllowed = 3;

    TextReader* m_reader;
    /// Shared with the tasks, which may end after the recognizer.
    std::shared_ptr<int> m_accurateFailures = std::make_shared<int>(0);
    std::shared_ptr<bool> m_isAvailable = std::make_shared<bool>(true);
};

} // namespace vellumry
