// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipList.h"

#include "history/clips/Retention.h"
#include "history/clips/SharedClips.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace vellumry {

namespace {

/// Has the parts of a clip fetched that a list looks at when it takes the clip in.
void prefetchWhatIsEntered(const Clip& clip) {
    __builtin_prefetch(&clip.id);
    __builtin_prefetch(&clip.lastUsedAt);
    __builtin_prefetch(&clip.byteSize);
}

} // namespace

ClipRef ClipList::find(const QUuid& id) const {
    Clip sample;
    sample.id = id;
    const Clip* const clip = findIn(m_byId, sample);
    return clip ? m_clips[static_cast<std::size_t>(indexOf(*clip))] : nullptr;
}

ClipRef ClipList::findFingerprint(const Fingerprint& fingerprint) const {
    if (m_byFingerprint.size() == std::ssize(m_clips)) {
        Clip sample;
        sample.fingerprint = fingerprint;
        const Clip* const clip = findIn(m_byFingerprint, sample);
        return clip ? m_clips[static_cast<std::size_t>(indexOf(*clip))] : nullptr;
    }
    const auto found =
        std::ranges::find_if(m_clips, [&](const ClipRef& clip) { return clip->fingerprint == fingerprint; });
    return found == m_clips.end() ? nullptr : *found;
}

std::optional<Date> ClipList::nextExpiry() const {
    return m_expiries.empty() ? std::nullopt : std::optional(m_expiries.begin()->first);
}

qint64 ClipList::nextPinOrder(Date date) const {
    qint64 greatest = 0;
    for (const ClipRef& clip : m_clips)
        greatest = std::max(greatest, clip->pinOrder);
    // Neither a file's nonsense nor a clock's may leave the type.
    greatest = std::min(greatest, std::numeric_limits<qint64>::max() - 1);
    return std::max(greatest + 1, static_cast<qint64>(std::clamp(date * 1000, -9e18, 9e18)));
}

bool ClipList::isWithin(const RetentionPolicy& policy, Date now) const {
    if (m_unpinnedCount > policy.maxCount || m_mediaBytes > policy.maxMediaBytes)
        return false;
    if (!policy.maxAge)
        return true;
    // The order by last use makes the last unpinned clip the oldest.
    const auto oldest =
        std::ranges::find_if(m_clips.rbegin(), m_clips.rend(), [](const ClipRef& clip) { return !clip->isPinned; });
    return oldest == m_clips.rend() || !(now - (*oldest)->lastUsedAt > *policy.maxAge);
}

QSet<QUuid> ClipList::expired(Date now) const {
    QSet<QUuid> ids;
    for (auto next = m_expiries.begin(); next != m_expiries.end() && next->first <= now; ++next)
        ids.insert(next->second);
    return ids;
}

std::vector<ClipRef> ClipList::recent(qint64 limit, bool includePinned) const {
    std::vector<ClipRef> recent;
    for (const ClipRef& clip : m_clips) {
        if (std::ssize(recent) >= limit)
            break;
        if (includePinned || !clip->isPinned)
            recent.push_back(clip);
    }
    return recent;
}

std::vector<ClipRef> ClipList::pinned() const {
    const std::ptrdiff_t count = std::ssize(m_clips) - m_unpinnedCount;
    std::vector<ClipRef> pinned;
    for (auto clip = m_clips.begin(); std::ssize(pinned) < count && clip != m_clips.end(); ++clip) {
        if ((*clip)->isPinned)
            pinned.push_back(*clip);
    }
    std::ranges::stable_sort(pinned, {},
                             [](const ClipRef& clip) { return std::pair(clip->pinOrder, clip->createdAt); });
    return pinned;
}

std::vector<QUuid> ClipList::pictures(bool (*isWanted)(const Clip&)) const {
    std::vector<QUuid> ids;
    for (const ClipRef& clip : m_clips) {
        if (isWanted(*clip) && (clip->kind == ClipKind::image || clip->isImageFile()))
            ids.push_back(clip->id);
    }
    return ids;
}

void ClipList::assign(std::vector<ClipRef> clips) {
    m_byId.clear();
    m_byFingerprint.clear();
    m_expiries.clear();
    m_unpinnedCount = 0;
    m_mediaBytes = 0;
    const auto usedAt = [](const ClipRef& clip) { return clip->lastUsedAt; };
    if (!std::ranges::is_sorted(clips, std::greater<>(), usedAt))
        std::ranges::stable_sort(clips, std::greater<>(), usedAt);

    m_byId.reserve(std::ssize(clips));
    m_byFingerprint.reserve(std::ssize(clips));
    m_clips.clear();
    m_clips.reserve(clips.size());
    for (std::size_t index = 0; index < clips.size(); ++index) {
        if (index + clipsAhead < clips.size())
            prefetchWhatIsEntered(*clips[index + clipsAhead]);
        ClipRef& clip = clips[index];
        const auto known = m_byId.size();
        m_byId.insert({clip.get()});
        if (m_byId.size() == known)
            continue;
        enterBesideId(*clip);
        m_clips.push_back(std::move(clip));
    }
}

