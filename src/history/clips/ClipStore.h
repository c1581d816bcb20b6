// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "history/clips/Clip.h"
#include "history/clips/ClipFilter.h"
#include "history/clips/Provenance.h"
#include "history/clips/RemovedClips.h"
#include "history/clips/RetentionPolicy.h"
#include "platform/desktop/DateTimer.h"

#include <QCoroTask>
#include <QHash>
#include <QObject>
#include <QSet>
#include <functional>
#include <memory>

namespace vellumry {

class ClipDatabase;
class ClipCrypto;
class ClipList;
struct NewestClips;

/// One copy of the user, several drafts of which may reach the store: its program wrote it more than once.
struct CopyIdentity {
    QUuid clip; ///< that it made; null when the content was known already
};

/// The one place that knows the history: every clip in memory, ordered by last use, newest first; every change goes
/// through it. With a database, payloads lie sealed in the history file; without one, everything is in memory and gone
/// at the end.
///
/// Main thread only. Operations that persist have changed the memory state before their first suspension (`add` only
/// when the payload is not so large that it is hashed elsewhere first); errors never leave them.
class ClipStore : public QObject {
    Q_OBJECT

public:
    /// Loads the history. Throws what loading threw.
    [[nodiscard]] static QCoro::Task<std::unique_ptr<ClipStore>> open(std::shared_ptr<ClipDatabase> database,
                                                                      RetentionPolicy policy, bool recoveredFromDamage);
    /// Memory-only: a fresh random key, no clips. Cannot fail.
    explicit ClipStore(RetentionPolicy policy);
    ~ClipStore() override;

    [[nodiscard]] const std::vector<ClipRef>& clips() const;
    /// Null when there is none.
    [[nodiscard]] ClipRef find(const QUuid& id) const;
    /// Grows with every change of `clips`.
    [[nodiscard]] qint64 revision() const;
    /// Grows when something went that is not to be seen any more: the user deleted it, or a secret's time was over. Not
    /// when old clips make room for new ones.
    [[nodiscard]] qint64 deletions() const;
    /// True when there is no file and none is being opened: everything will be gone at the end.
    [[nodiscard]] bool isMemoryOnly() const;
    /// The file refuses copies or changes, a full disk for one; they wait in memory and are tried again.
    [[nodiscard]] bool isBehind() const;
    /// Says that the file is being opened, or that this has failed; `attach` ends it too.
    void setOpening(bool isOpening);
    /// Tells whether a file that is worked with already is sound.
    using FileVerdict = std::function<QCoro::Task<bool>()>;
    /// Joins the history of a file with what was captured without one, which is written to it. The latest clips are
    /// there first, then the rest; nothing is written before all are there and `isSound`, which is asked at once, has
    /// answered. False when it says no or throws: nothing of the file is left then, nothing that was captured is lost,
    /// and `database` is let go. Throws what loading threw; the store is then as after a no. Until it has gone well
    /// once.
    [[nodiscard]] QCoro::Task<bool> attach(std::shared_ptr<ClipDatabase> database, bool recoveredFromDamage,
                                           FileVerdict isSound = nullptr);
    /// The file is open, but only its latest clips are among `clips`: the rest is on its way.
    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] bool recoveredFromDamage() const;
    void setRecoveredFromDamage(bool value);
    [[nodiscard]] const RetentionPolicy& policy() const;
    /// Does not run retention; the caller does.
    void setPolicy(RetentionPolicy policy);
    /// Seconds that a sensitive clip lives; 60 at first.
    [[nodiscard]] double sensitiveLifetime() const;
    void setSensitiveLifetime(double seconds);
    /// Whether a timer removes sensitive clips on time. It governs the timer alone: an expired clip goes at the latest
    /// with the next retention. False at first.
    [[nodiscard]] bool autoExpire() const;
    void setAutoExpire(bool value);
    /// The earliest expiry of all clips.
    [[nodiscard]] std::optional<Date> nextExpiry() const;
    /// True while the timer waits for an expiry.
    [[nodiscard]] bool isExpiryScheduled() const;
    /// What the timer goes by; the wall clock at first.
    void setClock(Clock clock);
    /// How the timer waits; by intervals at first.
    void setExpiryTimer(std::unique_ptr<DateTimer> timer);

