// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// A shortcut that is changed by pressing another one.
Rectangle {
    id: button

    required property string label
    required property ShortcutRecorder recorder
    readonly property string hint: recorder.wasRefused ? Views.words("Hold Ctrl, Alt or Super with the key.") : ""

    // Room for the longer of the two, so that nothing moves.
    width: Math.max(Theme.buttonWidth, words.implicitWidth, asking.advanceWidth) + 2 * Theme.margin
    height: Theme.controlHeight + (refusal.visible ? refusal.height : 0)
    color: "transparent"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.description: recorder.wasRefused ? hint : recorder.title
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: {
        button.forceActiveFocus(Qt.OtherFocusReason);
        button.recorder.toggle();
    }
    onActiveFocusChanged: {
        if (!activeFocus)
            recorder.stop();
    }
    // Before shortcuts of the window see the key.
    Keys.onShortcutOverride: event => event.accepted = recorder.isRecording
    Keys.onPressed: event => {
        event.accepted = true;
        if (recorder.isRecording) {
            if (!event.isAutoRepeat)
                recorder.press(event.key, event.modifiers, event.nativeScanCode);
        } else if (!event.isAutoRepeat && (event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            recorder.toggle();
        } else {
            event.accepted = false;
        }
    }

    TextMetrics {
        id: asking
        font.pixelSize: Theme.formSize
        font.weight: Font.Medium
        text: Views.words("Press new shortcut…")
    }
    Rectangle {
        width: parent.width
        height: Theme.controlHeight
        radius: Theme.rowRadius
        color: button.recorder.isRecording ? Theme.selected : area.containsMouse ? Theme.tile : Theme.cap
        border.width: button.activeFocus ? 2 : Theme.thin
        border.color: button.activeFocus ? Theme.accent : Theme.capEdge

        Label {
            id: words
            anchors.centerIn: parent
            text: button.recorder.title
            color: button.recorder.isRecording ? Theme.accent : Theme.text
            font.pixelSize: Theme.formSize
            font.weight: Font.Medium
        }
    }
    Label {
        id: refusal
        anchors.bottom: parent.bottom
        width: parent.width
        visible: button.hint !== ""
        text: button.hint
        color: Theme.warning
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: {
            button.forceActiveFocus(Qt.MouseFocusReason);
            button.recorder.toggle();
        }
    }
}
