// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// Starts or stops the Paste Stack.
Rectangle {
    id: button

    property bool isOn: false
    readonly property string help: isOn ? views.words("Stop Paste Stack (⌃⌘S)") : views.words("Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)")
    readonly property alias isAsking: rest.isAsking
    property alias askingTime: rest.interval
    signal action

    width: 10 + picture.width + 6 + Math.ceil(label.implicitWidth) + 12
    height: 28
    radius: 14
    color: isOn ? Look.selected : area.containsPress ? Look.capEdge : area.containsMouse ? Look.tile : "transparent"
    border.width: 1
    border.color: isOn ? Look.selected : Look.line
    Accessible.role: Accessible.Button
    Accessible.name: views.words("Stack")
    Accessible.description: help
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.onPressAction: action()

    Symbol {
        id: picture
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "square.stack.3d.up"
        tint: button.isOn ? Look.accent : Look.secondary
        size: 16
    }
    Text {
        id: label
        anchors.left: picture.right
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        text: views.words("Stack")
        color: button.isOn ? Look.accent : Look.text
        font.pixelSize: Look.smallSize
        font.weight: Font.Medium
        renderType: Text.NativeRendering
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
