// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "history/clips/ClipMerger.h"
#include "panel/PanelModelPrivate.h"

#include <algorithm>
#include <ranges>
#include <utility>
#include <variant>

namespace vellumry {

namespace {

/// What is held in memory of one deletion until it can no longer be undone.
constexpr qint64 mostUndoableBytes = 256LL * 1024 * 1024;

} // namespace

void PanelModel::showToast(const std::optional<ToastMessage>& message) {
    if (message)
        onToast(*message);
}

void PanelModel::pasteClip(const ClipRef& clip, bool isPlain, std::optional<TextTransform> transform) {
    onClose();
    const bool wantsTextInImage = isPlain && !transform && clip->kind == ClipKind::image;
    if (!wantsTextInImage)
        runPaste(clip, isPlain ? std::optional(true) : std::nullopt, transform);
    else if (clip->imageText && !clip->imageText->isEmpty())
        runPasteText(*clip->imageText);
    else
        runPaste(clip, std::nullopt, std::nullopt);
}

void PanelModel::pasteRow(const QUuid& id) {
    if (const auto clip = d->store.find(id))
        pasteClip(clip, false);
}

void PanelModel::pastePinned(int number) {
    const auto pinned = d->store.pinnedClips();
    if (number >= 1 && number <= int(pinned.size())) {
        pasteClip(pinned[std::size_t(number - 1)], false);
        return;
    }
    onToast({QStringLiteral("pin"), localised("Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P").arg(number),
             ToastMessage::Tone::info});
}

void PanelModel::pasteFileNames(const ClipRef& clip) {
    QStringList names;
    for (const auto& file : clip->files)
        names.append(file.name);
    onClose();
    runPasteText(names.join(u'\n'));
}

void PanelModel::pasteTextInImage(const ClipRef& clip) {
    if (!clip->imageText || clip->imageText->isEmpty())
        return;
    onClose();
    runPasteText(*clip->imageText);
}

void PanelModel::openLink(const ClipRef& clip) {
    if (clip->kind != ClipKind::link)
        return;
    onClose();
    onOpenLink(clip->searchText.toString().trimmed());
}

void PanelModel::showFiles(const ClipRef& clip) {
    QStringList paths;
    for (const FileStatus& status : d->fileStatuses.value(clip->id)) {
        if (const auto path = status.path())
            paths.append(*path);
    }
    if (paths.isEmpty())
        return;
    onClose();
    onShowFiles(paths);
}

void PanelModel::copyClip(const ClipRef& clip) {
    runCopy(clip);
}

QCoro::Task<void> PanelModel::runPaste(ClipRef clip, std::optional<bool> isPlain,
                                       std::optional<TextTransform> transform) {
    const QPointer<PanelModel> self(this);
    auto pasting = d->paster.paste(clip, isPlain, transform);
    const auto outcome = co_await pasting;
    if (self)
        showToast(toastFor(outcome));
}

QCoro::Task<void> PanelModel::runPasteText(QString text) {
    const QPointer<PanelModel> self(this);
    auto pasting = d->paster.pasteText(text);
    const auto outcome = co_await pasting;
    if (self)
        showToast(toastFor(outcome));
}

QCoro::Task<void> PanelModel::runCopy(ClipRef clip) {
    const QPointer<PanelModel> self(this);
    auto copying = d->paster.copy(clip);
    const auto outcome = co_await copying;
    if (self)
        showToast(toastFor(outcome));
}

void PanelModel::togglePin() {
    auto clips = selectedClipsInCopyOrder();
    const bool pins = std::ranges::any_of(clips, [](const ClipRef& clip) { return !clip->isPinned; });
    runPin(std::move(clips), pins);
}

QCoro::Task<void> PanelModel::runPin(std::vector<ClipRef> clips, bool isPinned) {
    // One after the other, so that the pins stand in the order in which the clips were copied.
    const QPointer<PanelModel> self(this);
    for (const auto& clip : clips) {
        const Date now = d->calendar.now();
        auto pinning = d->store.setPinned(clip->id, isPinned, now);
        co_await pinning;
        if (!self)
            co_return;
    }
}

void PanelModel::deleteSelected() {
    const auto doomed = selectedClips();
    if (doomed.empty())
        return;
    selectAfterDeleting(doomed);
    QSet<QUuid> forGood;
    QSet<QUuid> undoable;
    qint64 bytes = 0;
    for (const auto& clip : doomed) {
        bytes += clip->byteSize;
        const bool comesBack = d->isPresented && !clip->isSensitive() && bytes <= mostUndoableBytes;
        (comesBack ? undoable : forGood).insert(clip->id);
    }
    if (bytes > mostUndoableBytes) // all or none: half of a selection back would surprise
        forGood.unite(std::exchange(undoable, {}));
    if (!undoable.isEmpty())
        runTakeOut(std::move(undoable));
    if (!forGood.isEmpty())
        runDelete(std::move(forGood));
}

QCoro::Task<void> PanelModel::runTakeOut(QSet<QUuid> ids) {
    const QPointer<PanelModel> self(this);
    const auto deletion = d->undo.begin(int(ids.size()), d->edits);
    auto taking = d->store.takeOut(std::move(ids));
    auto removed = co_await taking;
    if (self)
        d->undo.arrive(deletion, std::move(removed));
}

bool PanelModel::undoDeletion() {
    if (undoCount() == 0)
        return false;
    d->undo.takeBack();
    return true;
}

int PanelModel::undoCount() const {
    const auto last = d->undo.last();
    return last ? last->count : 0;
}

void PanelModel::setUndoTime(std::chrono::milliseconds time) {
    d->undo.setTime(time);
}

/// The next clip that stays, else the nearest one before.
void PanelModel::selectAfterDeleting(const std::vector<ClipRef>& doomed) {
    const auto& clips = visibleClips();
    const auto stays = [&](const ClipRef& clip) { return std::ranges::find(doomed, clip) == doomed.end(); };
    const auto behind = std::ranges::find(clips, doomed.back()) + 1;
    const auto next = std::find_if(behind, clips.end(), stays);
    if (next != clips.end()) {
        select((*next)->id);
        return;
    }
    const auto previous = std::find_if(std::reverse_iterator(behind), clips.rend(), stays);
    select(previous == clips.rend() ? std::nullopt : std::optional((*previous)->id));
}

QCoro::Task<void> PanelModel::runDelete(QSet<QUuid> ids) {
    auto removing = d->store.remove(std::move(ids), false);
    co_await removing;
}

void PanelModel::toggleTransforms() {
    if (isTransformListOpen()) {
        closeTransformList();
        return;
    }
    const auto clip = d->selectedIDs.size() < 2 ? currentClip() : nullptr;
    if (!clip)
        return;
    if (clip->canBeTransformed())
        setTransform(clip->id, 0);
    else
        onToast({QStringLiteral("textformat"), localised("Transforms work on text clips"), ToastMessage::Tone::info});
}

void PanelModel::merge(MergeAction action) {
    auto clips = selectedClipsInCopyOrder();
    if (clips.size() < 2)
        return;
    if (std::ranges::any_of(clips, [](const ClipRef& clip) { return clip->kind == ClipKind::image; })) {
        onToast({QStringLiteral("photo.on.rectangle"), localised("Images can't be merged. Drag them out instead"),
                 ToastMessage::Tone::info});
        return;
    }
    if (action != MergeAction::stay)
        onClose();
    runMerge(std::move(clips), action);
}

QCoro::Task<void> PanelModel::runMerge(std::vector<ClipRef> clips, MergeAction action) {
    const QPointer<PanelModel> self(this);
    const auto count = clips.size();
    auto merging = addMerged(std::move(clips));
    const auto merged = co_await merging;
    if (!self)
        co_return;
    if (!merged) {
        onToast({QStringLiteral("xmark.circle.fill"), localised("Couldn't merge these clips"),
                 ToastMessage::Tone::warning});
        co_return;
    }
    select(merged->id);
    switch (action) {
    case MergeAction::stay:
        onToast({QStringLiteral("square.stack.fill"), localised("Merged %n clips into one", int(count)),
                 ToastMessage::Tone::success});
        break;
    case MergeAction::paste:
        runPaste(merged, std::nullopt, std::nullopt);
        break;
    case MergeAction::copy:
        runCopy(merged);
        break;
    }
}

/// The stored clip; null when one of `clips` cannot be read, they cannot be merged, or the store does not take the
/// result.
QCoro::Task<ClipRef> PanelModel::addMerged(std::vector<ClipRef> clips) {
    const QPointer<PanelModel> self(this);
    ClipMerger::Payloads payloads;
    for (const auto& clip : clips) {
        auto loading = d->store.payload(clip->id);
        auto payload = co_await loading;
        if (!self || !payload)
            co_return ClipRef();
        payloads.insert(clip->id, std::move(*payload));
    }
    auto result = ClipMerger::merge(clips, payloads);
    auto* draft = std::get_if<ClipDraft>(&result);
    if (!draft)
        co_return ClipRef();
    const Date now = d->calendar.now();
    auto adding = d->store.add(std::move(*draft), now);
    auto merged = co_await adding;
    co_return merged;
}

void PanelModel::pasteSelectedOneByOne() {
    onToggleStack(selectedClipsInCopyOrder());
}

std::vector<ClipRef> PanelModel::stackSeed() const {
    // One clip is always selected: it says nothing of what the user wants.
    return selectedIDs().size() < 2 ? std::vector<ClipRef>() : selectedClipsInCopyOrder();
}

void PanelModel::addSelectedToStack() {
    onAddToStack(selectedClipsInCopyOrder());
}

} // namespace vellumry
