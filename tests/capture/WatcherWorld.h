// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/ClipboardWatcher.h"
#include "foundation/UniformType.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"
#include "support/FakePasteboard.h"

#include <gtest/gtest.h>

namespace vellumry {

/// A watcher over doubles and a real history in memory. Ticks are driven by hand, `now` is what the test says.
class WatcherWorld : public ::testing::Test {
protected:
    WatcherWorld() {
        pasteboard.copyText(QStringLiteral("before the launch"));
        makeWatcher();
    }

    void makeWatcher() {
        watcher = std::make_unique<ClipboardWatcher>(pasteboard, store, defaults, bookmarks, images, [this] {
            ++sourceRequests;
            return source;
        });
        watcher->onCapture = [this](const ClipRef& clip) { captured.append(clip->title.toString()); };
        watcher->onStored = [this](const ClipRef& clip, qint64 changeCount) {
            stored.push_back({clip->id, changeCount});
        };
        watcher->onRead = [this](const ClipDraft& draft) { readTitles.append(draft.title); };
        watcher->onIgnoredCopy = [this] { ++ignoredCopies; };
        watcher->onLowDisk = [this] { ++lowDiskCalls; };
    }
    void copyAndTick(const char* text, Date now) {
        pasteboard.copyText(QString::fromUtf8(text));
        watcher->tick(now);
    }
    /// Titles in the history, newest first.
    QStringList history() const {
        QStringList titles;
        for (const ClipRef& clip : store.clips())
            titles.append(clip->title.toString());
        return titles;
    }

    FakePasteboard pasteboard;
    ClipStore store{RetentionPolicy()};
    UserDefaults defaults;
    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
    SourceApp source{QStringLiteral("org.example.Editor"), QStringLiteral("Editor")};
    int sourceRequests = 0;
    std::unique_ptr<ClipboardWatcher> watcher;

    QStringList captured;
    QStringList readTitles;
    std::vector<std::pair<QUuid, qint64>> stored;
    int ignoredCopies = 0;
    int lowDiskCalls = 0;
};

} // namespace vellumry
