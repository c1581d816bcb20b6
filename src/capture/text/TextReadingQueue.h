// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/text/PictureFiles.h"
#include "capture/text/TextRecognizer.h"
#include "history/clips/ClipStore.h"

#include <QCoroTask>
#include <QObject>
#include <QSet>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// Reads the text in the history's pictures, one at a time, and gives it to the store, so that search finds them by
/// their words: each picture quickly when it comes, and well when nothing new waits. Main thread; files and pictures
/// are read elsewhere.
class TextReadingQueue : public QObject {
    Q_OBJECT

public:
    using Reader = TextRecognizer::Reader;

    /// What the queue reaches the world through. All must be set; what they use must outlive the queue's tasks.
    struct Seams {
        /// The text in a picture; nothing when reading failed.
        std::function<QCoro::Task<std::optional<QString>>(QByteArray picture, Reader reader)> read;
        /// False where accurate readings keep failing: then there are none.
        std::function<bool()> isAccurateUsable;
        /// Where a file is now. Called off the main thread.
        PictureFiles::Status fileStatus;
        /// False for a file that is read on the user's word only. Called off the main thread.
        PictureFiles::CanReadQuietly canReadQuietly;
        /// False once it is known that nothing here reads text: then no picture is opened for it.
        std::function<bool()> isAvailable = [] { return true; };
    };

    TextReadingQueue(ClipStore& store, Seams seams, QObject* parent = nullptr);

    /// Has the pictures of these clips read, behind those that wait. A clip that waits already or is being read is not
    /// added again.
    void enqueue(const std::vector<QUuid>& ids);
    /// Enqueues every picture of the history without text, and those with a quick reading for a better one.
    void enqueueBacklog();
    /// The user asks for this clip of files to be read, wherever the files lie.
    void readFile(const QUuid& id);

    /// True while the clip is being read or waits for what can read it.
    [[nodiscard]] bool isReading(const QUuid& id) const;
    [[nodiscard]] std::optional<QUuid> current() const { return m_current; }
    [[nodiscard]] const std::vector<QUuid>& waitingFast() const { return m_waitingFast; }
    [[nodiscard]] const std::vector<QUuid>& waitingAccurate() const { return m_waitingAccurate; }

    /// No file of a clip that the user asked for could be read.
    std::function<void(const QUuid& id)> onFileUnreadable = [](const QUuid&) {};
    /// The user asked for a clip, and nothing here reads text.
    std::function<void()> onReaderMissing = [] {};

Q_SIGNALS:
    /// `isReading` may answer differently for some clip.
    void changed();

private:
    struct Job {
        QUuid id;
        Reader reader;
    };

    void wake();
    void addAccurate(const QUuid& id);
    [[nodiscard]] std::optional<Job> takeJob();
    [[nodiscard]] bool isWorthReading(const Clip& clip, Reader reader);
    QCoro::Task<void> work();
    QCoro::Task<void> readClip(Job job);
    [[nodiscard]] QCoro::Task<PictureFiles> pictures(ClipRef clip, bool isAsked);
    QCoro::Task<void> readPictures(Job job, std::vector<QByteArray> pictures);
    QCoro::Task<void> giveUp(ClipRef clip, bool isAsked);

    ClipStore* m_store;
    Seams m_seams;
    std::vector<QUuid> m_waitingFast;
    std::vector<QUuid> m_waitingAccurate;
    std::optional<QUuid> m_current;
    QSet<QUuid> m_askedFiles;
    bool m_isWorking = false;
};

} // namespace vellumry
