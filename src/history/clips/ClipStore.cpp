// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipStore.h"

#include "foundation/Text.h"
#include "history/clips/ClipOfDraft.h"
#include "history/clips/ClipStorePrivate.h"

#include <QPointer>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// The first search finds everything folded already; what comes at once, as a start or a burst of copies does, goes
/// first.
constexpr auto restBeforeFolding = 1000ms;
constexpr auto foldingTime = 3ms;
constexpr auto foldingPause = 20ms;
/// Folding so many clips' texts takes as long as painting a frame.
constexpr std::size_t quicklyFolded = 10'000;

} // namespace

QCoro::Task<std::unique_ptr<ClipStore>> ClipStore::open(std::shared_ptr<ClipDatabase> database, RetentionPolicy policy,
                                                        bool recoveredFromDamage) {
    auto loading = database->loadAll();
    std::vector<ClipRef> clips = co_await loading;
    co_return std::unique_ptr<ClipStore>(
        new ClipStore(std::move(database), policy, recoveredFromDamage, std::move(clips)));
}

ClipStore::ClipStore(std::shared_ptr<ClipDatabase> database, RetentionPolicy policy, bool recoveredFromDamage,
                     std::vector<ClipRef> clips)
    : d(std::make_unique<Private>(database->crypto(), policy, this)) {
    d->recoveredFromDamage = recoveredFromDamage;
    d->list.assign(std::move(clips));
    d->folding.start(restBeforeFolding);
    d->writer.setDatabase(std::move(database));
    d->writer.onBehindChanged = [this] { Q_EMIT storageChanged(); };
}

ClipStore::ClipStore(RetentionPolicy policy)
    : d(std::make_unique<Private>(ClipCrypto::withRandomKey(), policy, this)) {
    d->writer.onBehindChanged = [this] { Q_EMIT storageChanged(); };
}

ClipStore::~ClipStore() = default;

QCoro::Task<ClipRef> ClipStore::add(ClipDraft draft, Date now, std::shared_ptr<CopyIdentity> copy) {
    const QPointer<ClipStore> self(this);
    auto hashing = hashOf(draft);
    const std::optional<Fingerprint> fingerprint = co_await hashing;
    if (!self || !fingerprint)
        co_return ClipRef();
    const ClipRef existing = replacedBy(*fingerprint, copy.get());
    const ClipRef clip =
        std::make_shared<const Clip>(clipOfDraft(draft, existing, *fingerprint, now, d->sensitiveLifetime));
    if (existing)
        d->list.replace(existing, clip);
    else
        d->list.insert(clip);
    if (copy && !existing)
        copy->clip = clip->id;
    // The keys of its image text stay: that text was kept, or there is none.
    d->forgetText(clip->id);
    changed();
    auto writing = d->writer.insert(clip->id, std::move(draft.payload));
    co_await writing;
    if (!self)
        co_return ClipRef();
    auto retaining = enforceRetention(now);
    co_await retaining;
    co_return self ? d->list.find(clip->id) : ClipRef();
}

/// The clip whose place a draft of this content takes; null when there is none.
ClipRef ClipStore::replacedBy(const Fingerprint& fingerprint, const CopyIdentity* copy) {
    const ClipRef same = d->list.findFingerprint(fingerprint);
    const ClipRef written = copy ? d->list.find(copy->clip) : nullptr;
    if (!written || written == same)
        return same;
    if (!same)
        return written;
    // What the program wrote at last was in the history before, and stands for what it wrote first.
    remove({written->id}, false);
    return same;
}

QCoro::Task<std::optional<ClipPayload>> ClipStore::payload(QUuid id) {
    auto reading = d->writer.payload(id);
    co_return co_await reading;
}

QCoro::Task<void> ClipStore::markUsed(QUuid id, Date date) {
    const ClipRef old = d->list.find(id);
    if (!old)
        co_return;
    auto clip = std::make_shared<Clip>(*old);
    clip->lastUsedAt = date;
    d->list.replace(old, clip);
    changed();
    auto writing = d->writer.updateUsed(clip);
    co_await writing;
}

QCoro::Task<void> ClipStore::setPinned(QUuid id, bool isPinned, Date date) {
    const ClipRef old = d->list.find(id);
    if (!old || old->isPinned == isPinned)
        co_return;
    auto clip = std::make_shared<Clip>(*old);
    clip->isPinned = isPinned;
    clip->pinOrder = isPinned ? d->list.nextPinOrder(date) : 0;
    // Pinning rescues a sensitive clip; unpinning does not bring its end back.
    const bool isRescued = isPinned && clip->expiresAt.has_value();
    if (isRescued)
        clip->expiresAt.reset();
    d->list.change(clip);
    changed();
    auto writing = d->writer.updatePinned(clip, isRescued);
    co_await writing;
}

