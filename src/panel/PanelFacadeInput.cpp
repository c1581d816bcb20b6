// SPDX-License-Identifier: GPL-3.0-or-later

// Keys and pointer: what the views tell of them, and what becomes of it.

#include "foundation/Localisation.h"
#include "history/clips/ClipStore.h"
#include "panel/FieldEditing.h"
#include "panel/KeyTranslation.h"
#include "panel/PanelFacade.h"
#include "panel/RowMenu.h"
#include "paste/Shortcut.h"

#include <QGuiApplication>
#include <utility>

namespace vellumry {

namespace {

bool isMenuKey(int key, Qt::KeyboardModifiers modifiers) {
    return key == Qt::Key_Menu || (key == Qt::Key_F10 && (modifiers & ~Qt::ShiftModifier) == 0);
}

} // namespace

bool PanelFacade::keyPressed(int key, int modifiers, quint32 scanCode, bool hasTextSelection, bool isRepeated) {
    if (m_drag.isActive()) {
        if (key == Qt::Key_Escape)
            m_drag.cancel();
        return true;
    }
    if (m_menu.isOpen()) {
        m_menu.keyPressed(key, Qt::KeyboardModifiers(modifiers));
        return true;
    }
    if (isMenuKey(key, Qt::KeyboardModifiers(modifiers))) {
        askForMenu(key, Qt::KeyboardModifiers(modifiers));
        return true;
    }
    const auto place = [this, scanCode] { return keyCodeOf ? keyCodeOf(scanCode) : std::nullopt; };
    // Where words run from right to left, so do the filters.
    if (QGuiApplication::isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
        key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    const KeyMeaning meaning = meaningOf(key, Qt::KeyboardModifiers(modifiers), query().isEmpty(), place);
    // A command is meant for what was typed before it; a letter has time.
    if (meaning.command || meaning.chord)
        searchTyped();
    if (meaning.command)
        return m_model->handle(*meaning.command);
    // Held down, a key that was rubbing out text would go on with the history.
    if (meaning.chord && isRepeated && (key == Qt::Key_Backspace || key == Qt::Key_Delete))
        return true;
    if (meaning.chord)
        return m_model->keyEquivalent(meaning.chord->keyCode, meaning.chord->modifiers, hasTextSelection);
    return false;
}

int PanelFacade::startOfWordToRubOut(const QString& text, int caret) const {
    return int(vellumry::startOfWordToRubOut(text, caret));
}

void PanelFacade::undoDeletion() {
    m_model->undoDeletion();
}

/// The Menu key and Shift+F10 open the row's menu, F10 alone that of the program.
void PanelFacade::askForMenu(int key, Qt::KeyboardModifiers modifiers) {
    searchTyped();
    if (key == Qt::Key_F10 && modifiers == Qt::NoModifier)
        Q_EMIT statusMenuAsked();
    else
        Q_EMIT rowMenuAsked();
}

void PanelFacade::openRowMenu(int row, QPointF place, bool isByKeys) {
    const ClipRef clip = m_rows.clipAt(row);
    if (!clip)
        return;
    if (m_model->isTransformListOpen())
        m_model->toggleTransforms();
    if (!m_model->isSelected(clip->id)) {
        m_isPointing = true;
        m_model->selectOnly(clip->id);
        m_isPointing = false;
    }
    m_menuClip = clip->id;
    m_menu.open(rowMenu(*m_model, clip), localised("Clip"), place,
                isByKeys ? PanelMenu::Way::byKeys : PanelMenu::Way::byPointer);
}

void PanelFacade::openStatusMenu(QPointF place, bool isByKeys) {
    if (!statusMenu)
        return;
    m_menuClip.reset();
    m_menu.open(statusMenu(), localised("Menu"), place, isByKeys ? PanelMenu::Way::byKeys : PanelMenu::Way::byPointer);
}

/// A menu whose clip has gone would act on nothing.
void PanelFacade::closeStaleMenu() {
    if (m_menuClip && !m_model->store().find(*m_menuClip))
        m_menu.close();
}

void PanelFacade::rowHovered(int row) {
    const ClipRef clip = m_rows.clipAt(row);
    m_model->setHoveredID(clip ? std::optional(clip->id) : std::nullopt);
}

QString PanelFacade::helpOf(int row) const {
    return m_rows.clipAt(row) ? m_rows.data(m_rows.index(row), PanelListModel::PinHintRole).toString() : QString();
}

void PanelFacade::rowPressed(int row, int modifiers, QPointF place) {
    const ClipRef clip = m_rows.clipAt(row);
    m_pressedID = clip ? std::optional(clip->id) : std::nullopt;
    m_collapsesOnRelease = false;
    if (!clip)
        return;
    m_isPointing = true;
    m_collapsesOnRelease = m_model->click(clip->id, modifiersOf(Qt::KeyboardModifiers(modifiers)));
    m_isPointing = false;
    m_rows.setHeld(true);
    m_drag.press(clip->id, place);
}

void PanelFacade::pressMoved(QPointF place) {
    m_drag.move(place);
}

void PanelFacade::pressCancelled() {
    m_drag.cancel();
    m_followsDrag = m_drag.hasStarted();
    m_collapsesOnRelease = false;
    endPress();
}

/// What changed while a finger was down moves now.
void PanelFacade::endPress() {
    if (!m_rows.isHeld())
        return;
    m_rows.setHeld(false);
    tellContent();
}

void PanelFacade::rowReleased() {
    m_drag.release();
    m_followsDrag = m_drag.hasStarted();
    m_collapsesOnRelease = m_collapsesOnRelease && !m_followsDrag;
    collapse();
    endPress();
}

void PanelFacade::collapse() {
    if (!std::exchange(m_collapsesOnRelease, false) || !m_pressedID || m_rows.rowOf(*m_pressedID) < 0)
        return;
    m_isPointing = true;
    m_model->selectOnly(*m_pressedID);
    m_isPointing = false;
}

void PanelFacade::rowDoubleClicked(int modifiers) {
    // With Ctrl or Shift held it is two single clicks, which have done their work.
    if (modifiersOf(Qt::KeyboardModifiers(modifiers)) & (Modifier::command | Modifier::shift))
        return;
    // A press that ended as a drag is not the first half of a double click.
    if (m_followsDrag)
        return;
    m_collapsesOnRelease = false;
    m_drag.cancel();
    if (m_pressedID)
        m_model->pasteRow(*m_pressedID);
}

void PanelFacade::rowActivated(int row) {
    if (const ClipRef clip = m_rows.clipAt(row))
        m_model->pasteRow(clip->id);
}

QString PanelFacade::clipIDOfRow(int row) const {
    const ClipRef clip = m_rows.clipAt(row);
    return clip ? clip->id.toString() : QString();
}

int PanelFacade::rowOfClipID(const QString& id) const {
    return m_rows.rowOf(QUuid::fromString(id));
}

void PanelFacade::requestAccessibility() {
    onRequestAccessibility();
}

void PanelFacade::transformChosen(int index) {
    const ClipRef clip = m_model->currentClip();
    if (!clip || index < 0 || index >= static_cast<int>(PanelModel::transformList.size()))
        return;
    m_model->toggleTransforms();
    m_model->pasteClip(clip, true, PanelModel::transformList[static_cast<std::size_t>(index)]);
}

void PanelFacade::grabbed(QPointF place) {
    onGrabbed(place.toPoint());
}
void PanelFacade::dragged() {
    onDragged();
}
void PanelFacade::dropped() {
    onDropped();
}

} // namespace vellumry
