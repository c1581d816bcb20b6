// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// One line to type in. The clipboard is asked for by our own means: the field itself would wait for its owner.
Rectangle {
    id: field

    required property string label
    property string placeholder
    property alias text: input.text
    property int textSize: Theme.formSize
    signal edited
    signal accepted

    function takeFocus(): void {
        input.forceActiveFocus();
    }

    width: Theme.controlWidth
    height: Math.max(Theme.controlHeight, input.implicitHeight + Theme.margin)
    radius: Theme.rowRadius
    color: Theme.ground
    border.width: input.activeFocus ? 2 : Theme.thin
    border.color: input.activeFocus ? Theme.accent : Theme.thumb

    TextInput {
        id: input
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        verticalAlignment: TextInput.AlignVCenter
        horizontalAlignment: TextInput.AlignLeft
        color: Theme.text
        selectionColor: Theme.accent
        selectedTextColor: Theme.ground
        font.pixelSize: field.textSize
        renderType: TextInput.NativeRendering
        selectByMouse: true
        clip: true
        activeFocusOnTab: true
        Accessible.role: Accessible.EditableText
        Accessible.name: field.label
        Accessible.description: field.placeholder
        onTextChanged: field.edited()
        onAccepted: field.accepted()
        Keys.onPressed: event => {
            event.accepted = true;
            if (event.matches(StandardKey.Paste) || (event.key === Qt.Key_Insert && event.modifiers === Qt.ShiftModifier))
                Views.pasteInto(field);
            else if (event.matches(StandardKey.Copy))
                Views.copy(selectedText);
            else if (event.matches(StandardKey.Cut)) {
                Views.copy(selectedText);
                remove(selectionStart, selectionEnd);
            } else
                event.accepted = false;
        }
    }
    Label {
        anchors.fill: input
        verticalAlignment: Text.AlignVCenter
        visible: input.text === "" && input.preeditText === ""
        text: field.placeholder
        color: Theme.secondary
        font.pixelSize: field.textSize
    }
    Connections {
        target: Views
        function onPasted(into: Item, text: string) {
            if (into !== field)
                return;
            input.remove(input.selectionStart, input.selectionEnd);
            input.insert(input.cursorPosition, text);
        }
    }
}
