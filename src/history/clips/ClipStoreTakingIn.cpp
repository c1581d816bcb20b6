// SPDX-License-Identifier: GPL-3.0-or-later

// How clips from elsewhere come into the history.

#include "foundation/CryptoError.h"
#include "history/clips/ClipOfDraft.h"
#include "history/clips/ClipStorePrivate.h"
#include "history/clips/Retention.h"

#include <QPointer>

namespace vellumry {

QCoro::Task<std::optional<Fingerprint>> ClipStore::hashOf(ClipDraft draft) {
    const QPointer<ClipStore> self(this);
    Fingerprint fingerprint;
    std::shared_ptr<const ClipCrypto> crypto;
    do {
        crypto = d->crypto;
        try {
            auto hashing = d->hasher.fingerprint(draft, crypto);
            fingerprint = co_await hashing;
        } catch (const CryptoError&) {
            co_return std::nullopt;
        }
        if (!self)
            co_return std::nullopt;
        // When the history joined meanwhile, the fingerprint is of another key.
    } while (crypto != d->crypto);
    co_return fingerprint;
}

QCoro::Task<TakenIn> ClipStore::takeIn(ClipDraft draft, Provenance provenance) {
    const QPointer<ClipStore> self(this);
    auto hashing = hashOf(draft);
    const std::optional<Fingerprint> fingerprint = co_await hashing;
    TakenIn taken;
    if (!self || !fingerprint)
        co_return taken;
    taken.outcome = TakenIn::Outcome::isThere;
    if (d->list.findFingerprint(*fingerprint))
        co_return taken;

    Clip clip = clipOfDraft(draft, nullptr, *fingerprint, provenance.lastUsedAt, d->sensitiveLifetime);
    clip.createdAt = provenance.createdAt;
    clip.isPinned = provenance.isPinned;
    if (clip.isPinned) {
        clip.expiresAt.reset();
        clip.pinOrder = provenance.pinOrder > 0 ? provenance.pinOrder : d->list.nextPinOrder(provenance.lastUsedAt);
    }
    const auto added = std::make_shared<const Clip>(std::move(clip));
    d->list.insert(added);
    const Date now = d->clock();
    // It does not go into the file only to go out of it.
    taken.outcome = TakenIn::Outcome::beyondLimits;
    if (!d->list.isWithin(d->policy, now) && retention::doomedClips(clips(), d->policy, now).contains(added->id)) {
        d->list.remove({added->id});
        co_return taken;
    }
    changed();
    taken = {TakenIn::Outcome::added, added->id};
    auto writing = d->writer.insert(added->id, std::move(draft.payload));
    co_await writing;
    if (!self)
        co_return taken;
    auto retaining = enforceRetention(now);
    co_await retaining;
    co_return taken;
}

} // namespace vellumry
