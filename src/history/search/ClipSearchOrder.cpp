// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/ClipSearchOrder.h"

#include <algorithm>
#include <utility>

namespace vellumry {

bool ClipSearchOrder::isUnchanged(const std::vector<ClipRef>& clips) const {
    if (m_isStale || clips.size() != m_known.size())
        return false;
    for (std::size_t position = 0; position < clips.size(); ++position)
        if (!m_known[position].is(clips[position]))
            return false;
    return true;
}

bool ClipSearchOrder::follow(const std::vector<ClipRef>& clips, const FoldedIndex& index,
                             const std::function<Slot(const Clip&)>& slotOf, std::optional<qint64> revision) {
    const bool isSameRevision = !m_isStale && revision && m_revision == revision;
    if (isSameRevision || isUnchanged(clips)) {
        m_revision = revision;
        return false;
    }
    ClipSearchOrder old = std::exchange(*this, ClipSearchOrder());
    m_known.reserve(clips.size());
    m_slots.reserve(clips.size());
    m_traits.reserve(clips.size());
    std::vector<bool> isPlaced(index.slotCount());
    const auto hasText = [&](Slot slot) { return slot == noSlot || index.contains(slot); };
    const auto hasGone = [&](std::size_t position) {
        const Slot slot = old.m_slots[position];
        return old.m_known[position].owner.expired() || !hasText(slot) ||
               (slot != noSlot && slot < isPlaced.size() && isPlaced[slot]);
    };
    // Clips come, go and move one at a time, so the two orders run side by side; what does not fit is looked up.
    std::size_t next = 0;
    for (const ClipRef& clip : clips) {
        while (next < old.size() && !old.m_known[next].is(clip) && hasGone(next))
            ++next;
        const bool isNext = next < old.size() && old.m_known[next].is(clip);
        if (isNext && hasText(old.m_slots[next]))
            takeOver(old, next);
        else
            append(clip, slotOf);
        next += isNext ? 1 : 0;
        if (m_slots.back() != noSlot && m_slots.back() < isPlaced.size())
            isPlaced[m_slots.back()] = true;
    }
    notePositions();
    m_revision = revision;
    return true;
}

void ClipSearchOrder::begin(const std::vector<ClipRef>& clips, std::size_t count,
                            const std::function<Slot(const Clip&)>& slotOf) {
    if (m_known.empty()) {
        m_known.reserve(clips.size());
        m_slots.reserve(clips.size());
        m_traits.reserve(clips.size());
    }
    const std::size_t end = std::min(clips.size(), m_known.size() + count);
    while (m_known.size() < end)
        append(clips[m_known.size()], slotOf);
}

void ClipSearchOrder::finish(std::optional<qint64> revision) {
    notePositions();
    m_revision = revision;
}

void ClipSearchOrder::notePositions() {
    for (std::uint32_t position = 0; position < m_slots.size(); ++position) {
        const Slot slot = m_slots[position];
        if (slot == noSlot) {
            m_withoutText.push_back(position);
            continue;
        }
        if (slot >= m_positions.size())
            m_positions.resize(slot + 1, noPosition);
        m_positions[slot] = position;
    }
}

void ClipSearchOrder::takeOver(ClipSearchOrder& old, std::size_t position) {
    const auto newPosition = static_cast<std::uint32_t>(m_slots.size());
    auto& pictures = old.m_pictures;
    while (m_nextPicture < pictures.size() && pictures[m_nextPicture].position < position)
        ++m_nextPicture;
    if (m_nextPicture < pictures.size() && pictures[m_nextPicture].position == position)
        m_pictures.push_back({newPosition, std::move(pictures[m_nextPicture].keys)});
    m_known.push_back(std::move(old.m_known[position]));
    m_slots.push_back(old.m_slots[position]);
    m_traits.push_back(old.m_traits[position]);
}

void ClipSearchOrder::append(const ClipRef& clip, const std::function<Slot(const Clip&)>& slotOf) {
    unsigned traits = 0;
    for (const ClipFilter filter : allClipFilters)
        if (vellumry::passes(*clip, filter))
            traits |= 1U << static_cast<unsigned>(filter);
    if (clip->imageText && !clip->imageText->isEmpty())
        m_pictures.push_back({static_cast<std::uint32_t>(m_slots.size()), nullptr});
    m_known.emplace_back(clip);
    m_slots.push_back(clip->isSensitive() ? noSlot : slotOf(*clip));
    m_traits.push_back(static_cast<std::uint8_t>(traits));
}

void ClipSearchOrder::forgetPictures() {
    for (Picture& picture : m_pictures)
        picture.keys.reset();
}

} // namespace vellumry
