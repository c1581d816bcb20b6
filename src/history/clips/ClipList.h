// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/ClipBy.h"
#include "history/clips/RetentionPolicy.h"

#include <QSet>
#include <set>
#include <utility>

namespace vellumry {

/// The clips in their order, last used first, found by identity and by fingerprint without a walk, with the sums that
/// tell whether the history is within its limits. One thread.
class ClipList {
public:
    [[nodiscard]] const std::vector<ClipRef>& clips() const { return m_clips; }
    /// Null when there is none.
    [[nodiscard]] ClipRef find(const QUuid& id) const;
    /// The first clip of that fingerprint, of any kind; null when there is none.
    [[nodiscard]] ClipRef findFingerprint(const Fingerprint& fingerprint) const;
    /// The earliest expiry of all clips.
    [[nodiscard]] std::optional<Date> nextExpiry() const;
    /// The place of a pin made at `date`: pins go by the time they were made, in milliseconds, and two of one
    /// millisecond still differ.
    [[nodiscard]] qint64 nextPinOrder(Date date) const;
    /// True when no limit of `policy` asks for anything to go at `now`; costs no walk. Expiries are not asked.
    [[nodiscard]] bool isWithin(const RetentionPolicy& policy, Date now) const;
    /// The clips whose expiry is not later than `now`; costs no walk.
    [[nodiscard]] QSet<QUuid> expired(Date now) const;

    /// The first `limit` clips, the pinned ones left out unless asked for; none for a negative limit.
    [[nodiscard]] std::vector<ClipRef> recent(qint64 limit, bool includePinned) const;
    /// In pin order, the older first among equals.
    [[nodiscard]] std::vector<ClipRef> pinned() const;
    /// The images and image files for which `isWanted` holds, in order.
    [[nodiscard]] std::vector<QUuid> pictures(bool (*isWanted)(const Clip&)) const;

    /// Replaces everything; sorts, equals keeping their order. Of several clips with one id the first stays.
    void assign(std::vector<ClipRef> clips);
    /// Copies `clips` for a thread that goes on with them. So many counts to be raised take a while: it is done where
    /// the list is made, and `takeCopy` hands it over.
    void copyForAnother() { m_copy = m_clips; }
    [[nodiscard]] std::vector<ClipRef> takeCopy() { return std::exchange(m_copy, {}); }
    /// Puts the clip before the first that was not used later.
    void insert(ClipRef clip);
    /// Puts `clip` in place of the listed `old`, at the position that its own last use asks for.
    void replace(const ClipRef& old, ClipRef clip);
    /// Puts `clip` exactly where the listed clip of the same id and last use is.
    void change(ClipRef clip);
    /// Takes out the clips of these ids and returns them.
    std::vector<ClipRef> remove(const QSet<QUuid>& ids);
    /// Takes out everything, or everything that is not pinned, at the cost of what stays, and returns the list as it
    /// was; null, and nothing changed, when there was nothing to take out.
    [[nodiscard]] std::unique_ptr<ClipList> takeAll(bool keepPinned);
    /// The identities of all clips, or of those that are not pinned.
    [[nodiscard]] std::vector<QUuid> ids(bool withoutPinned) const;

private:
    /// The index of the first clip of [first, last) that was not used later than `date`.
    [[nodiscard]] std::ptrdiff_t position(Date date, std::ptrdiff_t first, std::ptrdiff_t last) const;
    [[nodiscard]] std::ptrdiff_t indexOf(const Clip& clip) const;
    void enter(const Clip& clip);
    /// Enters a clip that is found by its identity already.
    void enterBesideId(const Clip& clip);
    void leave(const Clip& clip);

    std::vector<ClipRef> m_clips;
    std::vector<ClipRef> m_copy;
    ClipsBy<&Clip::id> m_byId;
    /// A file that only we wrote holds no fingerprint twice. If one does, this has fewer entries than there are
    /// clips.
    ClipsBy<&Clip::fingerprint> m_byFingerprint;
    std::set<std::pair<Date, QUuid>> m_expiries;
    qint64 m_unpinnedCount = 0;
    qint64 m_mediaBytes = 0;
};

} // namespace vellumry
