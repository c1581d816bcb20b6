// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// Where the user types. Keys that mean a command go to the panel before the text sees them.
Item {
    id: field

    required property var panel
    property alias input: input

    height: 28

    TextInput {
        id: input
        anchors.fill: parent
        verticalAlignment: TextInput.AlignVCenter
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
        Keys.onPressed: event => {
            event.accepted = field.panel.keyPressed(event.key, event.modifiers, input.selectedText.length > 0);
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
            function onFocusTokenChanged() {
                input.forceActiveFocus();
            }
        }
    }
    Text {
        anchors.fill: parent
        verticalAlignment: Text.AlignVCenter
        visible: input.text === "" && input.preeditText === ""
        text: field.panel.words("Search clips")
        color: Look.secondary
        font.pixelSize: Look.fieldSize
        renderType: Text.NativeRendering
    }
}
