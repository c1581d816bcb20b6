// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QCoroTask>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace vellumry {

class ClipDatabase;

/// Brings the changes of the history into its file. What the file does not take (a full disk, a lock, no file at all)
/// waits here and is tried again until it does: copies with their payloads, fields that lag, rows that must go, a log
/// that must be emptied.
///
/// Main thread. No operation throws; each is done when the file has the change, or when it has refused it once.
class HistoryWriter : public QObject {
    Q_OBJECT

public:
    /// The clip as it is now; null when it has gone.
    using Find = std::function<ClipRef(const QUuid& id)>;

    explicit HistoryWriter(Find find);
    /// Waits for what the file was given.
    ~HistoryWriter() override;

    [[nodiscard]] bool hasDatabase() const { return m_database != nullptr; }
    /// From now on there is a file. Of the clips that wait for it, some take the place of a row of another identity
    /// (`replaced`, by the clip's); the rows of `unwanted` go. `retry` begins it.
    void setDatabase(std::shared_ptr<ClipDatabase> database, const QHash<QUuid, QUuid>& replaced = {},
                     const std::vector<QUuid>& unwanted = {});
    /// The file refused something that it has not taken since.
    [[nodiscard]] bool isBehind() const { return m_isBehind; }
    /// `isBehind` answers otherwise.
    std::function<void()> onBehindChanged = [] {};

    QCoro::Task<void> insert(QUuid id, ClipPayload payload);
    [[nodiscard]] QCoro::Task<std::optional<ClipPayload>> payload(QUuid id);
    /// What waits to be written; null when nothing does.
    [[nodiscard]] std::shared_ptr<const ClipPayload> unsavedPayload(const QUuid& id) const;
    QCoro::Task<void> updateUsed(ClipRef clip);
    /// `isRescued`: the clip's expiry went with it.
    QCoro::Task<void> updatePinned(ClipRef clip, bool isRescued);
    QCoro::Task<void> updateMeta(ClipRef clip);
    /// `mustReclaim`: nothing of the rows may be left in the file or its log.
    QCoro::Task<void> remove(std::vector<QUuid> ids, bool mustReclaim);
    /// The same for so many that listing them takes a while: `ids` is asked on the history's own thread.
    QCoro::Task<void> removeAllOf(std::function<std::vector<QUuid>()> ids);
    /// Lets go of what was removed, and leaves nothing of removed rows in the file or its log.
    QCoro::Task<void> letGo(std::shared_ptr<const void> thing);
    /// Drops the payloads of clips that have gone.
    void forgetGone();
    /// Tries all that waits, now.
    QCoro::Task<void> retry();

private:
    struct Unsaved {
        std::shared_ptr<ClipPayload> payload; ///< null when only fields of the row lag behind
        QUuid replaces;                       ///< the row that gives way, null when none does
        int version = 0;                      ///< grows with every change of the clip that was not written
        bool isInFlight = false;
    };

    QCoro::Task<bool> write(QUuid id);
    QCoro::Task<bool> writeAll();
    QCoro::Task<bool> deleteRows(std::vector<QUuid> ids);
    QCoro::Task<bool> reclaim();
    QCoro::Task<void> update(QUuid id, QCoro::Task<bool> writing);
    /// True when a whole row waits to be written anyway.
    bool joinsWaiting(const QUuid& id);
    void release(std::shared_ptr<ClipPayload> payload);
    void failed();
    void settle();

    Find m_find;
    QHash<QUuid, Unsaved> m_unsaved;
    QSet<QUuid> m_doomed; ///< rows that could not be deleted
    bool m_mustReclaim = false;
    bool m_isBehind = false;
    bool m_isRetrying = false;
    std::chrono::milliseconds m_delay;
    QTimer m_timer;
    std::shared_ptr<ClipDatabase> m_database;
};

} // namespace vellumry
