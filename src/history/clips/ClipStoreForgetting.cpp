// SPDX-License-Identifier: GPL-3.0-or-later

// How clips leave the store.

#include "history/clips/ClipStorePrivate.h"
#include "history/clips/Retention.h"

#include <algorithm>
#include <utility>

namespace vellumry {

QCoro::Task<void> ClipStore::remove(QSet<QUuid> ids, bool thorough) {
    if (ids.isEmpty())
        co_return;
    ++d->deletions;
    auto dropping = drop(std::move(ids), thorough);
    co_await dropping;
}

QCoro::Task<void> ClipStore::drop(QSet<QUuid> ids, bool thorough) {
    if (ids.isEmpty())
        co_return;
    const std::vector<ClipRef> removed = d->list.remove(ids);
    for (const QUuid& id : ids)
        forget(id);
    if (!removed.empty())
        changed();

    const bool mustReclaim = thorough || retention::isWorthReclaiming(removed, ids.size());
    auto removing = d->writer.remove({ids.begin(), ids.end()}, mustReclaim);
    co_await removing;
}

QCoro::Task<void> ClipStore::clearHistory(bool keepPinned) {
    // A hundred thousand clips, one after the other, would hold the main thread for many frames: the whole list goes to
    // the database's thread instead, which asks it for the ids and throws it away.
    if ((!d->writer.hasDatabase() || d->isLoading) && d->cleared != ClearedBefore::everything)
        d->cleared = keepPinned ? ClearedBefore::unpinned : ClearedBefore::everything;
    ++d->era;
    ++d->deletions;
    std::shared_ptr<ClipList> gone = d->list.takeAll(keepPinned);
    if (!gone)
        co_return;
    std::shared_ptr<ClipSearch> texts = std::exchange(d->search, std::make_shared<ClipSearch>());
    d->loadedSearch.reset();
    d->writer.forgetGone();
    changed();
    auto ids = [gone = std::move(gone), texts = std::move(texts), keepPinned] { return gone->ids(keepPinned); };
    auto removing = d->writer.removeAllOf(std::move(ids));
    co_await removing;
}

QCoro::Task<void> ClipStore::enforceRetention(Date now) {
    // Mostly there is no more to do than this, and the walk over a long history would be felt.
    QSet<QUuid> doomed =
        d->list.isWithin(d->policy, now) ? d->list.expired(now) : retention::doomedClips(clips(), d->policy, now);
    const auto isSecret = [this](const QUuid& id) { return find(id)->isSensitive(); };
    if (std::ranges::any_of(doomed, isSecret))
        ++d->deletions;
    auto dropping = drop(std::move(doomed), false);
    co_await dropping;
}

void ClipStore::forget(const QUuid& id) {
    d->forgetText(id);
    d->search->forgetLookAlikes(id);
}

} // namespace vellumry
