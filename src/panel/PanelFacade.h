// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/FieldPasteboard.h"
#include "panel/FilterListModel.h"
#include "panel/HintListModel.h"
#include "panel/PanelDrag.h"
#include "panel/PanelListModel.h"
#include "panel/PanelMenu.h"
#include "panel/PanelModel.h"
#include "platform/desktop/ActionMenuItem.h"

#include <QCoroTask>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <optional>
#include <qqmlregistration.h>

namespace vellumry {

class PasteStack;

/// What the panel's QML sees: the model in words and rows, and the raw input handed back to it. Main thread.
class PanelFacade : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the panel's controller")
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(bool hasQuery READ hasQuery NOTIFY queryChanged)
    Q_PROPERTY(int filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QAbstractItemModel* filters READ filters CONSTANT)
    Q_PROPERTY(bool hasRows READ hasRows NOTIFY contentChanged)
    Q_PROPERTY(QStringList emptyLines READ emptyLines NOTIFY contentChanged)
    Q_PROPERTY(QString countText READ countText NOTIFY countTextChanged)
    Q_PROPERTY(QAbstractItemModel* hints READ hints CONSTANT)
    Q_PROPERTY(int primaryRow READ primaryRow NOTIFY primaryRowChanged)
    Q_PROPERTY(bool hasAccessibility READ hasAccessibility NOTIFY hasAccessibilityChanged)
    Q_PROPERTY(int focusToken READ focusToken NOTIFY focusTokenChanged)
    Q_PROPERTY(bool isTransformListOpen READ isTransformListOpen NOTIFY transformChanged)
    Q_PROPERTY(int transformIndex READ transformIndex NOTIFY transformChanged)
    Q_PROPERTY(QStringList transforms READ transforms CONSTANT)
    Q_PROPERTY(bool isStackActive READ isStackActive NOTIFY stackChanged)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY undoChanged)
    Q_PROPERTY(vellumry::PanelMenu* menu READ menu CONSTANT)
    Q_PROPERTY(bool hasStatusMenu READ hasStatusMenu CONSTANT)
    Q_PROPERTY(int shadowMargin READ shadowMargin NOTIFY shadowMarginChanged)

