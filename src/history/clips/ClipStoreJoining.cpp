// SPDX-License-Identifier: GPL-3.0-or-later

// How the history's file comes to a store that captures already.

#include "foundation/BulkWork.h"
#include "history/clips/ClipStorePrivate.h"
#include "history/file/ClipRows.h"

#include <QPointer>
#include <algorithm>

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

/// More than a panel shows at once.
constexpr qint64 clipsAtFirst = 100;
/// Between two looks whether the folding is still wanted.
constexpr std::chrono::milliseconds foldingAtOnce{5};

/// Makes `copy` the same as `clips`, of which all but the first few are the same already: copying each would take the
/// main thread a millisecond or two.
void makeEqual(std::vector<ClipRef>& copy, const std::vector<ClipRef>& clips) {
    const auto [ours, theirs] = std::mismatch(copy.rbegin(), copy.rend(), clips.rbegin(), clips.rend());
    copy.erase(copy.begin(), ours.base());
    copy.insert(copy.begin(), clips.begin(), theirs.base());
}

QCoro::Task<bool> alwaysSound() {
    co_return true;
}

} // namespace

QCoro::Task<bool> ClipStore::attach(std::shared_ptr<ClipDatabase> database, bool recoveredFromDamage,
                                    FileVerdict isSound) {
    const QPointer<ClipStore> self(this);
    auto verdict = isSound ? isSound() : alwaysSound();
    std::exception_ptr trouble;
    bool isGood = false;
    try {
        auto loading = load(database);
        co_await loading;
    } catch (...) {
        trouble = std::current_exception();
    }
    // A file that cannot be loaded may be a damaged one: the verdict says.
    try {
        isGood = co_await verdict;
    } catch (const std::exception&) {
        isGood = false;
    }
    if (!self)
        co_return false;
    if (trouble || !isGood) {
        database.reset();
        detach();
        if (isGood)
            std::rethrow_exception(trouble);
        co_return false;
    }
    d->recoveredFromDamage = recoveredFromDamage;
    d->writer.release();
    auto writing = d->writer.retry();
    co_await writing;
    if (!self)
        co_return true;
    auto retaining = enforceRetention(d->clock());
    co_await retaining;
    co_return true;
}

QCoro::Task<void> ClipStore::load(std::shared_ptr<ClipDatabase> database) {
    const QPointer<ClipStore> self(this);
    auto beginning = database->loadNewest(clipsAtFirst);
    NewestClips newest = co_await beginning;
    if (!self)
        co_return;
    auto expiring = enforceRetention(d->clock());
    co_await expiring;
    auto hashing = fingerprintsUnder(std::make_shared<const ClipCrypto>(database->crypto()));
    const QHash<QUuid, Fingerprint> fingerprints = co_await hashing;
    if (!self)
        co_return;
    join(database, std::move(newest), fingerprints);
    if (!d->isLoading)
        co_return;
    auto loading = database->loadBeside();
    const std::shared_ptr<ClipList> whole = co_await loading;
    if (!self)
        co_return;
    std::vector<ClipRef> loaded = whole->takeCopy();
    complete(std::move(*whole));
    makeEqual(loaded, clips());
    d->foldLoaded(std::move(loaded), self);
}

QCoro::Task<void> ClipStore::Private::foldLoaded(std::vector<ClipRef> clips, QPointer<ClipStore> store) {
    loadedSearch = std::make_unique<LoadedSearch>();
    const LoadedSearch* const own = loadedSearch.get();
    auto fold = [loaded = std::move(clips), at = revision, isUnwanted = own->isUnwanted] {
        const BulkWork work;
        auto made = std::make_shared<ClipSearch>();
        while (!*isUnwanted && !made->prepare(loaded, at, foldingAtOnce))
            continue;
        return made;
    };
    auto making = loadedSearch->thread.run(std::move(fold));
    std::shared_ptr<ClipSearch> made = co_await making;
    if (!store || loadedSearch.get() != own)
        co_return;
    for (const QUuid& id : loadedSearch->forgotten) {
        made->forgetText(id);
        made->forgetLookAlikes(id);
    }
    search = std::move(made);
    loadedSearch.reset();
}

