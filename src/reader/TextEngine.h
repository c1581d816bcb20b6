// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/TesseractLibrary.h"

#include <QImage>
#include <QRect>
#include <QString>
#include <chrono>
#include <optional>
#include <vector>

namespace vellumry {

/// A line of text found in a picture.
struct TextLine {
    QString text;
    QRect box;             ///< in pixels of the picture that was read
    double confidence = 0; ///< 0 to 100
};

/// Reads dark text on white, in one set of languages. One thread.
class TextEngine {
public:
    enum class Layout {
        page,      ///< columns and paragraphs, in reading order
        scattered, ///< bits of text anywhere, in no order
        line       ///< the picture is one line
    };
    /// `languages` as the library names them, joined with "+", from the folder `data`. Nothing when one of them cannot
    /// be loaded.
    [[nodiscard]] static std::optional<TextEngine> create(const TesseractLibrary& library, const QByteArray& data,
                                                          const QByteArray& languages);

    /// `picture` has the format Grayscale8. Nothing when reading failed; no lines when there is no text. After `limit`
    /// no further line is begun, and what has been read is the result; finding the lines, which comes first, cannot be
    /// cut short.
    [[nodiscard]] std::optional<std::vector<TextLine>> read(const QImage& picture, Layout layout,
                                                            std::optional<std::chrono::milliseconds> limit = {});

private:
    struct Deleter {
        decltype(&TessBaseAPIDelete) destroy;
        void operator()(TessBaseAPI* handle) const { destroy(handle); }
    };
    using Handle = std::unique_ptr<TessBaseAPI, Deleter>;

    TextEngine(const TesseractLibrary& library, Handle handle)
        : m_library(&library)
        , m_handle(std::move(handle)) {}
    /// False when reading failed.
    [[nodiscard]] bool recognise(std::optional<std::chrono::milliseconds> limit);
    [[nodiscard]] std::vector<TextLine> lines() const;

    const TesseractLibrary* m_library;
    Handle m_handle;
};

} // namespace vellumry
