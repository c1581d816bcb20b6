// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelSelection.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vellumry {

namespace {

QSet<QUuid> idsOf(const std::vector<ClipRef>& clips) {
    QSet<QUuid> ids;
    ids.reserve(qsizetype(clips.size()));
    for (const ClipRef& clip : clips)
        ids.insert(clip->id);
    return ids;
}

/// The row nearest to `place` in `clips` that `stays`: from there down, then from there up.
template <typename Stays>
std::optional<QUuid> nearest(const std::vector<ClipRef>& clips, std::vector<ClipRef>::const_iterator place,
                             Stays stays) {
    if (const auto next = std::find_if(place, clips.end(), stays); next != clips.end())
        return (*next)->id;
    const auto previous = std::find_if(std::reverse_iterator(place), clips.rend(), stays);
    return previous == clips.rend() ? std::nullopt : std::optional((*previous)->id);
}

} // namespace

qsizetype PanelRows::indexOf(const std::optional<QUuid>& id) const {
    const ClipRef clip = id ? m_find(*id) : nullptr;
    if (!clip)
        return -1;
    const auto found = std::ranges::find(*m_clips, clip);
    return found == m_clips->end() ? -1 : found - m_clips->begin();
}

std::optional<QUuid> PanelRows::first() const {
    return m_clips->empty() ? std::nullopt : std::optional(m_clips->front()->id);
}

std::optional<QUuid> PanelRows::last() const {
    return m_clips->empty() ? std::nullopt : std::optional(m_clips->back()->id);
}

std::optional<QUuid> PanelRows::at(const std::optional<QUuid>& id, qsizetype offset) const {
    if (m_clips->empty())
        return std::nullopt;
    const auto index = std::clamp<qsizetype>(indexOf(id) + offset, 0, qsizetype(m_clips->size()) - 1);
    return (*m_clips)[std::size_t(index)]->id;
}

PanelSelection::PanelSelection(std::optional<QUuid> primary, QSet<QUuid> several, std::optional<QUuid> anchor)
    : m_primary(primary)
    , m_several(std::move(several))
    , m_anchor(anchor) {
    if (m_several.size() < 2)
        m_several.clear();
}

bool PanelSelection::contains(const QUuid& id) const {
    return isSeveral() ? m_several.contains(id) : m_primary == id;
}

int PanelSelection::count() const {
    return isSeveral() ? int(m_several.size()) : int(m_primary.has_value());
}

bool PanelSelection::selectsAs(const PanelSelection& other) const {
    return m_primary == other.m_primary && m_several == other.m_several;
}

std::vector<ClipRef> PanelSelection::clipsOf(const PanelRows& rows) const {
    std::vector<ClipRef> clips;
    if (isSeveral()) {
        std::ranges::copy_if(rows.clips(), std::back_inserter(clips),
                             [this](const ClipRef& clip) { return m_several.contains(clip->id); });
    } else if (const auto index = rows.indexOf(m_primary); index >= 0) {
        clips.push_back(rows.clips()[std::size_t(index)]);
    }
    return clips;
}

PanelSelection PanelSelection::moved(int offset, const PanelRows& rows) const {
    const auto id = rows.at(m_primary, offset);
    return id ? PanelSelection(id) : *this;
}

PanelSelection PanelSelection::extended(int offset, const PanelRows& rows) const {
    const auto id = rows.at(m_primary, offset);
    if (!id)
        return *this;
    return (isSeveral() ? *this : PanelSelection(m_primary)).extendedTo(*id, rows);
}

PanelSelection PanelSelection::extendedTo(const QUuid& id, const PanelRows& rows) const {
    const auto anchor = m_anchor ? m_anchor : m_primary;
    const auto from = rows.indexOf(anchor);
    const auto to = rows.indexOf(id);
    if (from < 0 || to < 0)
        return PanelSelection(id);
    QSet<QUuid> range;
    for (auto index = std::min(from, to); index <= std::max(from, to); ++index)
        range.insert(rows.clips()[std::size_t(index)]->id);
    return {id, std::move(range), anchor};
}

PanelSelection PanelSelection::toggled(const QUuid& id, const PanelRows& rows) const {
    auto working = m_several;
    auto primary = m_primary;
    if (working.isEmpty() && primary)
        working.insert(*primary);

    if (!working.remove(id)) {
        working.insert(id);
        primary = id;
    } else if (primary == id) {
        const auto left =
            std::ranges::find_if(rows.clips(), [&](const ClipRef& clip) { return working.contains(clip->id); });
        primary = left == rows.clips().end() ? std::nullopt : std::optional((*left)->id);
    }
    if (working.size() == 1)
        primary = *working.constBegin();
    return {primary, std::move(working), id};
}

PanelSelection PanelSelection::withPrimary(const QUuid& id) const {
    return {id, m_several, m_anchor};
}

std::optional<PanelSelection> PanelSelection::of(const QSet<QUuid>& ids, const PanelRows& rows) {
    QSet<QUuid> several;
    std::optional<QUuid> first;
    for (const ClipRef& clip : rows.clips()) {
        if (!ids.contains(clip->id))
            continue;
        if (!first)
            first = clip->id;
        several.insert(clip->id);
    }
    if (!first)
        return std::nullopt;
    return PanelSelection(first, std::move(several), first);
}

PanelSelection PanelSelection::following(const std::vector<ClipRef>& before, const PanelRows& rows) const {
    if (!m_primary)
        return *this;
    QSet<QUuid> left;
    if (isSeveral()) {
        for (const ClipRef& clip : clipsOf(rows))
            left.insert(clip->id);
    }
    if (rows.indexOf(m_primary) >= 0)
        return {m_primary, std::move(left), m_anchor};
    if (left.size() >= 2)
        return of(left, rows).value_or(*this);
    const auto listed = idsOf(rows.clips());
    const auto gone = std::ranges::find(before, *m_primary, [](const ClipRef& clip) { return clip->id; });
    if (gone == before.end())
        return *this;
    return PanelSelection(nearest(before, gone, [&](const ClipRef& clip) { return listed.contains(clip->id); }));
}

PanelSelection PanelSelection::withoutRows(const std::vector<ClipRef>& doomed, const PanelRows& rows) {
    const auto stays = [&](const ClipRef& clip) { return std::ranges::find(doomed, clip) == doomed.end(); };
    const auto last = std::ranges::find(rows.clips(), doomed.back());
    return PanelSelection(nearest(rows.clips(), last, stays));
}

} // namespace vellumry
