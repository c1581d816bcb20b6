// SPDX-License-Identifier: GPL-3.0-or-later

// How the history's file comes to a store that captures already.

#include "history/clips/ClipStorePrivate.h"

#include <QPointer>

namespace vellumry {

namespace {

/// As much of a clip's draft as its fingerprint asks for.
ClipDraft draftOf(const Clip& clip, const ClipPayload& payload) {
    ClipDraft draft;
    draft.kind = clip.kind;
    draft.files = clip.files;
    draft.payload = payload;
    return draft;
}

} // namespace

QCoro::Task<void> ClipStore::attach(std::shared_ptr<ClipDatabase> database, bool recoveredFromDamage) {
    const QPointer<ClipStore> self(this);
    auto loading = database->loadAll();
    std::vector<ClipRef> rows = co_await loading;
    if (!self)
        co_return;
    auto expiring = enforceRetention(d->clock());
    co_await expiring;

    const auto crypto = std::make_shared<const ClipCrypto>(database->crypto());
    QHash<QUuid, Fingerprint> fingerprints;
    // Each hash may take a while, in which more is captured.
    for (;;) {
        const auto next =
            std::ranges::find_if(clips(), [&](const ClipRef& clip) { return !fingerprints.contains(clip->id); });
        if (next == clips().end())
            break;
        const ClipRef clip = *next;
        const auto payload = d->writer.unsavedPayload(clip->id);
        auto hashing = d->hasher.fingerprint(draftOf(*clip, payload ? *payload : ClipPayload()), crypto);
        fingerprints[clip->id] = co_await hashing;
        if (!self)
            co_return;
    }
    join(std::move(database), std::move(rows), fingerprints);
    d->recoveredFromDamage = recoveredFromDamage;
    auto writing = d->writer.retry();
    co_await writing;
    if (!self)
        co_return;
    auto retaining = enforceRetention(d->clock());
    co_await retaining;
}

void ClipStore::join(std::shared_ptr<ClipDatabase> database, std::vector<ClipRef> rows,
                     const QHash<QUuid, Fingerprint>& fingerprints) {
    JoinedClips joined = joinClips(std::move(rows), clips(), fingerprints, std::exchange(d->cleared, std::nullopt));
    for (auto id = joined.replaced.keyBegin(); id != joined.replaced.keyEnd(); ++id)
        forget(*id);
    d->crypto = std::make_shared<const ClipCrypto>(database->crypto());
    d->list.assign(std::move(joined.clips));
    d->writer.setDatabase(std::move(database), joined.replaced, joined.unwanted);
    d->isOpening = false;
    ++d->era;
    changed();
    Q_EMIT storageChanged();
}

} // namespace vellumry
