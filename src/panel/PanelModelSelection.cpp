// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelPrivate.h"
#include "paste/Shortcut.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vellumry {

qsizetype PanelModel::visibleIndex(const std::optional<QUuid>& id) const {
    const ClipRef clip = id ? d->store.find(*id) : nullptr;
    if (!clip)
        return -1;
    // The list holds the store's own references, so nothing need be looked at behind them.
    const auto& clips = visibleClips();
    const auto found = std::ranges::find(clips, clip);
    return found == clips.end() ? -1 : found - clips.begin();
}

ClipRef PanelModel::currentClip() const {
    const auto index = visibleIndex(d->selectedID);
    return index < 0 ? nullptr : visibleClips()[std::size_t(index)];
}

std::vector<ClipRef> PanelModel::selectedClips() const {
    std::vector<ClipRef> clips;
    if (d->selectedIDs.size() < 2) {
        if (auto clip = currentClip())
            clips.push_back(std::move(clip));
        return clips;
    }
    std::ranges::copy_if(visibleClips(), std::back_inserter(clips),
                         [this](const ClipRef& clip) { return d->selectedIDs.contains(clip->id); });
    return clips;
}

std::vector<ClipRef> inCopyOrder(std::vector<ClipRef> clips) {
    std::ranges::stable_sort(clips, {},
                             [](const ClipRef& clip) { return std::tuple(clip->lastUsedAt, clip->createdAt); });
    return clips;
}

std::vector<ClipRef> PanelModel::selectedClipsInCopyOrder() const {
    return inCopyOrder(selectedClips());
}

bool PanelModel::isSelected(const QUuid& id) const {
    return d->selectedIDs.size() < 2 ? d->selectedID == id : d->selectedIDs.contains(id);
}

int PanelModel::selectedCount() const {
    return d->selectedIDs.size() < 2 ? int(d->selectedID.has_value()) : int(d->selectedIDs.size());
}

int PanelModel::selectedIndex() const {
    return int(visibleIndex(d->selectedID));
}

void PanelModel::setSelection(std::optional<QUuid> primary, QSet<QUuid> several, std::optional<QUuid> anchor) {
    d->anchorID = anchor;
    const bool isOther = primary != d->selectedID || several != d->selectedIDs;
    d->selectedID = primary;
    d->selectedIDs = std::move(several);
    if (d->transformClipID && d->transformClipID != d->selectedID)
        closeTransformList();
    if (isOther)
        Q_EMIT selectionChanged();
}

void PanelModel::select(std::optional<QUuid> id) {
    setSelection(id, {}, id);
}

/// Those of `ids` that are visible; nothing changes without any.
void PanelModel::selectAll(const QSet<QUuid>& ids) {
    QSet<QUuid> several;
    std::optional<QUuid> first;
    for (const ClipRef& clip : visibleClips()) {
        if (!ids.contains(clip->id))
            continue;
        if (!first)
            first = clip->id;
        several.insert(clip->id);
    }
    if (first)
        setSelection(first, several.size() < 2 ? QSet<QUuid>() : several, first);
}

void PanelModel::selectOnly(const QUuid& id) {
    select(id);
}

void PanelModel::resetSelection() {
    closeTransformList();
    const auto& clips = visibleClips();
    select(clips.empty() ? std::nullopt : std::optional(clips.front()->id));
}

bool PanelModel::click(const QUuid& id, quint32 flags) {
    if (flags & eventflag::command) {
        toggleSelection(id);
        return false;
    }
    if (flags & eventflag::shift) {
        extendSelection(id);
        return false;
    }
    if (d->selectedIDs.size() >= 2 && d->selectedIDs.contains(id)) {
        // All of them may be dragged from here; the selection collapses once the button is released without a drag.
        setSelection(id, d->selectedIDs, d->anchorID);
        return true;
    }
    select(id);
    return false;
}

