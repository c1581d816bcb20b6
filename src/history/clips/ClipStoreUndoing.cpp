// SPDX-License-Identifier: GPL-3.0-or-later

// How clips that the user deleted come back, or go for good.

#include "history/clips/ClipStorePrivate.h"

#include <QPointer>
#include <utility>

namespace vellumry {

QCoro::Task<RemovedClips> ClipStore::takeOut(QSet<QUuid> ids) {
    RemovedClips removed;
    removed.era = d->era;
    std::vector<ClipRef> clips;
    std::vector<QCoro::Task<std::optional<ClipPayload>>> reading;
    // Asked for before the rows go: the file is worked on in the order of the calls.
    for (const QUuid& id : ids) {
        if (ClipRef clip = find(id)) {
            reading.push_back(d->writer.payload(id));
            clips.push_back(std::move(clip));
        }
    }
    auto removing = remove(std::move(ids), false);
    for (std::size_t index = 0; index < reading.size(); ++index) {
        auto payload = co_await reading[index];
        if (payload)
            removed.entries->push_back({clips[index], std::move(*payload)});
    }
    co_await removing;
    co_return removed;
}

QCoro::Task<void> ClipStore::putBack(RemovedClips removed) {
    // What was cleared since, or is sealed by another key now, stays away.
    if (removed.era != d->era)
        co_return;
    std::vector<QCoro::Task<void>> writing;
    for (RemovedClips::Entry& entry : *removed.entries) {
        if (find(entry.clip->id))
            continue;
        if (const ClipRef again = d->list.findFingerprint(entry.clip->fingerprint)) {
            // Copied once more meanwhile: the pin is all that it lacks.
            if (entry.clip->isPinned && !again->isPinned) {
                auto clip = std::make_shared<Clip>(*again);
                clip->isPinned = true;
                clip->pinOrder = entry.clip->pinOrder;
                const bool isRescued = std::exchange(clip->expiresAt, std::nullopt).has_value();
                d->list.change(clip);
                writing.push_back(d->writer.updatePinned(clip, isRescued));
            }
            continue;
        }
        d->list.insert(entry.clip);
        writing.push_back(d->writer.insert(entry.clip->id, std::move(entry.payload)));
    }
    if (!writing.empty())
        changed();
    for (auto& each : writing)
        co_await each;
}

QCoro::Task<void> ClipStore::letGo(RemovedClips removed) {
    auto releasing = d->writer.letGo(std::exchange(removed.entries, nullptr));
    co_await releasing;
}

} // namespace vellumry
