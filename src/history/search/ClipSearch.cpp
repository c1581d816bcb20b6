// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/ClipSearch.h"

#include "foundation/SecureBytes.h"
#include "foundation/Text.h"
#include "foundation/UnusedMemory.h"
#include "history/clips/SharedClips.h"
#include "history/search/BitSet.h"
#include "history/search/ClipSearchOrder.h"
#include "history/search/FoldedClip.h"

#include <QHash>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

using Slot = FoldedIndex::Slot;

/// Looking at one text by itself costs about as much as scanning this many bytes more.
constexpr std::size_t costOfOneText = 128;
/// So many texts folded at once are a first search.
constexpr std::size_t manyTexts = 1000;

/// Those of `clips` that are marked.
std::vector<ClipRef> gathered(const std::vector<ClipRef>& clips, const BitSet& isMarked) {
    const std::vector<std::size_t> marked = isMarked.positions();
    std::vector<ClipRef> result;
    result.reserve(marked.size());
    for (std::size_t index = 0; index < marked.size(); ++index) {
        if (index + clipsAhead < marked.size())
            prefetchCount(clips[marked[index + clipsAhead]]);
        result.push_back(clips[marked[index]]);
    }
    return result;
}

} // namespace

struct ClipSearch::Private {
    /// The texts that a former query was found in.
    struct Found {
        QByteArray needle;
        ClipFilter filter = ClipFilter::all;
        std::vector<Slot> slots;
    };

    FoldedIndex index;
    QHash<QUuid, Slot> slotOf;
    LookAlikeAlphabet alphabet;
    QHash<QUuid, std::shared_ptr<const LookAlikeText>> lookAlikes;
    ClipSearchOrder order;
    bool orderHasKeys = false;  ///< some of its pictures share their keys with `lookAlikes`
    std::optional<Found> found; ///< by the last search, while no clip has changed
    std::size_t prepared = 0;   ///< so many of the first clips of `preparedRevision` are folded
    std::size_t foldedAhead = 0;
    std::optional<std::size_t> withoutText; ///< so many clips had none in the index when all were prepared
    bool isOrderBegun = false;              ///< the order has the first `prepared` clips and no more
    std::optional<qint64> preparedRevision;

    Slot slotOfClip(const Clip& clip);
    void follow(const std::vector<ClipRef>& clips, std::optional<qint64> revision);
    bool giveBackWaste();
    [[nodiscard]] bool hasAllTexts(const std::vector<ClipRef>& clips) const;
    [[nodiscard]] std::optional<std::vector<Slot>> candidates(const QByteArray& needle, ClipFilter filter) const;
    [[nodiscard]] bool isWorthwhile(const std::vector<Slot>& slots) const;
    void findExact(const ByteSearch& search, ClipFilter filter);
    [[nodiscard]] BitSet exactMatches(const std::vector<ClipRef>& clips, const ByteSearch& search,
                                      ClipFilter filter) const;
    void findTolerant(const std::vector<ClipRef>& clips, const LookAlikeKeys& query, ClipFilter filter,
                      BitSet& isMatch);
    std::shared_ptr<const LookAlikeText> keysOf(const Clip& clip);
};

ClipSearch::ClipSearch()
    : d(std::make_unique<Private>()) {}
ClipSearch::~ClipSearch() = default;

std::vector<ClipRef> ClipSearch::search(const std::vector<ClipRef>& clips, const QString& query, ClipFilter filter,
                                        std::optional<qint64> revision) {
    const QString trimmed = text::trimmed(query);
    const QByteArray needle = text::foldedBytes(trimmed);
    if (needle.isEmpty()) {
        std::vector<ClipRef> result;
        std::copy_if(clips.begin(), clips.end(), std::back_inserter(result),
                     [&](const ClipRef& clip) { return passes(*clip, filter); });
        return result;
    }

    d->follow(clips, revision);
    const ByteSearch exact(needle);
    d->findExact(exact, filter);
    BitSet isMatch = d->exactMatches(clips, exact, filter);

    d->findTolerant(clips, lookAlikeKeysOf(trimmed), filter, isMatch);
    return gathered(clips, isMatch);
}

