// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/TextEngine.h"

#include <QImage>
#include <memory>
#include <optional>

namespace vellumry {

/// Reads the text in a picture with the languages that the system has. Runs in the reader process. One thread.
class PictureReader {
public:
    enum class Mode {
        fast,    ///< one pass: enough to be found by most words
        accurate ///< several passes, the better reading of each line kept
    };

    /// Null when the system has no text recognition or no language for it.
    [[nodiscard]] static std::unique_ptr<PictureReader> create();

    /// The folder with the languages' data; it must stay readable.
    [[nodiscard]] const QByteArray& dataFolder() const { return m_data; }

    /// The text, a line feed behind each line; empty when there is none. Nothing when reading failed.
    [[nodiscard]] std::optional<QString> read(const QImage& picture, Mode mode);

private:
    PictureReader(std::unique_ptr<const TesseractLibrary> library, QByteArray data)
        : m_library(std::move(library))
        , m_data(std::move(data)) {}

    std::unique_ptr<const TesseractLibrary> m_library;
    QByteArray m_data;
};

} // namespace vellumry
