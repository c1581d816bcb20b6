// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipIndex.h"

#include <algorithm>
#include <bit>

namespace vellumry {

void ClipIndex::clear() {
    m_slots.clear();
    m_size = 0;
}

void ClipIndex::reserve(std::size_t count) {
    const std::size_t wanted = std::bit_ceil(std::max<std::size_t>(count * 2, 16));
    if (wanted <= m_slots.size())
        return;
    const std::vector<Slot> old = std::exchange(m_slots, std::vector<Slot>(wanted));
    for (const Slot& slot : old) {
        if (!slot.clip)
            continue;
        std::size_t place = slot.hash & (wanted - 1);
        while (m_slots[place].clip)
            place = (place + 1) & (wanted - 1);
        m_slots[place] = slot;
    }
}

std::size_t ClipIndex::slotOf(const Clip& sample, std::size_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = hash & mask;
    while (m_slots[place].clip && (m_slots[place].hash != hash || !m_equal(*m_slots[place].clip, sample)))
        place = (place + 1) & mask;
    return place;
}

const Clip* ClipIndex::find(const Clip& sample) const {
    return m_slots.empty() ? nullptr : m_slots[slotOf(sample, m_hash(sample))].clip;
}

bool ClipIndex::insert(const Clip& clip) {
    reserve(m_size + 1);
    const std::size_t hash = m_hash(clip);
    Slot& slot = m_slots[slotOf(clip, hash)];
    if (slot.clip)
        return false;
    slot = {hash, &clip};
    ++m_size;
    return true;
}

void ClipIndex::erase(const Clip& clip) {
    if (m_slots.empty())
        return;
    const std::size_t mask = m_slots.size() - 1;
    std::size_t hole = slotOf(clip, m_hash(clip));
    if (m_slots[hole].clip != &clip)
        return;
    --m_size;
    // Those behind the hole move up, so that no search ends at it: each that may stand there by its own hash.
    for (std::size_t place = (hole + 1) & mask; m_slots[place].clip; place = (place + 1) & mask) {
        const std::size_t home = m_slots[place].hash & mask;
        if (((place - home) & mask) >= ((place - hole) & mask)) {
            m_slots[hole] = m_slots[place];
            hole = place;
        }
    }
    m_slots[hole] = {};
}

} // namespace vellumry