/// The fingerprints that all clips of now have under another key.
QCoro::Task<QHash<QUuid, Fingerprint>> ClipStore::fingerprintsUnder(std::shared_ptr<const ClipCrypto> crypto) {
    const QPointer<ClipStore> self(this);
    QHash<QUuid, Fingerprint> fingerprints;
    // Each hash may take a while, in which more is captured.
    while (self) {
        const auto next =
            std::ranges::find_if(clips(), [&](const ClipRef& clip) { return !fingerprints.contains(clip->id); });
        if (next == clips().end())
            break;
        const ClipRef clip = *next;
        const auto payload = d->writer.unsavedPayload(clip->id);
        auto hashing = d->hasher.fingerprint(draftOf(*clip, payload ? *payload : ClipPayload()), crypto);
        fingerprints[clip->id] = co_await hashing;
    }
    co_return fingerprints;
}

void ClipStore::join(std::shared_ptr<ClipDatabase> database, NewestClips newest,
                     const QHash<QUuid, Fingerprint>& fingerprints) {
    const QSet<QUuid> toGo = d->writer.rowsToGo();
    std::erase_if(newest.clips, [&](const ClipRef& row) { return toGo.contains(row->id); });
    JoinedClips joined = joinClips(std::move(newest.clips), clips(), fingerprints, d->cleared);
    for (auto id = joined.replaced.keyBegin(); id != joined.replaced.keyEnd(); ++id)
        forget(*id);
    d->crypto = std::make_shared<const ClipCrypto>(database->crypto());
    d->list.assign(std::move(joined.clips));
    d->writer.hold();
    d->writer.setDatabase(std::move(database));
    d->writer.replaceRows(joined.replaced, joined.unwanted);
    d->isOpening = false;
    d->isLoading = !newest.areAll;
    if (newest.areAll)
        d->cleared.reset();
    ++d->era;
    changed();
    Q_EMIT storageChanged();
}

/// `whole` is the file as it was when nothing had been written to it; what changed meanwhile is put on top.
void ClipStore::complete(ClipList whole) {
    whole.remove(d->writer.rowsToGo());
    QHash<QUuid, QUuid> replaced;
    for (const ClipRef& clip : clips()) {
        if (const ClipRef known = whole.find(clip->id)) {
            whole.replace(known, clip);
            continue;
        }
        const ClipRef row = whole.findFingerprint(clip->fingerprint);
        if (!row || find(row->id)) {
            whole.insert(clip);
            continue;
        }
        auto heir = std::make_shared<Clip>(*clip);
        inherit(*heir, *row);
        whole.replace(row, heir);
        replaced.insert(clip->id, row->id);
        forget(clip->id);
    }
    std::vector<QUuid> unwanted;
    if (const auto cleared = std::exchange(d->cleared, std::nullopt)) {
        for (const ClipRef& row : whole.clips()) {
            const bool isCleared = !row->isPinned || *cleared == ClearedBefore::everything;
            if (isCleared && !find(row->id))
                unwanted.push_back(row->id);
        }
        whole.remove(QSet<QUuid>(unwanted.begin(), unwanted.end()));
    }
    d->list = std::move(whole);
    d->writer.replaceRows(replaced, unwanted);
    d->isLoading = false;
    changed();
    Q_EMIT storageChanged();
}

/// Leaves what was captured, which waits for another file.
void ClipStore::detach() {
    if (!d->writer.hasDatabase())
        return;
    d->writer.abandon();
    QSet<QUuid> ofFile;
    for (const ClipRef& clip : clips()) {
        if (!d->writer.unsavedPayload(clip->id))
            ofFile.insert(clip->id);
    }
    d->list.remove(ofFile);
    for (const QUuid& id : ofFile)
        forget(id);
    d->isLoading = false;
    d->isOpening = true;
    ++d->era;
    changed();
    Q_EMIT storageChanged();
}

} // namespace vellumry
