// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/DraftBuilder.h"
#include "capture/PasteboardSnapshot.h"
#include "capture/RewriteWindow.h"
#include "foundation/Date.h"
#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "platform/display/Pasteboard.h"
#include "platform/display/SourceApp.h"

#include <QCoroTask>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace vellumry {

/// The program's capture loop: notices that the pasteboard changed, walks a fixed ladder of decisions, and hands what
/// is left of the copy to the history. Owns the ways of not capturing: the pause, the one copy to be ignored, the
/// refusal of pictures on a full disk. Main thread; everything handed to it must outlive it and the tasks it started.
class ClipboardWatcher : public QObject {
public:
    /// Tells which application is in front.
    using Source = std::function<SourceApp()>;

    /// What is on the pasteboard now counts as seen.
    ClipboardWatcher(Pasteboard& pasteboard, ClipStore& store, UserDefaults& defaults, const FileBookmarks& bookmarks,
                     ImageCodec& images, Source source, QObject* parent = nullptr);
    ~ClipboardWatcher() override;

    /// From now on each change is looked at at once: `Pasteboard::onChanged`, which it takes, tells of it, or a poll
    /// every quarter of a second where the pasteboard does not notify. What was read goes to the history at once; when
    /// its program writes the same copy again within `RewriteWindow`, the clip is replaced. A second call does nothing.
    void start();
    /// Looks at the pasteboard once, and holds back nothing of what was read. Returns without waiting for its owner,
    /// the disk or the store; a copy that was noticed reaches the store behind those noticed before it.
    void tick(Date now);
    /// No capture for `seconds`; without end when absent.
    void pause(std::optional<double> seconds, Date now);

    /// The change count seen last; a caller that sets it to the present one keeps what is there out of the history.
    qint64 lastChangeCount;
    /// Capture is paused until then; `distantFuture` is a pause without end. Clear it to resume.
    std::optional<Date> pausedUntil;
    /// The next copy is dropped unread.
    bool ignoreNextCopy = false;
    /// End of the quiet period behind a dropped copy, whose program may still be writing.
    std::optional<Date> ignoringUntil;

    /// Copies that are lost because the next one came before they could be read, since the watcher was made.
    [[nodiscard]] qint64 overtakenCopies() const { return m_overtakenCopies; }

    /// The time of a copy.
    std::function<Date()> clock = currentDate;
    /// Tells which application owns the pasteboard; it may have hidden its window when it copied.
    Source pasteboardOwner;
    /// False when the disk has no room for pictures.
    std::function<bool()> hasRoomForImages = [] { return true; };
    /// A picture was dropped for lack of room.
    std::function<void()> onLowDisk;
    /// The store took a clip. `changeCount` is the pasteboard's count of the copy it came from.
    std::function<void(const ClipRef& clip, qint64 changeCount)> onStored;
    /// The same, without the count, and not again for a copy that its program wrote twice, unless that made it a
    /// picture or files.
    std::function<void(const ClipRef& clip)> onCapture;
    /// A draft survived the checks; called before it goes to the store, for a duplicate of an older clip too. Not
    /// called again for a copy that its program wrote twice.
    std::function<void(const ClipDraft& draft)> onRead;
    /// True while a listener of `onRead` needs a copy with all its formats: what was read is then held back until its
    /// program had time to write it again.
    std::function<bool()> needsWholeCopies = [] { return false; };
    /// A copy was noticed and has neither reached `onRead` nor been dropped.
    [[nodiscard]] bool isReading() const { return !m_copies.empty(); }
    /// The last of those did.
    std::function<void()> onSettled;
    /// `ignoreNextCopy` consumed a copy.
    std::function<void()> onIgnoredCopy;

private:
    /// A copy on its way. Its turn comes when all noticed before it had theirs.
    struct Copy {
        qint64 changeCount;
        Date now;
        qint64 noticedAt = 0;  ///< on the monotonic clock, in milliseconds
        qint64 copyCount = 0;  ///< the pasteboard's when it was noticed
        bool isUrgent = false; ///< it is awaited
        bool isRead = false;
        std::optional<ClipDraft> draft;
        bool isRewrite = false;                 ///< of the copy before, which the history has already
        std::shared_ptr<CopyIdentity> identity; ///< shared by all rewrites of one copy
    };

    /// The copy that was handed to the history last, as far as a rewrite of it is recognised by it.
    struct Delivered {
        qint64 noticedAt;
        std::size_t text; ///< its hash
        bool isSensitive;
        std::shared_ptr<CopyIdentity> identity;
    };

    void look(Date now);
    void countOvertaken();
    [[nodiscard]] bool isHeldBack(Date now);
    [[nodiscard]] SnapshotRequest requestFor(const Copy& copy) const;
    QCoro::Task<void> read(std::shared_ptr<Copy> copy, SnapshotRequest request);
    void deliverRead();
    [[nodiscard]] bool isHeld();
    [[nodiscard]] bool isWrittenAgain() const;
    void recognise(Copy& copy);
    void deliver(std::shared_ptr<Copy> copy);
    void refreshSensitiveLifetime();
    QCoro::Task<void> add(std::shared_ptr<Copy> copy);

    Pasteboard* m_pasteboard;
    ClipStore* m_store;
    UserDefaults* m_defaults;
    DraftBuilder m_builder;
    Source m_source;
    std::deque<std::shared_ptr<Copy>> m_copies;
    std::optional<Delivered> m_delivered;
    bool m_isStarted = false;
    qint64 m_copyCount = 0; ///< the pasteboard's, as far as it was looked at
    qint64 m_overtakenCopies = 0;
    QElapsedTimer m_monotonic;
    QTimer m_poll;
    QTimer m_hold; ///< until a copy that was read is no longer held back
};

} // namespace vellumry