QCoro::Task<void> ClipStore::setImageText(QUuid id, std::optional<QString> text, bool isAccurate) {
    const ClipRef old = d->list.find(id);
    if (!old)
        co_return;
    auto changedClip = std::make_shared<Clip>(*old);
    changedClip->imageText = text ? std::optional(StoredText(*text)) : std::nullopt;
    changedClip->imageTextIsAccurate = isAccurate;
    const ClipRef clip = std::move(changedClip);
    d->list.change(clip);
    d->forgetText(id);
    d->search->forgetLookAlikes(id);
    changed();
    auto writing = d->writer.updateMeta(clip);
    co_await writing;
}

void ClipStore::changed() {
    ++d->revision;
    if (d->autoExpire)
        d->expiry.arm(nextExpiry());
    if (!d->isSearchAsleep && !d->folding.isActive())
        d->folding.start(restBeforeFolding);
    Q_EMIT clipsChanged();
}

/// A little at a time, so that no key and no copy waits for it.
void ClipStore::prepareSearch() {
    if (d->loadedSearch)
        return;
    if (d->search->prepare(clips(), d->revision, foldingTime))
        d->folding.stop();
    else
        d->folding.start(foldingPause);
}

const std::vector<ClipRef>& ClipStore::clips() const {
    return d->list.clips();
}

ClipRef ClipStore::find(const QUuid& id) const {
    return d->list.find(id);
}

qint64 ClipStore::revision() const {
    return d->revision;
}

qint64 ClipStore::deletions() const {
    return d->deletions;
}

bool ClipStore::isMemoryOnly() const {
    return !d->writer.hasDatabase() && !d->isOpening;
}

bool ClipStore::isLoading() const {
    return d->isLoading;
}

bool ClipStore::isBehind() const {
    return d->writer.isBehind();
}

void ClipStore::setOpening(bool isOpening) {
    if (d->isOpening == isOpening)
        return;
    d->isOpening = isOpening;
    if (!d->writer.hasDatabase())
        Q_EMIT storageChanged();
}

bool ClipStore::recoveredFromDamage() const {
    return d->recoveredFromDamage;
}

void ClipStore::setRecoveredFromDamage(bool value) {
    d->recoveredFromDamage = value;
}

const RetentionPolicy& ClipStore::policy() const {
    return d->policy;
}

void ClipStore::setPolicy(RetentionPolicy policy) {
    d->policy = policy;
}

double ClipStore::sensitiveLifetime() const {
    return d->sensitiveLifetime;
}

void ClipStore::setSensitiveLifetime(double seconds) {
    d->sensitiveLifetime = seconds;
}

bool ClipStore::autoExpire() const {
    return d->autoExpire;
}

void ClipStore::setAutoExpire(bool value) {
    d->autoExpire = value;
    d->expiry.arm(value ? nextExpiry() : std::nullopt);
}

std::optional<Date> ClipStore::nextExpiry() const {
    return d->list.nextExpiry();
}

bool ClipStore::isExpiryScheduled() const {
    return d->expiry.isArmed();
}

void ClipStore::setClock(Clock clock) {
    d->clock = clock;
    d->expiry.setClock(std::move(clock));
}

void ClipStore::setExpiryTimer(std::unique_ptr<DateTimer> timer) {
    d->expiry.setTimer(std::move(timer));
}

std::vector<ClipRef> ClipStore::recentClips(qint64 limit, bool includePinned) const {
    return d->list.recent(limit, includePinned);
}

std::vector<ClipRef> ClipStore::pinnedClips() const {
    return d->list.pinned();
}

std::vector<QUuid> ClipStore::clipsWithoutText() const {
    return d->list.pictures([](const Clip& clip) { return !clip.imageText; });
}

std::vector<QUuid> ClipStore::clipsWithRoughText() const {
    return d->list.pictures([](const Clip& clip) { return clip.imageText && !clip.imageTextIsAccurate; });
}

std::vector<ClipRef> ClipStore::search(const QString& query, ClipFilter filter) const {
    // A blank query needs nothing that is folded.
    if (!text::trimmed(query).isEmpty())
        d->isSearchAsleep = false;
    return d->search->search(clips(), query, filter, d->revision);
}

void ClipStore::forgetSearch() {
    d->search->forgetQuery();
    if (d->loadedSearch || clips().size() > quicklyFolded)
        return;
    d->isSearchAsleep = true;
    d->folding.stop();
    d->search = std::make_shared<ClipSearch>();
}

void ClipStore::wakeSearch() {
    if (std::exchange(d->isSearchAsleep, false))
        d->folding.start(foldingPause);
}

std::size_t ClipStore::searchCapacity() const {
    return d->search->capacity();
}

} // namespace vellumry
