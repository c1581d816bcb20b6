// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <chrono>

namespace vellumry {

/// Reads the text in foreign pictures, where they can do no harm. Main thread; the work happens elsewhere at the lowest
/// priority, one picture after the other.
class TextReader {
public:
    enum class Mode {
        fast,    ///< soon
        accurate ///< well
    };
    enum class Outcome {
        text,        ///< read; the text may be empty
        undecodable, ///< the bytes are no picture that can be opened
        tooSlow,     ///< not done within the time limit
        failed,      ///< reading broke off
        unavailable  ///< this computer has nothing that reads text; it will be the same for the next picture
    };
    struct Reading {
        Outcome outcome = Outcome::failed;
        QString text; ///< its lines with line feeds between them, as they stand in the picture

        bool operator==(const Reading&) const = default;
    };

    virtual ~TextReader() = default;

    /// The picture is opened with its longer side at most `maxPixelSize` and at most 36,000,000 pixels. Reading ends at
    /// the latest after `timeLimit`; what was left of it then is given up.
    [[nodiscard]] virtual QCoro::Task<Reading> read(QByteArray image, Mode mode, int maxPixelSize,
                                                    std::chrono::milliseconds timeLimit) = 0;
};

} // namespace vellumry