bool ClipSearch::prepare(const std::vector<ClipRef>& clips, qint64 revision, std::chrono::microseconds budget) {
    // Asking for the time costs as much as looking a clip up.
    constexpr std::size_t clipsAtOnce = 16;
    const auto end = std::chrono::steady_clock::now() + budget;
    const auto slotOfClip = [this](const Clip& clip) { return d->slotOfClip(clip); };
    if (std::exchange(d->preparedRevision, revision) != revision) {
        d->prepared = 0;
        const bool hasGivenBack = d->giveBackWaste();
        if (d->isOrderBegun || hasGivenBack)
            d->order = ClipSearchOrder();
        d->isOrderBegun = d->order.size() == 0;
    }
    const std::size_t slotsBefore = d->index.slotCount();
    if (d->hasAllTexts(clips))
        d->prepared = clips.size();
    while (d->prepared < clips.size() && std::chrono::steady_clock::now() < end) {
        const std::size_t next = std::min(d->prepared + clipsAtOnce, clips.size());
        // Later changes of the order are cheap enough for a keystroke, and most of them no search will ever see.
        if (d->isOrderBegun)
            d->order.begin(clips, next - d->prepared, slotOfClip);
        for (; d->prepared < next; ++d->prepared) {
            if (const Clip& clip = *clips[d->prepared]; !clip.isSensitive())
                (void)d->slotOfClip(clip);
        }
        if (d->hasAllTexts(clips))
            d->prepared = clips.size();
    }
    d->foldedAhead += d->index.slotCount() - slotsBefore;
    if (d->prepared < clips.size())
        return false;
    d->withoutText = clips.size() - d->slotOf.size();
    if (std::exchange(d->isOrderBegun, false))
        d->order.finish(revision);
    if (std::exchange(d->foldedAhead, 0) > manyTexts)
        giveBackUnusedMemory();
    return true;
}

std::size_t ClipSearch::capacity() const {
    return d->index.capacity();
}

void ClipSearch::forgetQuery() {
    d->found.reset();
}

void ClipSearch::forgetText(const QUuid& id) {
    const auto known = d->slotOf.constFind(id);
    if (known == d->slotOf.constEnd())
        return;
    d->index.remove(*known);
    d->slotOf.erase(known);
    d->order.invalidate();
}

void ClipSearch::forgetLookAlikes(const QUuid& id) {
    if (d->lookAlikes.remove(id) == 0)
        return;
    if (std::exchange(d->orderHasKeys, false))
        d->order.forgetPictures();
}

Slot ClipSearch::Private::slotOfClip(const Clip& clip) {
    const auto known = slotOf.constFind(clip.id);
    if (known != slotOf.constEnd())
        return *known;
    return *slotOf.insert(clip.id, appendFolded(clip, index));
}

void ClipSearch::Private::follow(const std::vector<ClipRef>& clips, std::optional<qint64> revision) {
    const std::size_t slotsBefore = index.slotCount();
    isOrderBegun = false;
    preparedRevision.reset();
    const bool hasChanged = order.follow(
        clips, index, [this](const Clip& clip) { return slotOfClip(clip); }, revision);
    if (!hasChanged)
        return;
    // The preparation has nothing left to do: without this it would go through all clips behind each keystroke.
    withoutText = clips.size() - slotOf.size();
    found.reset();
    index.recycle();
    // Folding the whole history leaves as much behind as it makes.
    if (index.slotCount() - slotsBefore > manyTexts)
        giveBackUnusedMemory();
}

/// Once all were prepared, the count tells whether new ones are there: they come first, and the rest need not be looked
/// at. Where a secret has gone and an old text has changed at the same time it is wrong by one, and a search folds
/// that.
bool ClipSearch::Private::hasAllTexts(const std::vector<ClipRef>& clips) const {
    return withoutText && !isOrderBegun && clips.size() <= slotOf.size() + *withoutText;
}

/// Searches take care of what removed texts leave behind. Where nothing is searched for, texts that are folded ahead
/// would pile up. True when the order no longer fits: slots may now belong to other texts.
bool ClipSearch::Private::giveBackWaste() {
    constexpr std::size_t negligible = std::size_t{1} << 19;
    if (index.removedBytes() <= index.byteCount() / 2 + negligible)
        return false;
    found.reset();
    index.recycle();
    return true;
}

