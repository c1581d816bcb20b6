// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/Languages.h"
#include "reader/ReadingPage.h"
#include "reader/TextEngine.h"

#include <QElapsedTimer>
#include <QImage>
#include <chrono>
#include <map>
#include <memory>
#include <optional>

namespace vellumry {

/// Reads the text in a picture with the languages that the system has. Runs in the reader process. One thread.
class PictureReader {
public:
    enum class Mode {
        fast, ///< one pass, in the language that seems to be the picture's: enough to be found by most words. At most
              ///< 24 s and what it takes to find the lines
        accurate ///< several passes, the best reading of each line kept. At most 130 s, likewise
    };

    /// Null when the system has no text recognition or no language for it.
    [[nodiscard]] static std::unique_ptr<PictureReader> create();

    /// The folder with the languages' data; it must stay readable.
    [[nodiscard]] const QByteArray& dataFolder() const { return m_data; }

    /// The text, a line feed behind each line; empty when there is none. Nothing when reading failed. Of a picture with
    /// so much text that the time does not suffice, what was read until then.
    [[nodiscard]] std::optional<QString> read(QImage picture, Mode mode);

private:
    using Lines = std::vector<TextLine>;

    PictureReader(std::unique_ptr<const TesseractLibrary> library, QByteArray data,
                  std::vector<languages::Script> scripts)
        : m_library(std::move(library))
        , m_data(std::move(data))
        , m_scripts(std::move(scripts)) {}

    /// Loaded on first use. Null when the data cannot be read.
    [[nodiscard]] TextEngine* engine(const QByteArray& language);
    /// What could be read until `end`, counted from the beginning of the picture; nothing when it is past.
    [[nodiscard]] std::optional<Lines> readPage(const ReadingPage& page, const QByteArray& language,
                                                std::chrono::milliseconds end);
    [[nodiscard]] TextLine readLine(const ReadingPage& page, const TextLine& line, const QByteArray& language);
    /// The mean confidence of some lines, read in a language.
    [[nodiscard]] double trial(const ReadingPage& page, const Lines& samples, const QByteArray& language);
    [[nodiscard]] const languages::Script& chooseScript(const ReadingPage& page, const Lines& lines);
    [[nodiscard]] QByteArray chooseLanguage(const ReadingPage& page, const Lines& lines,
                                            const languages::Script& script);
    void rereadDoubtful(const ReadingPage& page, Lines& lines, const QByteArray& language,
                        const languages::Script& script);
    /// Takes over what is better in another view of the same picture.
    void readAgain(const ReadingPage& page, Lines& lines, const QByteArray& language);

    std::unique_ptr<const TesseractLibrary> m_library;
    QByteArray m_data;
    std::vector<languages::Script> m_scripts;
    std::map<QByteArray, TextEngine> m_engines;
    QByteArray m_language; ///< of the engine used last
    /// Runs since the present picture was begun: what is left to improve is left when it takes too long.
    QElapsedTimer m_elapsed;
};

} // namespace vellumry
