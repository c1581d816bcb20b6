// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelActions.h"
#include "panel/PanelSections.h"
#include "panel/PanelSelection.h"
#include "platform/display/KeyCode.h"
#include "platform/display/Modifiers.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QUuid>
#include <array>
#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// What the panel shows and what its keys do: binds the sections of the list, the selection and the actions on clips.
/// The views read it and decide nothing.
///
/// Main thread. Actions that wait (paste, copy, pin, delete, merge) run on by themselves; they survive the panel being
/// closed, and end quietly when the model goes. Closures must not delete the model.
class PanelModel : public QObject {
    Q_OBJECT

public:
    using Section = PanelSections::Section;
    using MergeAction = PanelActions::MergeAction;
    using FileStatuses = vellumry::FileStatuses;

    enum class Command : quint8 {
        enter,
        enterPlain,
        up,
        down,
        home,
        end,
        pageUp,
        pageDown,
        extendUp,
        extendDown,
        escape,
        nextFilter,
        previousFilter
    };

    /// The rows of the transform list, from the top.
    static constexpr std::array transformList{TextTransform::lowercase,      TextTransform::uppercase,
                                              TextTransform::titleCase,      TextTransform::sentenceCase,
                                              TextTransform::trimWhitespace, TextTransform::removeLineBreaks};

    /// `store` and `paster` must outlive the model.
    PanelModel(ClipStore& store, PasteEngine& paster, PanelModelCalendar calendar = {}, QObject* parent = nullptr);

    [[nodiscard]] ClipStore& store() const { return m_store; }

    // The list. References stay good until the next call that changes the model or the store.

    /// The visible clips in their sections; a second read without a change computes nothing. No section is empty.
    [[nodiscard]] const std::vector<Section>& sections() const { return m_sections.sections(); }
    /// The clips of all sections in display order.
    [[nodiscard]] const std::vector<ClipRef>& visibleClips() const { return m_sections.clips(); }
    /// Both, for a reader that keeps them.
    [[nodiscard]] const PanelSections::Listing& listing() const { return m_sections.listing(); }
    /// Clip id to the digit, 1 to 9, that pastes it from the open panel.
    [[nodiscard]] QHash<QUuid, int> rowNumbers() const { return m_sections.rowNumbers(fileStatuses()); }
    /// Clip id to the digit of its pinned hot key.
    [[nodiscard]] QHash<QUuid, int> pinNumbers() const { return m_sections.pinNumbers(m_availablePinnedNumbers); }
    [[nodiscard]] qsizetype count(ClipFilter filter) const { return m_sections.count(filter); }
    /// An excerpt of an image's text around the hit, where the query was found there and not in the title.
    [[nodiscard]] std::optional<QString> imageMatch(const Clip& clip) const;

    // The selection: one primary row, and a set that is empty or holds at least two.

    [[nodiscard]] std::optional<QUuid> selectedID() const { return m_selection.primary(); }
    [[nodiscard]] const QSet<QUuid>& selectedIDs() const { return m_selection.several(); }
    [[nodiscard]] std::optional<QUuid> anchorID() const { return m_selection.anchor(); }
    /// Null without one, and when it is not visible.
    [[nodiscard]] ClipRef currentClip() const;
    /// In display order; what is not visible is left out.
    [[nodiscard]] std::vector<ClipRef> selectedClips() const { return m_selection.clipsOf(rows()); }
    [[nodiscard]] bool isSelected(const QUuid& id) const { return m_selection.contains(id); }
    [[nodiscard]] int selectedCount() const { return m_selection.count(); }
    /// Index of the primary row in `visibleClips`, -1 when it is not there.
    [[nodiscard]] int selectedIndex() const { return int(rows().indexOf(selectedID())); }

    /// Called before each show: everything back to its start, the newest unpinned clip selected.
    void prepareForShow();
    /// The user typed: takes `text` over and selects the first match. Does nothing for the text it has already.
    void searchTextEdited(const QString& text);
    void resetSelection();
    /// A press on a row. True when a selection of several is to collapse to `id` once the button is released.
    bool click(const QUuid& id, Modifiers modifiers);
    void move(int offset);
    void extend(int delta);
    void toggleSelection(const QUuid& id);
    void extendSelection(const QUuid& id);
    void selectOnly(const QUuid& id) { select(id); }
    void cycleFilter(int delta);

    // Keys and actions.