void ClipList::insert(ClipRef clip) {
    enter(*clip);
    const auto index = position(clip->lastUsedAt, 0, std::ssize(m_clips));
    m_clips.insert(m_clips.begin() + index, std::move(clip));
}

void ClipList::replace(const ClipRef& old, ClipRef clip) {
    const auto from = indexOf(*old);
    leave(*old);
    enter(*clip);
    const Date date = clip->lastUsedAt;
    const auto begin = m_clips.begin();
    m_clips[static_cast<std::size_t>(from)] = std::move(clip);
    const auto earlier = position(date, 0, from);
    if (earlier < from)
        std::rotate(begin + earlier, begin + from, begin + from + 1);
    else
        std::rotate(begin + from, begin + from + 1, begin + position(date, from + 1, std::ssize(m_clips)));
}

void ClipList::change(ClipRef clip) {
    auto& place = m_clips[static_cast<std::size_t>(indexOf(*clip))];
    leave(*place);
    enter(*clip);
    place = std::move(clip);
}

std::vector<ClipRef> ClipList::remove(const QSet<QUuid>& ids) {
    std::vector<std::ptrdiff_t> indexes;
    for (const QUuid& id : ids) {
        if (const ClipRef clip = find(id))
            indexes.push_back(indexOf(*clip));
    }
    std::ranges::sort(indexes);

    std::vector<ClipRef> removed;
    if (indexes.empty())
        return removed;
    auto next = indexes.begin();
    auto kept = indexes.front();
    for (auto index = kept; index < std::ssize(m_clips); ++index) {
        ClipRef& clip = m_clips[static_cast<std::size_t>(index)];
        if (next != indexes.end() && *next == index) {
            ++next;
            leave(*clip);
            removed.push_back(std::move(clip));
        } else {
            m_clips[static_cast<std::size_t>(kept++)] = std::move(clip);
        }
    }
    m_clips.resize(static_cast<std::size_t>(kept));
    return removed;
}

std::unique_ptr<ClipList> ClipList::takeAll(bool keepPinned) {
    std::vector<ClipRef> kept;
    if (keepPinned)
        std::ranges::copy_if(m_clips, std::back_inserter(kept), [](const ClipRef& clip) { return clip->isPinned; });
    if (kept.size() == m_clips.size())
        return nullptr;
    auto whole = std::make_unique<ClipList>(std::move(*this));
    *this = ClipList();
    assign(std::move(kept));
    return whole;
}

std::vector<QUuid> ClipList::ids(bool withoutPinned) const {
    std::vector<QUuid> ids;
    ids.reserve(m_clips.size());
    for (const ClipRef& clip : m_clips) {
        if (!withoutPinned || !clip->isPinned)
            ids.push_back(clip->id);
    }
    return ids;
}

std::ptrdiff_t ClipList::position(Date date, std::ptrdiff_t first, std::ptrdiff_t last) const {
    const auto begin = m_clips.begin();
    return std::partition_point(begin + first, begin + last,
                                [date](const ClipRef& clip) { return clip->lastUsedAt > date; }) -
           begin;
}

std::ptrdiff_t ClipList::indexOf(const Clip& clip) const {
    auto index = position(clip.lastUsedAt, 0, std::ssize(m_clips));
    while (m_clips[static_cast<std::size_t>(index)]->id != clip.id)
        ++index;
    return index;
}

void ClipList::enter(const Clip& clip) {
    m_byId.insert({&clip});
    enterBesideId(clip);
}

void ClipList::enterBesideId(const Clip& clip) {
    m_byFingerprint.insert({&clip});
    if (clip.expiresAt)
        m_expiries.emplace(*clip.expiresAt, clip.id);
    m_unpinnedCount += clip.isPinned ? 0 : 1;
    m_mediaBytes += retention::mediaBytes(clip);
}

void ClipList::leave(const Clip& clip) {
    eraseFrom(m_byId, clip);
    eraseFrom(m_byFingerprint, clip);
    if (clip.expiresAt)
        m_expiries.erase({*clip.expiresAt, clip.id});
    m_unpinnedCount -= clip.isPinned ? 0 : 1;
    m_mediaBytes -= retention::mediaBytes(clip);
}

} // namespace vellumry
