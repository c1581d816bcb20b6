// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The text of the search field. Keys that mean a command go to the panel before the text sees them.
TextInput {
    id: input

    required property PanelFacade panel

    function replaceSelection(text: string) {
        remove(selectionStart, selectionEnd);
        insert(cursorPosition, text);
        panel.query = input.text;
    }
    function cutSelection() {
        panel.copyFromField(selectedText);
        replaceSelection("");
    }

    function rubOutWord() {
        if (selectionStart === selectionEnd) {
            const end = cursorPosition;
            // A moved caret begins a new step for undo: the typing before it is another.
            cursorPosition = panel.startOfWordToRubOut(text, end);
            select(cursorPosition, end);
        }
        replaceSelection("");
    }

    verticalAlignment: TextInput.AlignVCenter
    horizontalAlignment: TextInput.AlignLeft
    text: panel.query
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.ground
    font.pixelSize: Theme.fieldSize
    selectByMouse: true
    clip: true
    focus: true
    // Keys are the menu's while one is open, those of an input method too.
    readOnly: panel.menu.isOpen
    renderType: TextInput.NativeRendering
    Accessible.role: Accessible.EditableText
    Accessible.name: Views.words("Search clips")
    Accessible.searchEdit: true

    onTextEdited: panel.query = text
    // The clipboard is ours to ask: the field itself would wait for its owner, and the panel with it.
    Keys.onPressed: event => {
        event.accepted = true;
        if (panel.keyPressed(event.key, event.modifiers, event.nativeScanCode, selectedText.length > 0, event.isAutoRepeat))
            return;
        if (event.matches(StandardKey.Paste))
            panel.pasteIntoField();
        else if (event.matches(StandardKey.Copy))
            panel.copyFromField(selectedText);
        else if (event.matches(StandardKey.Cut))
            cutSelection();
        else if (event.key === Qt.Key_Backspace && event.modifiers === Qt.ControlModifier)
            rubOutWord();
        else
            event.accepted = false;
    }
    Keys.onShortcutOverride: event => {
        event.accepted = true;
    }

    Connections {
        target: input.panel
        function onQueryChanged() {
            if (input.text !== input.panel.query)
                input.text = input.panel.query;
        }
        function onPasted(text: string) {
            input.replaceSelection(text);
        }
        function onFocusTokenChanged() {
            input.forceActiveFocus();
        }
    }
}
