// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/text/TextReadingQueue.h"
#include "foundation/OneShot.h"
#include "support/Awaited.h"
#include "support/Drafts.h"

#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <gtest/gtest.h>
#include <map>

namespace vellumry {

/// A queue over a store in memory, with a reader that answers as it is told.
class TextReadingWorld : public testing::Test {
protected:
    using Reader = TextReadingQueue::Reader;
    using Answer = std::optional<QString>;

    /// A reader that answers what `answers` says, else "fast" or "accurate" and the picture, at once, or at the next
    /// `letGo` while `isHeld`.
    struct FakeReading {
        struct Read {
            QByteArray picture;
            Reader reader;
            bool operator==(const Read&) const = default;
        };
        std::vector<Read> reads;
        std::map<QByteArray, Answer> answers;
        bool isHeld = false;
        OneShot<void> gate;

        QCoro::Task<Answer> read(QByteArray picture, Reader reader) {
            reads.push_back({picture, reader});
            if (isHeld) {
                gate = OneShot<void>();
                const OneShot<void> mine = gate;
                co_await mine;
            }
            const auto found = answers.find(picture);
            const QString usual = QString::fromUtf8((reader == Reader::fast ? "fast " : "accurate ") + picture);
            const Answer answer =
                found == answers.end() ? Answer(usual) : found->second; // what is returned is moved from
            co_return answer;
        }
        void letGo() {
            const OneShot<void> mine = gate; // the next read replaces it
            mine.deliver();
        }
    };

    QUuid add(const ClipDraft& draft) { return awaited(store.add(draft, now += 1))->id; }
    QUuid addImage(const QByteArray& bytes) { return add(drafts::image(bytes)); }
    QString writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    void finish() {
        runUntil([this] { return !queue->current() && (queue->waitingAccurate().empty() || !isAccurateUsable); });
    }
    [[nodiscard]] Answer textOf(const QUuid& id) const {
        const auto& text = store.find(id)->imageText;
        return text ? Answer(text->toString()) : Answer();
    }
    [[nodiscard]] bool isAccurate(const QUuid& id) const { return store.find(id)->imageTextIsAccurate; }

    TextReadingQueue::Seams seams() {
        return {[this](QByteArray picture, Reader reader) { return reading.read(std::move(picture), reader); },
                [this] { return isAccurateUsable; },
                [](const FileRef& file) {
                    return QFile::exists(file.path) ? FileStatus::available(file.path) : FileStatus::missing();
                },
                [this](const QString&) { return isEverywhereQuiet.load(); }, [this] { return isAvailable; }};
    }

    QTemporaryDir folder;
    ClipStore store{RetentionPolicy{}};
    FakeReading reading;
    bool isAccurateUsable = true;
    bool isAvailable = true;
    std::atomic<bool> isEverywhereQuiet{true};
    Date now = 1'000'000;
    std::unique_ptr<TextReadingQueue> queue = std::make_unique<TextReadingQueue>(store, seams());
};

} // namespace vellumry
