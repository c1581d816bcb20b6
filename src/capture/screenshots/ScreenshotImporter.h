// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/screenshots/ScreenshotFile.h"
#include "foundation/Date.h"
#include "history/clips/ClipStore.h"
#include "platform/files/FolderWatching.h"
#include "platform/files/ImageCodec.h"

#include <QCoroTask>
#include <QHash>
#include <QObject>
#include <QSet>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace vellumry {

/// Makes clips of the screenshots that tools save to files: watches the folders they save to, tells new screenshots
/// from other files, waits for one that is still being written. A file that was there when watching began is never
/// touched. Main thread; the disk is read elsewhere, with deadlines. What is handed to it must outlive it and the tasks
/// it started.
class ScreenshotImporter : public QObject {
public:
    struct NotYetComplete {};
    struct NotAScreenshot {};
    using ReadResult = std::variant<ClipDraft, NotYetComplete, NotAScreenshot>;

    /// The outside world; a test replaces what it needs to.
    struct Hooks {
        /// The folders that screenshots are saved to. Asked once at each start, off the main thread.
        std::function<QStringList()> folders;
        /// The names in a folder; nothing when it cannot be listed, an empty list when it is not there. Off the main
        /// thread.
        std::function<std::optional<QStringList>(const QString& folder)> list = ScreenshotFile::namesIn;
        /// Calls a function later, on the main thread.
        std::function<void(std::chrono::milliseconds, std::function<void()>)> after = afterAWhile;
        std::function<Date()> now = currentDate;
    };

    ScreenshotImporter(ClipStore& store, ImageCodec& images, FolderWatching& watching, Hooks hooks);
    ~ScreenshotImporter() override;

    /// Begins to watch, with everything that is in the folders taken for known. False when none of them can be listed
    /// or watched; it is stopped then. Begins afresh when it watches already.
    QCoro::Task<bool> start();
    /// Ends watching and forgets what is known. An import under way ends on its own.
    void stop();
    [[nodiscard]] bool isWatching() const { return m_watch != nullptr; }
    [[nodiscard]] bool isScanning() const { return m_isScanning; }

    /// Looks at one file. `NotYetComplete` for one that cannot be read to its end (yet).
    [[nodiscard]] QCoro::Task<ReadResult> read(QString path) const;

    /// A screenshot became a clip.
    std::function<void(const ClipRef& clip)> onImported;
    /// False while capture is paused. Asked for each new file.
    std::function<bool()> isAllowed = [] { return true; };
    /// False when the disk has no room for pictures. Asked for each new file.
    std::function<bool()> hasRoomForImages = [] { return true; };

private:
    using Listings = std::vector<std::optional<QStringList>>;

    static void afterAWhile(std::chrono::milliseconds delay, std::function<void()> function);
    [[nodiscard]] static QCoro::Task<std::optional<Listings>> listings(Hooks hooks, QStringList folders);
    void folderChanged();
    QCoro::Task<void> scan(bool isRetry);
    QCoro::Task<void> importFile(QString path, bool isRetry, quint64 session);
    void noteIncomplete(const QString& path, bool isRetry);
    void retryLater();

    ClipStore* m_store;
    ImageCodec* m_images;
    FolderWatching* m_watching;
    const Hooks m_hooks;
    std::unique_ptr<FolderWatch> m_watch;
    QStringList m_folders;
    QSet<QString> m_known;         ///< paths that are never looked at again
    QHash<QString, int> m_retries; ///< attempts at files that were not yet complete
    quint64 m_session = 0;         ///< counts starts and stops: what an earlier one began does not touch a later one
    bool m_isScanning = false;
    bool m_scanAgain = false;
    bool m_isRetryDue = false;
};

} // namespace vellumry
