// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "history/clips/Clip.h"
#include "history/clips/TextTransform.h"
#include "panel/DeletionUndo.h"
#include "panel/PanelSections.h"
#include "paste/ToastMessage.h"

#include <QCoroTask>
#include <QObject>
#include <QSet>
#include <QUuid>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

class ClipStore;
class PasteEngine;

/// What the panel does with clips. Everything that waits (paste, copy, pin, delete, merge) runs on by itself, tells its
/// outcome as a toast, and ends quietly when this goes. Main thread. Closures must not delete this.
class PanelActions : public QObject {
    Q_OBJECT

public:
    /// What follows a merge.
    enum class MergeAction : quint8 { stay, paste, copy };

    /// `store` and `paster` must outlive this.
    PanelActions(ClipStore& store, PasteEngine& paster, Clock now);

    /// Closes the panel, then pastes. `isPlain` false means the user's default. A picture's plain form are its words.
    void paste(const ClipRef& clip, bool isPlain, std::optional<TextTransform> transform = std::nullopt);
    /// The pinned clip of that number, from 1 on; a toast without one.
    void pastePinned(int number);
    /// The names of a clip's files, one a line.
    void pasteFileNames(const ClipRef& clip);
    /// Does nothing without words in the picture.
    void pasteTextInImage(const ClipRef& clip);
    void copy(const ClipRef& clip);
    /// Pins them in their order, or unpins them when all are pinned.
    void togglePin(std::vector<ClipRef> clips);
    /// With `canUndo` they can be brought back for a while; not sensitive ones, nor more than fits in memory. `edits`
    /// of the search field have been made.
    void remove(const std::vector<ClipRef>& doomed, bool canUndo, quint64 edits);
    [[nodiscard]] DeletionUndo& undo() { return m_undo; }
    [[nodiscard]] const DeletionUndo& undo() const { return m_undo; }
    /// Makes one clip of several, in their order; pictures cannot be merged.
    void merge(std::vector<ClipRef> clips, MergeAction action);

    /// Looks whether the files of the history's clips are still there; the last call's answer counts.
    QCoro::Task<void> refreshFileStatuses();
    [[nodiscard]] const FileStatuses& fileStatuses() const { return m_fileStatuses; }

    std::function<void()> onClose = [] {};
    std::function<void(const ToastMessage&)> onToast = [](const ToastMessage&) {};
    /// The clip that a merge made, before what follows it.
    std::function<void(const ClipRef&)> onMerged = [](const ClipRef&) {};

Q_SIGNALS:
    void fileStatusesChanged();

private:
    void showToast(const std::optional<ToastMessage>& message);
    QCoro::Task<void> runPaste(ClipRef clip, std::optional<bool> isPlain, std::optional<TextTransform> transform);
    QCoro::Task<void> runPasteText(QString text);
    QCoro::Task<void> runCopy(ClipRef clip);
    QCoro::Task<void> runPin(std::vector<ClipRef> clips, bool isPinned);
    QCoro::Task<void> runDelete(QSet<QUuid> ids);
    QCoro::Task<void> runTakeOut(QSet<QUuid> ids, quint64 edits);
    QCoro::Task<void> runMerge(std::vector<ClipRef> clips, MergeAction action);
    QCoro::Task<ClipRef> addMerged(std::vector<ClipRef> clips);

    ClipStore& m_store;
    PasteEngine& m_paster;
    Clock m_now;
    DeletionUndo m_undo;
    FileStatuses m_fileStatuses;
    quint64 m_statusRefresh = 0; ///< grows with each refresh; an older one finds out that it is no longer wanted
};

} // namespace vellumry
