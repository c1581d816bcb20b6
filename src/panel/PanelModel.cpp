// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModel.h"

#include "panel/PanelModelPrivate.h"

#include <algorithm>
#include <utility>

namespace vellumry {

PanelModel::PanelModel(ClipStore& store, PasteEngine& paster, PanelModelCalendar calendar, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(store, paster, std::move(calendar))) {
    d->hasAccessibility = paster.isTrusted();
    connect(&store, &ClipStore::clipsChanged, this, &PanelModel::followStore);
    connect(&d->undo, &DeletionUndo::changed, this, &PanelModel::undoChanged);
    connect(&d->undo, &DeletionUndo::tookBack, this, [this](const RemovedClips& clips) {
        QSet<QUuid> ids;
        for (const RemovedClips::Entry& entry : *clips.entries)
            ids.insert(entry.clip->id);
        selectAll(ids);
    });
}

PanelModel::~PanelModel() = default;

void PanelModel::prepareForShow() {
    const auto shownDay = d->today.start;
    d->today = {}; // asked anew: the user may have travelled
    setQuery({});
    setFilter(ClipFilter::all);
    if (const bool isTrusted = d->paster.isTrusted(); std::exchange(d->hasAccessibility, isTrusted) != isTrusted)
        Q_EMIT hasAccessibilityChanged();
    refreshFileStatuses();
    closeTransformList();
    if (d->sectionCache && d->key().day != shownDay)
        Q_EMIT sectionsChanged();

    const auto& clips = visibleClips();
    const auto newest = std::ranges::find_if(clips, [](const ClipRef& clip) { return !clip->isPinned; });
    if (newest != clips.end())
        select((*newest)->id);
    else
        select(clips.empty() ? std::nullopt : std::optional(clips.front()->id));
    ++d->focusToken;
    Q_EMIT focusTokenChanged();
}

QCoro::Task<void> PanelModel::refreshFileStatuses() {
    const quint64 refresh = ++d->statusRefresh;
    std::vector<ClipRef> clips;
    std::vector<FileRef> files;
    for (const auto& clip : d->store.clips()) {
        if (clip->kind != ClipKind::file)
            continue;
        clips.push_back(clip);
        files.insert(files.end(), clip->files.begin(), clip->files.end());
    }
    if (clips.empty()) {
        if (!std::exchange(d->fileStatuses, {}).isEmpty())
            Q_EMIT fileStatusesChanged();
        co_return;
    }

    const QPointer<PanelModel> self(this);
    auto asking = d->paster.fileStatuses(std::move(files));
    const auto statuses = co_await asking;
    if (!self || refresh != d->statusRefresh || !statuses)
        co_return;
    FileStatuses byClip;
    auto status = statuses->begin();
    for (const auto& clip : clips) {
        const auto end = status + std::ptrdiff_t(clip->files.size());
        byClip.insert(clip->id, {status, end});
        status = end;
    }
    if (byClip != std::exchange(d->fileStatuses, byClip))
        Q_EMIT fileStatusesChanged();
}

void PanelModel::setQuery(const QString& query) {
    if (query == d->query)
        return;
    d->query = query;
    ++d->edits;
    Q_EMIT queryChanged();
    Q_EMIT sectionsChanged();
}

void PanelModel::searchTextEdited(const QString& text) {
    if (text == d->query)
        return;
    setQuery(text);
    resetSelection();
}

void PanelModel::setFilter(ClipFilter filter) {
    if (filter == d->filter)
        return;
    d->filter = filter;
    Q_EMIT filterChanged();
    Q_EMIT sectionsChanged();
    resetSelection();
}

void PanelModel::setFilterIndex(int index) {
    if (index >= 0 && index < int(allClipFilters.size()))
        setFilter(allClipFilters[std::size_t(index)]);
}

void PanelModel::setHoveredID(std::optional<QUuid> id) {
    if (std::exchange(d->hoveredID, id) != id)
        Q_EMIT hoveredIDChanged();
}

void PanelModel::setPresented(bool value) {
    if (!value)
        d->undo.forget();
    if (std::exchange(d->isPresented, value) != value)
        Q_EMIT isPresentedChanged();
}

void PanelModel::setAvailablePinnedNumbers(const QSet<int>& numbers) {
    if (std::exchange(d->availablePinnedNumbers, numbers) != numbers)
        Q_EMIT availablePinnedNumbersChanged();
}

ClipStore& PanelModel::store() const {
    return d->store;
}
const QString& PanelModel::query() const {
    return d->query;
}
ClipFilter PanelModel::filter() const {
    return d->filter;
}
std::optional<QUuid> PanelModel::hoveredID() const {
    return d->hoveredID;
}
int PanelModel::focusToken() const {
    return d->focusToken;
}
bool PanelModel::isPresented() const {
    return d->isPresented;
}
bool PanelModel::hasAccessibility() const {
    return d->hasAccessibility;
}
const PanelModel::FileStatuses& PanelModel::fileStatuses() const {
    return d->fileStatuses;
}
std::optional<QUuid> PanelModel::transformClipID() const {
    return d->transformClipID;
}
int PanelModel::transformIndex() const {
    return d->transformIndex;
}
const QSet<int>& PanelModel::availablePinnedNumbers() const {
    return d->availablePinnedNumbers;
}
std::optional<QUuid> PanelModel::selectedID() const {
    return d->selectedID;
}
const QSet<QUuid>& PanelModel::selectedIDs() const {
    return d->selectedIDs;
}
std::optional<QUuid> PanelModel::anchorID() const {
    return d->anchorID;
}

} // namespace vellumry
