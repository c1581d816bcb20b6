// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vellumry {

class ClipStore;
class Pasteboard;

/// Lets a copy outlive the application that it was made in: when that ends, what the history took of the copy is put
/// back on the pasteboard. The marker on our write keeps it from becoming a new clip.
///
/// A sensitive clip goes from the pasteboard too when it leaves the history, at its time or by the user's hand, whether
/// it was put back or pasted from the history, and so does what is offered of it as the primary selection. Ordinary
/// clips stay, as they would under a living owner, and so does what another program copied since then.
///
/// Main thread. Takes the pasteboard's `onOwnerGone`; store and pasteboard must outlive it.
class SurvivingCopy : public QObject {
    Q_OBJECT

public:
    SurvivingCopy(ClipStore& store, Pasteboard& pasteboard, QObject* parent = nullptr);
    ~SurvivingCopy() override;

    /// The history took `clip` from the copy that the pasteboard holds, or held, at `changeCount`.
    void noteStored(const ClipRef& clip, qint64 changeCount);
    /// What the pasteboard holds now was just written from `clip`; without one, from a copy that is not in the history.
    void noteWritten(std::optional<QUuid> clip, bool isSensitive);

private:
    /// What the pasteboard has, or had, at one change count.
    struct Copy {
        qint64 changeCount = 0;
        QUuid clip;
        bool isSensitive = false;
    };

    QCoro::Task<void> takeOver(Copy copy);
    void followHistory();

    ClipStore* m_store;
    Pasteboard* m_pasteboard;
    std::optional<Copy> m_stored;     ///< the copy that the history took last
    std::optional<Copy> m_kept;       ///< what we put back
    std::optional<qint64> m_orphaned; ///< the change count of what the owner that went last held
};

} // namespace vellumry