    /// True when the command was handled.
    bool handle(Command command);
    /// A key with Command (Ctrl) held. `hasTextSelection`: part of the search text is
    /// selected. False leaves the key to the search field.
    bool keyEquivalent(KeyCode keyCode, Modifiers modifiers, bool hasTextSelection);
    /// Closes the panel, then pastes. `isPlain` false means the user's default.
    void pasteClip(const ClipRef& clip, bool isPlain, std::optional<TextTransform> transform = std::nullopt) {
        m_actions.paste(clip, isPlain, transform);
    }
    /// For the row under a double click; an unknown id does nothing.
    void pasteRow(const QUuid& id);
    void pastePinned(int number) { m_actions.pastePinned(number); }
    void copyClip(const ClipRef& clip) { m_actions.copy(clip); }
    /// Pins the selected clips, or unpins them when all are pinned.
    void togglePin();
    /// For some seconds, while the panel is shown, `undoDeletion` brings the clips back; not sensitive ones, nor more
    /// than fits in memory.
    void deleteSelected();
    /// Brings the clips of the last deletion back, with their pins and places, and selects them. False without one.
    bool undoDeletion();
    /// How many clips that would bring back; 0 for none.
    [[nodiscard]] int undoCount() const;
    /// How long a deletion can be undone; 8 seconds at first.
    void setUndoTime(std::chrono::milliseconds time) { m_actions.undo().setTime(time); }
    void merge(MergeAction action);
    void toggleTransforms();
    /// Pastes the names of a clip's files, one a line.
    void pasteFileNames(const ClipRef& clip) { m_actions.pasteFileNames(clip); }
    /// Pastes the words read in a picture, or in a clip of picture files; does nothing without any.
    void pasteTextInImage(const ClipRef& clip) { m_actions.pasteTextInImage(clip); }
    /// Closes the panel and opens the address of a link with the user's program for it.
    void openLink(const ClipRef& clip);
    /// Closes the panel and shows the files that still exist in the file manager.
    void showFiles(const ClipRef& clip);
    /// Hands the selected clips, oldest copy first, to the Paste Stack.
    void pasteSelectedOneByOne() { onToggleStack(selectedClipsInCopyOrder()); }
    void addSelectedToStack() { onAddToStack(selectedClipsInCopyOrder()); }
    /// The selected clips by their last use, oldest first.
    [[nodiscard]] std::vector<ClipRef> selectedClipsInCopyOrder() const;
    /// What a Paste Stack begins with when no clips are named: several selected clips, or nothing.
    [[nodiscard]] std::vector<ClipRef> stackSeed() const;

    // Observed fields.

    [[nodiscard]] const QString& query() const { return m_sections.query(); }
    void setQuery(const QString& query);
    [[nodiscard]] ClipFilter filter() const { return m_sections.filter(); }
    /// Resets the selection when it really changes.
    void setFilter(ClipFilter filter);
    [[nodiscard]] std::optional<QUuid> hoveredID() const { return m_hoveredID; }
    void setHoveredID(std::optional<QUuid> id);
    /// Grows to send the keyboard back to the search field.
    [[nodiscard]] int focusToken() const { return m_focusToken; }
    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    void setPresented(bool value);
    /// We may press keys in other applications; read at each show.
    [[nodiscard]] bool hasAccessibility() const { return m_hasAccessibility; }
    [[nodiscard]] const FileStatuses& fileStatuses() const { return m_actions.fileStatuses(); }
    [[nodiscard]] std::optional<QUuid> transformClipID() const { return m_transformClipID; }
    [[nodiscard]] bool isTransformListOpen() const;
    [[nodiscard]] int transformIndex() const { return m_transformIndex; }
    [[nodiscard]] const QSet<int>& availablePinnedNumbers() const { return m_availablePinnedNumbers; }
    void setAvailablePinnedNumbers(const QSet<int>& numbers);

    /// The filter's place in `allClipFilters`. Setting one that is none does nothing.
    [[nodiscard]] int filterIndex() const { return int(filter()); }
    void setFilterIndex(int index);

    std::function<void()> onClose = [] {};
    std::function<void(const ToastMessage&)> onToast = [](const ToastMessage&) {};
    std::function<void(const std::vector<ClipRef>&)> onToggleStack = [](const std::vector<ClipRef>&) {};
    std::function<void(const std::vector<ClipRef>&)> onAddToStack = [](const std::vector<ClipRef>&) {};
    std::function<void(const QString& address)> onOpenLink = [](const QString&) {};
    std::function<void(const QStringList& paths)> onShowFiles = [](const QStringList&) {};

Q_SIGNALS:
    /// `sections`, and with it everything that is told from it, may differ.
    void sectionsChanged();
    void queryChanged();
    void filterChanged();
    void selectionChanged();
    void hoveredIDChanged();
    void focusTokenChanged();
    void isPresentedChanged();
    void hasAccessibilityChanged();
    void fileStatusesChanged();
    void transformChanged();
    void availablePinnedNumbersChanged();
    void undoChanged();

private:
    [[nodiscard]] PanelRows rows() const { return m_sections.rows(); }
    void setSelection(PanelSelection selection);
    void select(std::optional<QUuid> id) { setSelection(PanelSelection(id)); }
    void selectAll(const QSet<QUuid>& ids);
    void followStore();
    void closeTransformList();
    void setTransform(std::optional<QUuid> clipID, int index);
    bool handleInTransformList(Command command);
    void handleEnter(bool isPlain);
    void handleEscape();
    void copySelected();

    ClipStore& m_store;
    PasteEngine& m_paster;
    PanelSections m_sections;
    PanelSelection m_selection;
    PanelActions m_actions;
    quint64 m_edits = 0; ///< of the search field
    std::optional<QUuid> m_hoveredID;
    int m_focusToken = 0;
    bool m_isPresented = false;
    bool m_hasAccessibility = false;
    std::optional<QUuid> m_transformClipID;
    int m_transformIndex = 0;
    QSet<int> m_availablePinnedNumbers{1, 2, 3, 4, 5, 6, 7, 8, 9};
};

} // namespace vellumry
