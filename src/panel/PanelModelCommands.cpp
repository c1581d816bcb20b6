// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "panel/PanelModel.h"
#include "paste/Shortcut.h"

#include <algorithm>

namespace vellumry {

namespace {

constexpr int pageRows = 8;
constexpr int lastTransform = int(PanelModel::transformList.size()) - 1;

/// How many rows a command moves the selection; 0 for one that does not.
int moveOffset(PanelModel::Command command) {
    switch (command) {
    case PanelModel::Command::up:
        return -1;
    case PanelModel::Command::down:
        return 1;
    case PanelModel::Command::pageUp:
        return -pageRows;
    case PanelModel::Command::pageDown:
        return pageRows;
    default:
        return 0;
    }
}

} // namespace

bool PanelModel::isTransformListOpen() const {
    return m_transformClipID && m_transformClipID == selectedID() && !m_selection.isSeveral();
}

void PanelModel::setTransform(std::optional<QUuid> clipID, int index) {
    if (clipID == m_transformClipID && index == m_transformIndex)
        return;
    m_transformClipID = clipID;
    m_transformIndex = index;
    Q_EMIT transformChanged();
}

void PanelModel::closeTransformList() {
    setTransform(std::nullopt, m_transformIndex);
}

void PanelModel::toggleTransforms() {
    if (isTransformListOpen()) {
        closeTransformList();
        return;
    }
    const auto clip = m_selection.isSeveral() ? nullptr : currentClip();
    if (!clip)
        return;
    if (clip->canBeTransformed())
        setTransform(clip->id, 0);
    else
        onToast({QStringLiteral("textformat"), localised("Transforms work on text clips"), ToastMessage::Tone::info});
}

bool PanelModel::handle(Command command) {
    if (isTransformListOpen() && handleInTransformList(command))
        return true;
    if (const int offset = moveOffset(command)) {
        move(offset);
        return true;
    }
    switch (command) {
    case Command::enter:
    case Command::enterPlain:
        handleEnter(command == Command::enterPlain);
        break;
    case Command::home:
        if (const auto id = rows().first())
            select(id);
        break;
    case Command::end:
        if (const auto id = rows().last())
            select(id);
        break;
    case Command::extendUp:
        extend(-1);
        break;
    case Command::extendDown:
        extend(1);
        break;
    case Command::escape:
        handleEscape();
        break;
    case Command::nextFilter:
        cycleFilter(1);
        break;
    case Command::previousFilter:
        cycleFilter(-1);
        break;
    case Command::up:
    case Command::down:
    case Command::pageUp:
    case Command::pageDown:
        break; // moved above
    }
    return true;
}

bool PanelModel::handleInTransformList(Command command) {
    switch (command) {
    case Command::up:
        setTransform(m_transformClipID, std::max(m_transformIndex - 1, 0));
        return true;
    case Command::down:
        setTransform(m_transformClipID, std::min(m_transformIndex + 1, lastTransform));
        return true;
    case Command::home:
    case Command::pageUp:
        setTransform(m_transformClipID, 0);
        return true;
    case Command::end:
    case Command::pageDown:
        setTransform(m_transformClipID, lastTransform);
        return true;
    case Command::escape:
        closeTransformList();
        return true;
    case Command::enter:
    case Command::enterPlain: {
        const auto clip = currentClip();
        closeTransformList();
        if (clip)
            pasteClip(clip, true, transformList[std::size_t(m_transformIndex)]);
        return true;
    }
    case Command::extendUp:
    case Command::extendDown:
    case Command::nextFilter:
    case Command::previousFilter:
        break;
    }
    return false;
}

void PanelModel::handleEnter(bool isPlain) {
    if (m_selection.isSeveral())
        merge(MergeAction::paste);
    else if (const auto clip = currentClip())
        pasteClip(clip, isPlain);
}

void PanelModel::handleEscape() {
    if (m_selection.isSeveral()) {
        select(selectedID());
    } else if (text::isBlank(query())) {
        onClose();
    } else {
        setQuery({});
        resetSelection();
    }
}

bool PanelModel::keyEquivalent(KeyCode keyCode, Modifiers modifiers, bool hasTextSelection) {
    if (modifiers != Modifier::command)
        return false;

    if (const auto number = digitOfKeyCode(keyCode)) {
        // A digit without a clip is swallowed as well: it must not reach the search field.
        const auto numbers = rowNumbers();
        const auto id = numbers.key(*number);
        pasteRow(id);
        return true;
    }
    switch (keyCode) {
    case KeyCode::backspace:
    case KeyCode::forwardDelete:
        deleteSelected();
        return true;
    case KeyCode::z: {
        // What was typed since is what the user means to undo.
        const auto last = m_actions.undo().last();
        return last && last->edits == m_edits && undoDeletion();
    }
    case KeyCode::p:
        togglePin();
        return true;
    case KeyCode::m:
        merge(MergeAction::stay);
        return true;
    case KeyCode::q:
    case KeyCode::w:
        onClose();
        return true;
    case KeyCode::c:
        if (hasTextSelection)
            return false;
        copySelected();
        return true;
    case KeyCode::t:
        toggleTransforms();
        return true;
    default:
        return false;
    }
}

void PanelModel::copySelected() {
    if (m_selection.isSeveral()) {
        merge(MergeAction::copy);
    } else if (const auto clip = currentClip()) {
        onClose();
        copyClip(clip);
    }
}

} // namespace vellumry
