// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/PeerSource.h"

#include <algorithm>

namespace vellumry {

namespace {

constexpr Date step = 1;

}

PeerSource::PeerSource(std::unique_ptr<PeerReading> reading, Date now)
    : m_reading(std::move(reading))
    , m_latest(std::min(now, m_reading->newest())) {}

std::optional<ImportEntry> PeerSource::next() {
    std::optional<PeerClip> clip = m_reading->next();
    if (!clip)
        return std::nullopt;
    const Date time = std::min(clip->copiedAt.value_or(m_latest), m_latest);
    m_latest = time - step;
    ImportEntry entry;
    entry.payload.items = std::move(clip->items);
    entry.provenance = {time, time, clip->isPinned};
    entry.isLocked = clip->isLocked;
    return entry;
}

} // namespace vellumry
