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
    /// From now on there is a file.
    void setDatabase(std::shared_ptr<ClipDatabase> database);
    /// The file is read from now on, and not written to: every change waits in memory, until `release`.
    void hold() { m_isHeld = true; }
    /// The file may be written to; `retry` begins with what has waited.
    void release() { m_isHeld = false; }
    /// The file that was held is not to be used: what waits with its payload goes on waiting for another one, and rows
    /// that were to go are still to go.
    void abandon();
    /// Of the clips that wait, some take the place of a row of another identity (`replaced`, by the clip's); the rows
    /// of `unwanted` go.
    void replaceRows(const QHash<QUuid, QUuid>& replaced, const std::vector<QUuid>& unwanted);
    /// The rows that are in the file only because nothing was written yet.
    [[nodiscard]] QSet<QUuid> rowsToGo() const;
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
    /// True when a change of the clip's row is not written now: it will be with what waits.
    bool mustWait(const QUuid& id);
    void dispose(std::shared_ptr<ClipPayload> payload);
    void failed();
    void settle();

    Find m_find;
    QHash<QUuid, Unsaved> m_unsaved;
    QSet<QUuid> m_doomed; ///< rows that could not be deleted
    bool m_isHeld = false;
    bool m_mustReclaim = false;
    bool m_isBehind = false;
    bool m_isRetrying = false;
    std::chrono::milliseconds m_delay;
    QTimer m_timer;
    std::shared_ptr<ClipDatabase> m_database;
};

} // namespace vellumry
