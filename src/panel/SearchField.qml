// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// Where the user types. Keys that mean a command go to the panel before the text sees them.
Item {
    id: field

    required property var panel
    readonly property TextInput input: holder.item as TextInput

    function replaceSelection(text: string) {
        input.remove(input.selectionStart, input.selectionEnd);
        input.insert(input.cursorPosition, text);
        panel.query = input.text;
    }
    function cut() {
        panel.copyFromField(input.selectedText);
        replaceSelection("");
    }

    height: 28
    Window.onVisibilityChanged: {
        if (field.Window.visibility === Window.Hidden)
            renewal.start();
    }

    // What can be undone would keep what was typed or pasted, even when the text has been cleared: each showing has a field
    // of its own. Not while the old one handles the key that closes the panel.
    Timer {
        id: renewal
        interval: 0
        onTriggered: {
            holder.active = false;
            holder.active = true;
        }
    }
    Loader {
        id: holder
        anchors.fill: parent
        focus: true
        sourceComponent: fieldInput
    }
    Component {
        id: fieldInput

        TextInput {
            id: input
            verticalAlignment: TextInput.AlignVCenter
            horizontalAlignment: TextInput.AlignLeft
            text: field.panel.query
            color: Look.text
            selectionColor: Look.accent
            selectedTextColor: Look.ground
            font.pixelSize: Look.fieldSize
            selectByMouse: true
            clip: true
            focus: true
            renderType: Text.NativeRendering
            Accessible.role: Accessible.EditableText
            Accessible.name: field.panel.words("Search clips")
            Accessible.searchEdit: true

            onTextEdited: field.panel.query = text
            // The clipboard is ours to ask: the field itself would wait for its owner, and the panel with it.
            Keys.onPressed: event => {
                event.accepted = true;
                if (field.panel.keyPressed(event.key, event.modifiers, event.nativeScanCode, input.selectedText.length > 0))
                    return;
                if (event.matches(StandardKey.Paste))
                    field.panel.pasteIntoField();
                else if (event.matches(StandardKey.Copy))
                    field.panel.copyFromField(input.selectedText);
                else if (event.matches(StandardKey.Cut))
                    field.cut();
                else
                    event.accepted = false;
            }
            Keys.onShortcutOverride: event => {
                event.accepted = true;
            }

            Connections {
                target: field.panel
                function onQueryChanged() {
                    if (input.text !== field.panel.query)
                        input.text = field.panel.query;
                }
                function onPasted(text: string) {
                    field.replaceSelection(text);
                }
                function onFocusTokenChanged() {
                    input.forceActiveFocus();
                }
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.MiddleButton
        cursorShape: Qt.IBeamCursor
        onClicked: field.panel.pasteIntoField()
    }
    Text {
        anchors.fill: parent
        anchors.leftMargin: 2
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        visible: field.input !== null && field.input.text === "" && field.input.preeditText === ""
        text: field.panel.words("Search clips")
        color: Look.secondary
        font.pixelSize: Look.fieldSize
        renderType: Text.NativeRendering
    }
}
