// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TextReading.h"

#include "foundation/Localisation.h"

#include <QTimer>

namespace vellumry {

namespace {

constexpr std::chrono::seconds backlogDelay{3};

TextReadingQueue::Seams seamsOf(const Platform& platform, const std::shared_ptr<TextRecognizer>& recognizer) {
    TextReadingQueue::Seams seams;
    seams.read = [recognizer](QByteArray picture, TextReadingQueue::Reader reader) {
        return recognizer->read(std::move(picture), reader);
    };
    seams.isAccurateUsable = [recognizer] { return recognizer->isAccurateUsable(); };
    seams.isAvailable = [recognizer] { return recognizer->isAvailable(); };
    const FilePlaces places = FilePlaces::ofUser(platform.home);
    const FileBookmarks* bookmarks = platform.bookmarks.get();
    seams.fileStatus = [bookmarks, places](const FileRef& file) { return FileStatus::check(file, *bookmarks, places); };
    // Only the system of a confined package asks the user a question when a file is opened.
    seams.canReadQuietly = [places, isConfined = platform.isConfined](const QString& path) {
        return isConfined ? PictureFiles::isOutside(places, path) : PictureFiles::opens(path);
    };
    return seams;
}

} // namespace

TextReading::TextReading(Platform& platform, ClipStore& store)
    : m_recognizer(std::make_shared<TextRecognizer>(*platform.textReader))
    , m_queue(std::make_unique<TextReadingQueue>(store, seamsOf(platform, m_recognizer))) {
    m_queue->onFileUnreadable = [this](const QUuid&) {
        onToast({QStringLiteral("lock.doc"),
                 localised("Vellumry can't open that file. Allow it in Privacy & Security → Files and Folders"),
                 ToastMessage::Tone::warning});
    };
    m_queue->onReaderMissing = [this] {
        onToast({QStringLiteral("exclamationmark.triangle.fill"),
                 localised("Install Tesseract and its data for your language."), ToastMessage::Tone::warning});
    };
}

void TextReading::take(const ClipRef& clip) {
    if (clip->kind == ClipKind::image || clip->isImageFile())
        m_queue->enqueue({clip->id});
}

void TextReading::scheduleBacklog() {
    QTimer::singleShot(backlogDelay, m_queue.get(), [queue = m_queue.get()] { queue->enqueueBacklog(); });
}

} // namespace vellumry