public:
    /// `openPanelKeys` answers the words for the shortcut that opens the panel.
    PanelFacade(PanelModel& model, Pasteboard& pasteboard, std::function<QString()> openPanelKeys);

    /// True when the key was the panel's. `scanCode`: the native one; `isRepeated`: it is held down.
    Q_INVOKABLE bool keyPressed(int key, int modifiers, quint32 scanCode, bool hasTextSelection, bool isRepeated);
    /// Where the word before the caret begins, the blanks before it included.
    Q_INVOKABLE [[nodiscard]] int startOfWordToRubOut(const QString& text, int caret) const;
    Q_INVOKABLE void undoDeletion();
    /// Asks for what was copied; `pasted` tells it, now or later, or never.
    Q_INVOKABLE void pasteIntoField();
    Q_INVOKABLE void copyFromField(const QString& text);
    /// The pointer lies on that row; -1 on none.
    Q_INVOKABLE void rowHovered(int row);
    /// What is told of that row where the pointer rests on it; may be empty.
    Q_INVOKABLE [[nodiscard]] QString helpOf(int row) const;
    /// A button went down on that row, and up again. What follows is about the clip that was pressed, whatever moved to
    /// its place meanwhile.
    /// Pressed, what the row stands for can be dragged. `place` counts in the view.
    Q_INVOKABLE void rowPressed(int row, int modifiers, QPointF place);
    Q_INVOKABLE void pressMoved(QPointF place);
    Q_INVOKABLE void rowReleased();
    /// The press was taken away.
    Q_INVOKABLE void pressCancelled();
    Q_INVOKABLE void rowDoubleClicked(int modifiers);
    /// Pastes that row: the press action of assistive technology.
    Q_INVOKABLE void rowActivated(int row);
    /// The identity of that row's clip, empty for none; and the way back, -1 for a clip that is not listed.
    Q_INVOKABLE [[nodiscard]] QString clipIDOfRow(int row) const;
    Q_INVOKABLE [[nodiscard]] int rowOfClipID(const QString& id) const;
    /// Opens the menu of that row, which becomes the chosen one unless it is one of several. `place` counts in the
    /// view.
    Q_INVOKABLE void openRowMenu(int row, QPointF place, bool isByKeys);
    /// Opens the menu of the program.
    Q_INVOKABLE void openStatusMenu(QPointF place, bool isByKeys);
    /// Asks the desktop to let us press keys in other applications.
    Q_INVOKABLE void requestAccessibility();
    Q_INVOKABLE void transformChosen(int index);
    /// Starts the Paste Stack, or stops it when it runs.
    Q_INVOKABLE void toggleStack();
    /// The pointer took hold of an empty part at `place` of the desktop.
    Q_INVOKABLE void grabbed(QPointF place);
    Q_INVOKABLE void dragged();
    Q_INVOKABLE void dropped();

    [[nodiscard]] QAbstractItemModel* rows() { return &m_rows; }
    [[nodiscard]] QString query() const { return m_typed.value_or(m_model->query()); }
    /// The search is made once for all keys that are waiting, so that typing faster than it never queues up searches.
    void setQuery(const QString& text);
    [[nodiscard]] bool hasQuery() const;
    [[nodiscard]] int filter() const { return m_model->filterIndex(); }
    void setFilter(int filter);
    [[nodiscard]] QAbstractItemModel* filters() { return &m_filters; }
    [[nodiscard]] bool hasRows() const { return m_rows.rowCount() > 0; }
    [[nodiscard]] QStringList emptyLines() const;
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QAbstractItemModel* hints() { return &m_hints; }
    [[nodiscard]] int primaryRow() const { return m_rows.primaryRow(); }
    [[nodiscard]] bool hasAccessibility() const { return m_model->hasAccessibility(); }
    [[nodiscard]] int focusToken() const { return m_model->focusToken(); }
    [[nodiscard]] bool isTransformListOpen() const { return m_model->isTransformListOpen(); }
    [[nodiscard]] int transformIndex() const { return m_model->transformIndex(); }
    [[nodiscard]] QStringList transforms() const;
    [[nodiscard]] bool isStackActive() const;
    /// The stack that the panel's button stands for; it need not outlive this.
    void setStack(PasteStack& stack);
    [[nodiscard]] bool canUndo() const { return m_model->undoCount() > 0; }
    [[nodiscard]] PanelDrag& drag() { return m_drag; }
    [[nodiscard]] PanelMenu* menu() { return &m_menu; }
    [[nodiscard]] bool hasStatusMenu() const { return bool(statusMenu); }
    [[nodiscard]] int shadowMargin() const { return m_shadowMargin; }
    void setShadowMargin(int shadowMargin);

    /// The user wants no motion.
    void setStill(bool isStill) { m_isStill = isStill; }
    /// To be called when the panel comes up.
    void present();
    /// While the panel is hidden its rows follow nothing, so that a copy costs nothing here; what was deleted they let
    /// go of shortly after. Waking up is at once up to date.
    void setDormant(bool isDormant);

    /// The virtual key code of the key with that native scan code.
    std::function<std::optional<KeyCode>(quint32 scanCode)> keyCodeOf;
    /// The menu of the program, as it is when it is asked for; unset where the panel offers none.
    std::function<std::vector<ActionMenuItem>()> statusMenu;
    std::function<void()> onRequestAccessibility = [] {};
    /// The pointer took hold of an empty part, moved, let go.
    std::function<void(QPoint place)> onGrabbed = [](QPoint) {};
    std::function<void()> onDragged = [] {};
    std::function<void()> onDropped = [] {};

Q_SIGNALS:
    void queryChanged();
    void filterChanged();
    void contentChanged();
    void primaryRowChanged();
    void countTextChanged();
    void hasAccessibilityChanged();
    /// Rows above that one are gone, as many of clips and headers, and it has moved up to their place.
    void gapClosed(int row, int clips, int headers);
    /// The chosen row is to come into sight.
    void revealed();
    void focusTokenChanged();
    /// A key asks for the menu of the chosen row, or for that of the program; the views know the place.
    void rowMenuAsked();
    void statusMenuAsked();
    void transformChanged();
    void stackChanged();
    void undoChanged();
    void shadowMarginChanged();
    void presented();
    /// What is to take the place of the field's selection.
    void pasted(const QString& text);

private:
    void searchTyped();
    void askForMenu(int key, Qt::KeyboardModifiers modifiers);
    void closeStaleMenu();
    void tellHints();
    void catchUp();
    void tellContent();
    void tellSelection();
    void endPress();
    void collapse();

    QCoro::Task<void> fetchPasted(int showing);

    PanelModel* m_model;
    FieldPasteboard m_pasteboard;
    std::function<QString()> m_openPanelKeys;
    PanelListModel m_rows;
    FilterListModel m_filters;
    HintListModel m_hints;
    PanelMenu m_menu;
    PanelDrag m_drag;
    bool m_isStill = false;
    bool m_followsDrag = false;      ///< the last press that is over became a drag
    std::optional<QUuid> m_menuClip; ///< that the open menu is about
    QTimer m_catchUp;
    QPointer<PasteStack> m_stack;
    std::optional<QString> m_typed; ///< and not yet searched for
    int m_shadowMargin = 0;
    std::optional<QUuid> m_pressedID; ///< of the row that the button went down on last
    bool m_collapsesOnRelease = false;
    bool m_isPointing = false; ///< the selection changes by a press: what lies under the pointer must not move
    int m_showing = 0;
    int m_fetchedFor = -1; ///< the showing that waits for what was copied
};

} // namespace vellumry