    /// The stored clip; null if retention removed it at once. When the task is done, the clip is durable, or the file
    /// has refused it: then it waits in memory (`isBehind`). A later draft of the same `copy` replaces the clip that an
    /// earlier one made, and keeps its identity unless another clip has the new content already.
    QCoro::Task<ClipRef> add(ClipDraft draft, Date now, std::shared_ptr<CopyIdentity> copy = nullptr);
    /// Puts a clip that was copied elsewhere where its times put it. The history's own clips come first: what it has
    /// already stays as it is, and nothing of it goes for a clip that is older. Durable as with `add`.
    QCoro::Task<TakenIn> takeIn(ClipDraft draft, Provenance provenance);
    /// Nothing for an unknown clip and for one that cannot be read.
    [[nodiscard]] QCoro::Task<std::optional<ClipPayload>> payload(QUuid id);
    QCoro::Task<void> markUsed(QUuid id, Date date);
    QCoro::Task<void> setPinned(QUuid id, bool isPinned, Date date);
    QCoro::Task<void> setImageText(QUuid id, std::optional<QString> text, bool isAccurate);
    /// `thorough` gives the space back even for little.
    QCoro::Task<void> remove(QSet<QUuid> ids, bool thorough);
    /// Removes clips as `remove` does, from memory and from the file, and hands them over whole.
    QCoro::Task<RemovedClips> takeOut(QSet<QUuid> ids);
    /// Clips that were taken out are there again as they were: identity, dates, pins and place. Not those of a content
    /// that was copied again meanwhile, and none when the history was cleared or joined another since.
    QCoro::Task<void> putBack(RemovedClips removed);
    /// What was taken out is not to come back: nothing of it is left, neither here nor in the file or its log.
    QCoro::Task<void> letGo(RemovedClips removed);
    QCoro::Task<void> clearHistory(bool keepPinned);
    QCoro::Task<void> enforceRetention(Date now);

    [[nodiscard]] std::vector<ClipRef> recentClips(qint64 limit, bool includePinned) const;
    /// In pin order.
    [[nodiscard]] std::vector<ClipRef> pinnedClips() const;
    [[nodiscard]] std::vector<QUuid> clipsWithoutText() const;
    [[nodiscard]] std::vector<QUuid> clipsWithRoughText() const;
    /// The clips that match, in history order. Synchronous, no limit on the number of results.
    [[nodiscard]] std::vector<ClipRef> search(const QString& query, ClipFilter filter) const;
    /// Nothing is searched for any more: wipes the last query, by which `search` goes on faster when more of it is
    /// typed, and in a history of up to 10,000 clips what was folded of their texts, which takes milliseconds to make
    /// again. It is made again by `wakeSearch`, or by the next search.
    void forgetSearch();
    /// Something is about to be searched for: makes ready what `forgetSearch` has given back, in the background.
    void wakeSearch();
    /// Bytes that are held for folded texts.
    [[nodiscard]] std::size_t searchCapacity() const;

Q_SIGNALS:
    /// Something of `clips` changed.
    void clipsChanged();
    /// `isMemoryOnly`, `isLoading` or `isBehind` may answer otherwise.
    void storageChanged();

private:
    ClipStore(std::shared_ptr<ClipDatabase> database, RetentionPolicy policy, bool recoveredFromDamage,
              std::vector<ClipRef> clips);
    /// Notifies the listeners of `clips`, the expiry timer first.
    void changed();
    void prepareSearch();
    QCoro::Task<void> drop(QSet<QUuid> ids, bool thorough);
    [[nodiscard]] ClipRef replacedBy(const Fingerprint& fingerprint, const CopyIdentity* copy);
    /// Nothing where it cannot be made, or the store has gone meanwhile.
    QCoro::Task<std::optional<Fingerprint>> hashOf(ClipDraft draft);
    void forget(const QUuid& id);
    QCoro::Task<void> load(std::shared_ptr<ClipDatabase> database);
    QCoro::Task<QHash<QUuid, Fingerprint>> fingerprintsUnder(std::shared_ptr<const ClipCrypto> crypto);
    void join(std::shared_ptr<ClipDatabase> database, NewestClips newest,
              const QHash<QUuid, Fingerprint>& fingerprints);
    void complete(ClipList whole);
    void detach();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace vellumry