/// The only texts that the needle can be in, where that is known without looking into them.
std::optional<std::vector<Slot>> ClipSearch::Private::candidates(const QByteArray& needle, ClipFilter filter) const {
    // A longer query can only match fewer texts.
    if (found && needle.contains(found->needle) && (found->filter == filter || found->filter == ClipFilter::all))
        return found->slots;
    if (filter == ClipFilter::all)
        return std::nullopt;
    std::vector<Slot> slots;
    for (std::size_t position = 0; position < order.size(); ++position)
        if (order.passes(position, filter) && order.slotAt(position) != ClipSearchOrder::noSlot)
            slots.push_back(order.slotAt(position));
    return slots;
}

bool ClipSearch::Private::isWorthwhile(const std::vector<Slot>& slots) const {
    std::size_t cost = 0;
    for (const Slot slot : slots)
        if ((cost += index.lengthOf(slot) + costOfOneText) > index.byteCount())
            return false;
    return true;
}

/// Leaves the texts that have the needle in `found`.
void ClipSearch::Private::findExact(const ByteSearch& search, ClipFilter filter) {
    const auto few = candidates(search.needle(), filter);
    std::vector<Slot> slots;
    const bool looksAtFew = few && isWorthwhile(*few);
    if (looksAtFew)
        std::copy_if(few->begin(), few->end(), std::back_inserter(slots),
                     [&](Slot slot) { return index.matches(search, slot); });
    else
        index.scan(search, [&](Slot slot) { slots.push_back(slot); });
    found = Found{search.needle(), looksAtFew ? filter : ClipFilter::all, std::move(slots)};
}

BitSet ClipSearch::Private::exactMatches(const std::vector<ClipRef>& clips, const ByteSearch& search,
                                         ClipFilter filter) const {
    BitSet isMatch(clips.size());
    for (const Slot slot : found->slots) {
        const auto position = order.positionOf(slot);
        if (position && order.passes(*position, filter))
            isMatch.set(*position);
    }
    for (const std::uint32_t position : order.withoutText()) {
        const QString application = clips[position]->sourceAppName.value_or(QString());
        if (order.passes(position, filter) && text::foldedBytes(application).contains(search.needle()))
            isMatch.set(position);
    }
    return isMatch;
}

/// Adds to the matches the pictures that fit with the slack that their readers need.
void ClipSearch::Private::findTolerant(const std::vector<ClipRef>& clips, const LookAlikeKeys& query, ClipFilter filter,
                                       BitSet& isMatch) {
    std::vector<const ClipSearchOrder::Picture*> pictures;
    pictures.reserve(order.pictures().size());
    for (ClipSearchOrder::Picture& picture : order.pictures()) {
        if (isMatch.contains(picture.position) || !order.passes(picture.position, filter))
            continue;
        if (picture.keys == nullptr) {
            picture.keys = keysOf(*clips[picture.position]);
            orderHasKeys = true;
        }
        pictures.push_back(&picture);
    }
    // Only now does the alphabet know every character that these texts have.
    const LookAlikeMatcher matcher(query, alphabet);
    // Each text lies somewhere else, and the time goes into waiting for its first bytes unless they are asked for
    // early.
    constexpr std::size_t textsAhead = 4;
    for (std::size_t next = 0; next < pictures.size(); ++next) {
        if (next + 2 * textsAhead < pictures.size())
            __builtin_prefetch(pictures[next + 2 * textsAhead]->keys.get());
        if (next + textsAhead < pictures.size())
            pictures[next + textsAhead]->keys->prefetch();
        if (matcher.find(*pictures[next]->keys))
            isMatch.set(pictures[next]->position);
    }
}

std::shared_ptr<const LookAlikeText> ClipSearch::Private::keysOf(const Clip& clip) {
    std::shared_ptr<const LookAlikeText>& kept = lookAlikes[clip.id];
    if (kept == nullptr) {
        LookAlikeKeys keys = lookAlikeKeysOf(clip.imageText->toString());
        kept = std::make_shared<const LookAlikeText>(keys, alphabet);
        wipe(keys.data(), keys.size() * sizeof keys[0]);
    }
    return kept;
}

} // namespace vellumry