/// A clip that goes while the panel is up (unpinned under Pinned, expired, deleted elsewhere) leaves the selection to
/// its neighbour, so that Return always has a clip to paste.
void PanelModel::followStore() {
    std::vector<ClipRef> before;
    if (d->isPresented && d->sectionCache && d->sectionCache->key != d->key())
        before = d->sectionCache->visible;
    Q_EMIT sectionsChanged();
    if (!before.empty() && d->selectedID)
        selectNeighbour(before);
}

void PanelModel::selectNeighbour(const std::vector<ClipRef>& before) {
    const auto& now = visibleClips();
    QSet<QUuid> left;
    for (const ClipRef& clip : now) {
        if (d->selectedIDs.contains(clip->id))
            left.insert(clip->id);
    }
    const bool lostSome = left.size() < d->selectedIDs.size();
    if (visibleIndex(d->selectedID) >= 0) {
        if (lostSome)
            setSelection(d->selectedID, left.size() < 2 ? QSet<QUuid>() : left, d->anchorID);
        return;
    }
    if (left.size() >= 2) {
        const auto first = std::ranges::find_if(now, [&](const ClipRef& clip) { return left.contains(clip->id); });
        setSelection((*first)->id, left, (*first)->id);
        return;
    }
    QSet<QUuid> listed;
    for (const ClipRef& clip : now)
        listed.insert(clip->id);
    const auto isListed = [&](const ClipRef& clip) { return listed.contains(clip->id); };
    const auto gone = std::ranges::find(before, *d->selectedID, [](const ClipRef& clip) { return clip->id; });
    if (gone == before.end())
        return;
    const auto next = std::find_if(gone, before.end(), isListed);
    const auto previous = std::find_if(std::reverse_iterator(gone), before.rend(), isListed);
    select(next != before.end()        ? std::optional((*next)->id)
           : previous != before.rend() ? std::optional((*previous)->id)
                                       : std::nullopt);
}

void PanelModel::move(int offset) {
    const auto& clips = visibleClips();
    if (clips.empty())
        return;
    const auto index = std::clamp<qsizetype>(visibleIndex(d->selectedID) + offset, 0, qsizetype(clips.size()) - 1);
    select(clips[std::size_t(index)]->id);
}

void PanelModel::extend(int delta) {
    const auto& clips = visibleClips();
    if (clips.empty())
        return;
    if (d->selectedIDs.size() < 2)
        d->anchorID = d->selectedID;
    const auto index = std::clamp<qsizetype>(visibleIndex(d->selectedID) + delta, 0, qsizetype(clips.size()) - 1);
    extendSelection(clips[std::size_t(index)]->id);
}

void PanelModel::extendSelection(const QUuid& id) {
    const auto anchor = d->anchorID ? d->anchorID : d->selectedID;
    const auto from = visibleIndex(anchor);
    const auto to = visibleIndex(id);
    if (from < 0 || to < 0) {
        select(id);
        return;
    }
    QSet<QUuid> range;
    for (auto index = std::min(from, to); index <= std::max(from, to); ++index)
        range.insert(visibleClips()[std::size_t(index)]->id);
    if (range.size() < 2)
        range.clear();
    setSelection(id, std::move(range), anchor);
}

void PanelModel::toggleSelection(const QUuid& id) {
    auto working = d->selectedIDs;
    auto primary = d->selectedID;
    if (working.isEmpty() && primary)
        working.insert(*primary);

    if (!working.remove(id)) {
        working.insert(id);
        primary = id;
    } else if (primary == id) {
        const auto& clips = visibleClips();
        const auto left = std::ranges::find_if(clips, [&](const ClipRef& clip) { return working.contains(clip->id); });
        primary = left == clips.end() ? std::nullopt : std::optional((*left)->id);
    }
    if (working.size() < 2) {
        if (!working.isEmpty())
            primary = *working.constBegin();
        working.clear();
    }
    setSelection(primary, std::move(working), id);
}

void PanelModel::cycleFilter(int delta) {
    const auto count = int(allClipFilters.size());
    setFilterIndex((filterIndex() + delta + count) % count);
}

} // namespace vellumry
