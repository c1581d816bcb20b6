// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModel.h"

#include "capture/FileStatus.h"
#include "history/clips/ClipStore.h"
#include "panel/PanelModelExcerpt.h"
#include "paste/PasteEngine.h"
#include "paste/Shortcut.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vellumry {

PanelModel::PanelModel(ClipStore& store, PasteEngine& paster, PanelModelCalendar calendar, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_paster(paster)
    , m_sections(store, calendar)
    , m_actions(store, paster, calendar.now)
    , m_hasAccessibility(paster.isTrusted()) {
    m_actions.onClose = [this] { onClose(); };
    m_actions.onToast = [this](const ToastMessage& message) { onToast(message); };
    m_actions.onMerged = [this](const ClipRef& merged) { select(merged->id); };
    connect(&m_actions, &PanelActions::fileStatusesChanged, this, &PanelModel::fileStatusesChanged);
    connect(&store, &ClipStore::clipsChanged, this, &PanelModel::followStore);
    connect(&m_actions.undo(), &DeletionUndo::changed, this, &PanelModel::undoChanged);
    connect(&m_actions.undo(), &DeletionUndo::tookBack, this, [this](const RemovedClips& clips) {
        QSet<QUuid> ids;
        for (const RemovedClips::Entry& entry : *clips.entries)
            ids.insert(entry.clip->id);
        selectAll(ids);
    });
}

void PanelModel::prepareForShow() {
    const bool isOtherDay = m_sections.updateDay();
    setQuery({});
    setFilter(ClipFilter::all);
    if (const bool isTrusted = m_paster.isTrusted(); std::exchange(m_hasAccessibility, isTrusted) != isTrusted)
        Q_EMIT hasAccessibilityChanged();
    m_actions.refreshFileStatuses();
    closeTransformList();
    if (isOtherDay)
        Q_EMIT sectionsChanged();

    const auto& clips = visibleClips();
    const auto newest = std::ranges::find_if(clips, [](const ClipRef& clip) { return !clip->isPinned; });
    select(newest == clips.end() ? rows().first() : std::optional((*newest)->id));
    ++m_focusToken;
    Q_EMIT focusTokenChanged();
}

void PanelModel::setQuery(const QString& query) {
    if (!m_sections.setQuery(query))
        return;
    ++m_edits;
    Q_EMIT queryChanged();
    Q_EMIT sectionsChanged();
}

void PanelModel::searchTextEdited(const QString& text) {
    if (text == query())
        return;
    setQuery(text);
    resetSelection();
}

void PanelModel::setFilter(ClipFilter filter) {
    if (!m_sections.setFilter(filter))
        return;
    Q_EMIT filterChanged();
    Q_EMIT sectionsChanged();
    resetSelection();
}

void PanelModel::setFilterIndex(int index) {
    if (index >= 0 && index < int(allClipFilters.size()))
        setFilter(allClipFilters[std::size_t(index)]);
}

void PanelModel::cycleFilter(int delta) {
    const auto count = int(allClipFilters.size());
    setFilterIndex((filterIndex() + delta + count) % count);
}

void PanelModel::setHoveredID(std::optional<QUuid> id) {
    if (std::exchange(m_hoveredID, id) != id)
        Q_EMIT hoveredIDChanged();
}

void PanelModel::setPresented(bool value) {
    if (!value)
        m_actions.undo().forget();
    if (std::exchange(m_isPresented, value) != value)
        Q_EMIT isPresentedChanged();
}

void PanelModel::setAvailablePinnedNumbers(const QSet<int>& numbers) {
    if (std::exchange(m_availablePinnedNumbers, numbers) != numbers)
        Q_EMIT availablePinnedNumbersChanged();
}

std::optional<QString> PanelModel::imageMatch(const Clip& clip) const {
    if (!clip.imageText)
        return std::nullopt;
    return imageTextExcerpt(query(), clip.title.toString(), clip.imageText->toString());
}

ClipRef PanelModel::currentClip() const {
    const auto index = selectedIndex();
    return index < 0 ? nullptr : visibleClips()[std::size_t(index)];
}

std::vector<ClipRef> PanelModel::selectedClipsInCopyOrder() const {
    auto clips = selectedClips();
    std::ranges::stable_sort(clips, {},
                             [](const ClipRef& clip) { return std::tuple(clip->lastUsedAt, clip->createdAt); });
    return clips;
}

std::vector<ClipRef> PanelModel::stackSeed() const {
    // One clip is always selected: it says nothing of what the user wants.
    return m_selection.isSeveral() ? selectedClipsInCopyOrder() : std::vector<ClipRef>();
}

void PanelModel::setSelection(PanelSelection selection) {
    const bool isSame = selection.selectsAs(m_selection);
    m_selection = std::move(selection);
    if (m_transformClipID && m_transformClipID != selectedID())
        closeTransformList();
    if (!isSame)
        Q_EMIT selectionChanged();
}

void PanelModel::selectAll(const QSet<QUuid>& ids) {
    if (auto selection = PanelSelection::of(ids, rows()))
        setSelection(std::move(*selection));
}

void PanelModel::resetSelection() {
    closeTransformList();
    select(rows().first());
}

bool PanelModel::click(const QUuid& id, Modifiers modifiers) {
    if (modifiers.testFlag(Modifier::command)) {
        toggleSelection(id);
        return false;
    }
    if (modifiers.testFlag(Modifier::shift)) {
        extendSelection(id);
        return false;
    }
    if (m_selection.isSeveral() && m_selection.contains(id)) {
        // All of them may be dragged from here; the selection collapses once the button is released without a drag.
        setSelection(m_selection.withPrimary(id));
        return true;
    }
    select(id);
    return false;
}

void PanelModel::followStore() {
    const SharedClips before = m_isPresented ? m_sections.outdatedClips() : nullptr;
    Q_EMIT sectionsChanged();
    if (before && !before->empty())
        setSelection(m_selection.following(*before, rows()));
}

void PanelModel::move(int offset) {
    setSelection(m_selection.moved(offset, rows()));
}

void PanelModel::extend(int delta) {
    setSelection(m_selection.extended(delta, rows()));
}

void PanelModel::extendSelection(const QUuid& id) {
    setSelection(m_selection.extendedTo(id, rows()));
}

void PanelModel::toggleSelection(const QUuid& id) {
    setSelection(m_selection.toggled(id, rows()));
}

void PanelModel::pasteRow(const QUuid& id) {
    if (const auto clip = m_store.find(id))
        pasteClip(clip, false);
}

void PanelModel::openLink(const ClipRef& clip) {
    if (clip->kind != ClipKind::link)
        return;
    onClose();
    onOpenLink(clip->searchText.toString().trimmed());
}

void PanelModel::showFiles(const ClipRef& clip) {
    QStringList paths;
    for (const FileStatus& status : fileStatuses().value(clip->id)) {
        if (const auto path = status.path())
            paths.append(*path);
    }
    if (paths.isEmpty())
        return;
    onClose();
    onShowFiles(paths);
}

void PanelModel::togglePin() {
    m_actions.togglePin(selectedClipsInCopyOrder());
}

void PanelModel::deleteSelected() {
    const auto doomed = selectedClips();
    if (doomed.empty())
        return;
    setSelection(PanelSelection::withoutRows(doomed, rows()));
    m_actions.remove(doomed, m_isPresented, m_edits);
}

bool PanelModel::undoDeletion() {
    if (undoCount() == 0)
        return false;
    m_actions.undo().takeBack();
    return true;
}

int PanelModel::undoCount() const {
    const auto last = m_actions.undo().last();
    return last ? last->count : 0;
}

void PanelModel::merge(MergeAction action) {
    m_actions.merge(selectedClipsInCopyOrder(), action);
}

} // namespace vellumry
