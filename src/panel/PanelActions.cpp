// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelActions.h"

#include "capture/FileStatus.h"
#include "foundation/Localisation.h"
#include "history/clips/ClipMerger.h"
#include "history/clips/ClipStore.h"
#include "paste/PasteEngine.h"

#include <QPointer>
#include <algorithm>
#include <utility>
#include <variant>

namespace vellumry {

namespace {

/// What is held in memory of one deletion until it can no longer be undone.
constexpr qint64 mostUndoableBytes = 256LL * 1024 * 1024;

} // namespace

PanelActions::PanelActions(ClipStore& store, PasteEngine& paster, Clock now)
    : m_store(store)
    , m_paster(paster)
    , m_now(std::move(now))
    , m_undo(store) {}

void PanelActions::showToast(const std::optional<ToastMessage>& message) {
    if (message)
        onToast(*message);
}

void PanelActions::paste(const ClipRef& clip, bool isPlain, std::optional<TextTransform> transform) {
    onClose();
    const bool wantsTextInImage = isPlain && !transform && clip->kind == ClipKind::image;
    if (!wantsTextInImage)
        runPaste(clip, isPlain ? std::optional(true) : std::nullopt, transform);
    else if (clip->imageText && !clip->imageText->isEmpty())
        runPasteText(clip->imageText->toString());
    else
        runPaste(clip, std::nullopt, std::nullopt);
}

void PanelActions::pastePinned(int number) {
    const auto pinned = m_store.pinnedClips();
    if (number >= 1 && number <= int(pinned.size())) {
        paste(pinned[std::size_t(number - 1)], false);
        return;
    }
    onToast({QStringLiteral("pin"), localised("Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P").arg(number),
             ToastMessage::Tone::info});
}

void PanelActions::pasteFileNames(const ClipRef& clip) {
    QStringList names;
    for (const auto& file : clip->files)
        names.append(file.name);
    onClose();
    runPasteText(names.join(u'\n'));
}

void PanelActions::pasteTextInImage(const ClipRef& clip) {
    if (!clip->imageText || clip->imageText->isEmpty())
        return;
    onClose();
    runPasteText(clip->imageText->toString());
}

void PanelActions::copy(const ClipRef& clip) {
    runCopy(clip);
}

QCoro::Task<void> PanelActions::runPaste(ClipRef clip, std::optional<bool> isPlain,
                                         std::optional<TextTransform> transform) {
    const QPointer<PanelActions> self(this);
    auto pasting = m_paster.paste(clip, isPlain, transform);
    const auto outcome = co_await pasting;
    if (self)
        showToast(toastFor(outcome));
}

QCoro::Task<void> PanelActions::runPasteText(QString text) {
    const QPointer<PanelActions> self(this);
    auto pasting = m_paster.pasteText(text);
    const auto outcome = co_await pasting;
    if (self)
        showToast(toastFor(outcome));
}

QCoro::Task<void> PanelActions::runCopy(ClipRef clip) {
    const QPointer<PanelActions> self(this);
    auto copying = m_paster.copy(clip);
    const auto outcome = co_await copying;
    if (self)
        showToast(toastFor(outcome));
}

void PanelActions::togglePin(std::vector<ClipRef> clips) {
    const bool pins = std::ranges::any_of(clips, [](const ClipRef& clip) { return !clip->isPinned; });
    runPin(std::move(clips), pins);
}

QCoro::Task<void> PanelActions::runPin(std::vector<ClipRef> clips, bool isPinned) {
    // One after the other, so that the pins stand in the order in which the clips were copied.
    const QPointer<PanelActions> self(this);
    for (const auto& clip : clips) {
        const Date now = m_now();
        auto pinning = m_store.setPinned(clip->id, isPinned, now);
        co_await pinning;
        if (!self)
            co_return;
    }
}

void PanelActions::remove(const std::vector<ClipRef>& doomed, bool canUndo, quint64 edits) {
    QSet<QUuid> forGood;
    QSet<QUuid> undoable;
    qint64 bytes = 0;
    for (const auto& clip : doomed) {
        bytes += clip->byteSize;
        const bool comesBack = canUndo && !clip->isSensitive() && bytes <= mostUndoableBytes;
        (comesBack ? undoable : forGood).insert(clip->id);
    }
    if (bytes > mostUndoableBytes) // all or none: half of a selection back would surprise
        forGood.unite(std::exchange(undoable, {}));
    if (!undoable.isEmpty())
        runTakeOut(std::move(undoable), edits);
    if (!forGood.isEmpty())
        runDelete(std::move(forGood));
}

QCoro::Task<void> PanelActions::runTakeOut(QSet<QUuid> ids, quint64 edits) {
    const QPointer<PanelActions> self(this);
    const auto deletion = m_undo.begin(int(ids.size()), edits);
    auto taking = m_store.takeOut(std::move(ids));
    auto removed = co_await taking;
    if (self)
        m_undo.arrive(deletion, std::move(removed));
}

QCoro::Task<void> PanelActions::runDelete(QSet<QUuid> ids) {
    auto removing = m_store.remove(std::move(ids), false);
    co_await removing;
}

void PanelActions::merge(std::vector<ClipRef> clips, MergeAction action) {
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

QCoro::Task<void> PanelActions::runMerge(std::vector<ClipRef> clips, MergeAction action) {
    const QPointer<PanelActions> self(this);
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
    onMerged(merged);
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
QCoro::Task<ClipRef> PanelActions::addMerged(std::vector<ClipRef> clips) {
    const QPointer<PanelActions> self(this);
    ClipMerger::Payloads payloads;
    for (const auto& clip : clips) {
        auto loading = m_store.payload(clip->id);
        auto payload = co_await loading;
        if (!self || !payload)
            co_return ClipRef();
        payloads.insert(clip->id, std::move(*payload));
    }
    auto result = ClipMerger::merge(clips, payloads);
    auto* draft = std::get_if<ClipDraft>(&result);
    if (!draft)
        co_return ClipRef();
    const Date now = m_now();
    auto adding = m_store.add(std::move(*draft), now);
    auto merged = co_await adding;
    co_return merged;
}

QCoro::Task<void> PanelActions::refreshFileStatuses() {
    const quint64 refresh = ++m_statusRefresh;
    std::vector<ClipRef> clips;
    std::vector<FileRef> files;
    for (const auto& clip : m_store.clips()) {
        if (clip->kind != ClipKind::file)
            continue;
        clips.push_back(clip);
        files.insert(files.end(), clip->files.begin(), clip->files.end());
    }
    if (clips.empty()) {
        if (!std::exchange(m_fileStatuses, {}).isEmpty())
            Q_EMIT fileStatusesChanged();
        co_return;
    }

    const QPointer<PanelActions> self(this);
    auto asking = m_paster.fileStatuses(std::move(files));
    const auto statuses = co_await asking;
    if (!self || refresh != m_statusRefresh || !statuses)
        co_return;
    FileStatuses byClip;
    auto status = statuses->begin();
    for (const auto& clip : clips) {
        const auto end = status + std::ptrdiff_t(clip->files.size());
        byClip.insert(clip->id, {status, end});
        status = end;
    }
    if (byClip != std::exchange(m_fileStatuses, byClip))
        Q_EMIT fileStatusesChanged();
}

} // namespace vellumry
