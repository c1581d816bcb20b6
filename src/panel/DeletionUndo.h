// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/RemovedClips.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <deque>
#include <memory>
#include <optional>

namespace vellumry {

class ClipStore;

/// The deletions that the user can still take back, the last one first. Each is let go of some seconds after it was
/// made, and all of them when `forget` is called: nothing of the clips is kept then. Main thread.
class DeletionUndo : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::seconds usualTime{8};

    /// One deletion. Its clips arrive a moment after it was made.
    struct Deletion {
        int count = 0;      ///< of clips
        quint64 edits = 0;  ///< of the search field when it was made
        QDeadlineTimer end; ///< of the offer
        std::optional<RemovedClips> clips;
        bool isWanted = false; ///< undone before the clips had arrived
        bool isOver = false;   ///< expired or dropped before the clips had arrived
    };

    /// `store` must outlive this.
    explicit DeletionUndo(ClipStore& store);

    /// How long a deletion can be taken back.
    void setTime(std::chrono::milliseconds time) { m_time = time; }
    /// A deletion of `count` clips begins; `arrive` brings them.
    [[nodiscard]] std::shared_ptr<Deletion> begin(int count, quint64 edits);
    void arrive(const std::shared_ptr<Deletion>& deletion, RemovedClips clips);
    /// Null when there is none.
    [[nodiscard]] std::shared_ptr<const Deletion> last() const;
    /// Puts the clips of the last deletion back, or does so once they have arrived.
    void takeBack();
    void forget();

Q_SIGNALS:
    /// `last` answers otherwise.
    void changed();
    /// The clips are in the history again.
    void tookBack(const vellumry::RemovedClips& clips);

private:
    void putBack(const RemovedClips& clips);
    void letGo(Deletion& deletion);
    void endOverdue();
    void schedule();

    ClipStore* m_store;
    std::chrono::milliseconds m_time = usualTime;
    std::deque<std::shared_ptr<Deletion>> m_deletions; ///< the oldest first
    QTimer m_timer;
};

} // namespace vellumry
