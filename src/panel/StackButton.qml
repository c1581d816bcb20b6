// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// Starts or stops the Paste Stack.
Rectangle {
    id: button

    property bool isOn: false
    readonly property string help: isOn ? Views.words("Stop Paste Stack (⌃⌘S)") : Views.words("Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)")
    readonly property alias isAsking: rest.isAsking
    property alias askingTime: rest.interval
    signal action

    width: Theme.gap + picture.width + Theme.grid + Math.ceil(label.implicitWidth) + Theme.margin
    height: Theme.buttonHeight
    radius: height / 2
    color: isOn ? Theme.selected : area.containsPress ? Theme.capEdge : area.containsMouse ? Theme.tile : "transparent"
    border.width: Theme.thin
    border.color: isOn ? Theme.selected : Theme.line
    Accessible.role: Accessible.Button
    Accessible.name: Views.words("Stack")
    Accessible.description: help
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.onPressAction: action()

    Symbol {
        id: picture
        anchors.left: parent.left
        anchors.leftMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        name: "square.stack.3d.up"
        tint: button.isOn ? Theme.accent : Theme.secondary
        size: Theme.symbolSize
    }
    Label {
        id: label
        anchors.left: picture.right
        anchors.leftMargin: Theme.grid
        anchors.verticalCenter: parent.verticalCenter
        text: Views.words("Stack")
        color: button.isOn ? Theme.accent : Theme.text
        font.weight: Font.Medium
    }
    HoverRest {
        id: rest
        isHovered: area.containsMouse
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: {
            rest.isAsking = false;
            button.action();
        }
    }
}
