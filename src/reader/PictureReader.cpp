// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PictureReader.h"

#include "reader/DarkOnWhite.h"
#include "reader/LanguageData.h"
#include "reader/ReadLines.h"

#include <QFile>
#include <QLocale>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

/// Text in the right script is read with more confidence than this.
constexpr double wellRead = 85;
/// A line read with less confidence is read again in other languages.
constexpr double doubtful = 92;
constexpr double clearGain = 3;
/// Finding the lines takes as long as there are pixels.
constexpr double quickEnlargement = 1.4;
constexpr std::size_t samplesOfScript = 3;
constexpr std::size_t samplesOfLanguage = 5;
constexpr std::size_t scriptsTried = 12;
constexpr qsizetype languagesTried = 4;
/// Each has its language's data, some 15 MB, and what it read last.
constexpr std::size_t enginesKept = 2;
constexpr qint64 longestImproving = 40'000;

/// Until when, from the beginning of a picture, its text is read. The caller waits 30 s for a fast reading and 150 s
/// for an accurate one, and gets nothing after that; part of a picture full of small text is better.
struct Limits {
    std::chrono::milliseconds firstReading;
    std::chrono::milliseconds secondReading; ///< in a language that fits better
};
constexpr Limits fastLimits{std::chrono::seconds(18), std::chrono::seconds(24)};
constexpr Limits accurateLimits{std::chrono::seconds(90), std::chrono::seconds(130)};

/// Grey, and turned round when most of it is dark: for what stands on no even ground.
QImage plain(const QImage& picture) {
    QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    const QImage mean = grey.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (qGray(mean.pixel(0, 0)) < 128)
        grey.invertPixels();
    return grey;
}

} // namespace

std::unique_ptr<PictureReader> PictureReader::create() {
    for (const QString& folder : languagedata::folders()) {
        auto scripts = languages::byScript(languagedata::languagesIn(folder), QLocale().uiLanguages());
        if (scripts.empty())
            continue;
        auto library = TesseractLibrary::load();
        if (!library)
            return nullptr;
        return std::unique_ptr<PictureReader>(
            new PictureReader(std::move(library), QFile::encodeName(folder), std::move(scripts)));
    }
    return nullptr;
}

std::optional<QString> PictureReader::read(QImage picture, Mode mode) {
    m_elapsed.start();
    const QImage clean = darkonwhite::cleaned(picture);
    const QImage ground = mode == Mode::accurate ? plain(picture) : QImage();
    // In colour it takes as much memory as everything else.
    picture = QImage();
    const double wanted = darkonwhite::enlargement(darkonwhite::letterHeight(clean), clean.size());
    const double enlargement = mode == Mode::fast ? std::min(wanted, quickEnlargement) : wanted;
    const ReadingPage page(clean, enlargement);

    QByteArray language = m_scripts.front().languages.front();
    const Limits& limits = mode == Mode::fast ? fastLimits : accurateLimits;
    std::optional<Lines> lines = readPage(page, language, limits.firstReading);
    if (!lines)
        return std::nullopt;
    const languages::Script& script = chooseScript(page, *lines);
    const QByteArray better = mode == Mode::accurate ? chooseLanguage(page, *lines, script) : script.languages.front();
    if (better != language) {
        std::optional<Lines> again = readPage(page, better, limits.secondReading);
        // Half a text in the likelier language is worth less than the whole in a related one.
        const bool isWhole = m_elapsed.elapsed() < limits.secondReading.count();
        if (again && (isWhole || (!again->empty() && &script != &m_scripts.front()))) {
            lines = std::move(again);
            language = better;
        }
    }
    if (mode == Mode::accurate) {
        readAgain(ReadingPage(ground, enlargement), *lines, language);
        rereadDoubtful(page, *lines, language, script);
    }
    return readlines::joined(*lines);
}

TextEngine* PictureReader::engine(const QByteArray& language) {
    const QByteArray before = std::exchange(m_language, language);
    if (const auto found = m_engines.find(language); found != m_engines.end())
        return &found->second;
    if (m_engines.size() >= enginesKept)
        std::erase_if(m_engines, [&before](const auto& entry) { return entry.first != before; });
    std::optional<TextEngine> made = TextEngine::create(*m_library, m_data, language);
    if (!made)
        return nullptr;
    return &m_engines.emplace(language, std::move(*made)).first->second;
}

