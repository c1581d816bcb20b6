// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/TextEngine.h"

#include <QElapsedTimer>
#include <algorithm>
#include <memory>
#include <utility>

namespace vellumry {

namespace {

/// What the library takes a picture of a screen to have when it is enlarged to readable size.
constexpr int dotsPerInch = 200;

TessPageSegMode modeOf(TextEngine::Layout layout) {
    switch (layout) {
    case TextEngine::Layout::scattered:
        return TessPageSegMode::PSM_SPARSE_TEXT;
    case TextEngine::Layout::line:
        return TessPageSegMode::PSM_SINGLE_LINE;
    case TextEngine::Layout::page:
        break;
    }
    return TessPageSegMode::PSM_AUTO;
}

} // namespace

std::optional<TextEngine> TextEngine::create(const TesseractLibrary& library, const QByteArray& data,
                                             const QByteArray& languages) {
    Handle handle(library.create(), Deleter{library.destroy});
    if (library.init(handle.get(), data.constData(), languages.constData(), TessOcrEngineMode::OEM_LSTM_ONLY) != 0)
        return std::nullopt;
    // The picture comes with dark text: trying each doubtful line inverted again would double the time.
    library.setVariable(handle.get(), "tessedit_do_invert", "0");
    return TextEngine(library, std::move(handle));
}

std::optional<std::vector<TextLine>> TextEngine::read(const QImage& picture, Layout layout,
                                                      std::optional<std::chrono::milliseconds> limit) {
    TessBaseAPI* handle = m_handle.get();
    m_library->setPageSegMode(handle, modeOf(layout));
    m_library->setImage(handle, picture.constBits(), picture.width(), picture.height(), 1,
                        static_cast<int>(picture.bytesPerLine()));
    m_library->setSourceResolution(handle, dotsPerInch);
    std::optional<std::vector<TextLine>> found;
    if (recognise(limit))
        found = lines();
    m_library->clear(handle);
    return found;
}

bool TextEngine::recognise(std::optional<std::chrono::milliseconds> limit) {
    if (!limit)
        return m_library->recognize(m_handle.get(), nullptr) == 0;
    QElapsedTimer elapsed;
    elapsed.start();
    const std::unique_ptr<ETEXT_DESC, decltype(m_library->deleteMonitor)> monitor(m_library->createMonitor(),
                                                                                  m_library->deleteMonitor);
    m_library->setDeadline(monitor.get(), static_cast<int>(std::max<qint64>(1, limit->count())));
    // The library calls it a failure when it stops; the lines that it did not come to are empty then.
    return m_library->recognize(m_handle.get(), monitor.get()) == 0 || elapsed.elapsed() >= limit->count();
}

std::vector<TextLine> TextEngine::lines() const {
    std::vector<TextLine> found;
    TessResultIterator* results = m_library->resultIterator(m_handle.get());
    if (!results)
        return found;
    const TessPageIterator* place = m_library->pageIterator(results);
    constexpr auto whole = TessPageIteratorLevel::RIL_TEXTLINE;
    do {
        char* text = m_library->utf8Text(results, whole);
        int left = 0, top = 0, right = 0, bottom = 0;
        if (m_library->boundingBox(place, whole, &left, &top, &right, &bottom)) {
            TextLine line{QString::fromUtf8(text).trimmed(), QRect(QPoint(left, top), QPoint(right - 1, bottom - 1)),
                          m_library->confidence(results, whole)};
            if (!line.text.isEmpty())
                found.push_back(std::move(line));
        }
        m_library->deleteText(text);
    } while (m_library->next(results, whole));
    m_library->deleteResultIterator(results);
    return found;
}

} // namespace vellumry
