// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A button of an alert: by pointer, by Return and Space, by assistive technology.
Rectangle {
    id: button

    required property string text
    property bool isPlain: false // stands back behind the other one
    property bool isDangerous: false // takes away what does not come back
    signal pressed
    signal cancelled

    width: Math.max(Theme.buttonWidth, label.implicitWidth + 2 * Theme.alertMargin)
    height: Theme.buttonHeight
    radius: Theme.rowRadius
    color: isPlain ? (area.containsPress ? Theme.edge : Theme.ground) : (area.containsPress ? Theme.pressedButton : Theme.button)
    border.width: isPlain || activeFocus ? (activeFocus ? 2 : 1) : 0
    border.color: activeFocus ? Theme.text : Theme.edge
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: button.pressed()
    Keys.onReturnPressed: button.pressed()
    Keys.onEnterPressed: button.pressed()
    Keys.onSpacePressed: button.pressed()
    Keys.onEscapePressed: button.cancelled()

    Label {
        id: label
        anchors.centerIn: parent
        text: button.text
        color: !button.isPlain ? Theme.buttonText : button.isDangerous ? Theme.danger : Theme.text
        font.pixelSize: Theme.messageSize
        font.weight: Font.Medium
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: button.pressed()
    }
}