std::optional<PictureReader::Lines> PictureReader::readPage(const ReadingPage& page, const QByteArray& language,
                                                            std::chrono::milliseconds end) {
    TextEngine* reader = engine(language);
    std::optional<Lines> lines;
    for (const QRect& band : page.bands()) {
        const std::chrono::milliseconds left = end - std::chrono::milliseconds(m_elapsed.elapsed());
        if (!reader || left.count() <= 0)
            break;
        const std::optional<Lines> found = reader->read(page.part(band), TextEngine::Layout::page, left);
        if (!found)
            return std::nullopt;
        if (!lines)
            lines.emplace();
        for (TextLine line : *found) {
            line.box = page.onPage(line.box, band.topLeft());
            lines->push_back(std::move(line));
        }
    }
    return lines;
}

TextLine PictureReader::readLine(const ReadingPage& page, const TextLine& line, const QByteArray& language) {
    TextLine result{{}, line.box, 0};
    TextEngine* reader = engine(language);
    const int margin = std::max(4, line.box.height() / 4);
    const QRect box = line.box.adjusted(-margin, -margin, margin, margin) & page.rect();
    const auto found = reader ? reader->read(page.part(box), TextEngine::Layout::line) : std::nullopt;
    if (!found || found->empty())
        return result;
    result.text = readlines::joined(*found).trimmed();
    result.confidence = readlines::confidence(*found);
    return result;
}

double PictureReader::trial(const ReadingPage& page, const Lines& samples, const QByteArray& language) {
    Lines found;
    for (const TextLine& sample : samples)
        found.push_back(readLine(page, sample, language));
    return readlines::confidence(found);
}

const languages::Script& PictureReader::chooseScript(const ReadingPage& page, const Lines& lines) {
    if (lines.empty() || readlines::confidence(lines) >= wellRead)
        return m_scripts.front();
    const Lines samples = readlines::samples(lines, samplesOfScript);
    std::size_t best = 0;
    double most = 0;
    for (std::size_t index = 0; index < std::min(m_scripts.size(), scriptsTried); ++index) {
        const double confidence = trial(page, samples, m_scripts[index].languages.front());
        if (confidence > most + (index > 0 ? clearGain : 0)) {
            most = confidence;
            best = index;
        }
    }
    return m_scripts[best];
}

QByteArray PictureReader::chooseLanguage(const ReadingPage& page, const Lines& lines, const languages::Script& script) {
    QByteArray best = script.languages.front();
    if (script.languages.size() == 1)
        return best;
    const Lines samples = readlines::samples(lines, samplesOfLanguage);
    double most = 0;
    for (const QByteArray& language : script.languages.first(std::min(script.languages.size(), languagesTried))) {
        const double confidence = trial(page, samples, language);
        if (confidence <= most)
            continue;
        most = confidence;
        best = language;
    }
    return best;
}

void PictureReader::rereadDoubtful(const ReadingPage& page, Lines& lines, const QByteArray& language,
                                   const languages::Script& script) {
    QByteArrayList others = script.languages.first(std::min(script.languages.size(), languagesTried));
    others.removeAll(language);
    // Names and commands in Latin letters stand in texts of every script.
    if (const QByteArray latin = m_scripts.front().languages.front(); latin != language && !others.contains(latin))
        others.append(latin);
    // One language after the other: more than two are not in memory at once.
    for (const QByteArray& other : others) {
        for (TextLine& line : lines) {
            if (line.confidence >= doubtful)
                continue;
            if (m_elapsed.elapsed() > longestImproving)
                return;
            const TextLine again = readLine(page, line, other);
            if (again.confidence >= line.confidence + clearGain)
                line = again;
        }
    }
}

void PictureReader::readAgain(const ReadingPage& page, Lines& lines, const QByteArray& language) {
    if (m_elapsed.elapsed() > longestImproving)
        return;
    if (const std::optional<Lines> others = readPage(page, language, accurateLimits.secondReading))
        readlines::improve(lines, *others);
}

} // namespace vellumry
