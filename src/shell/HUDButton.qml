// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Vellumry.Panel

// A round button of the stack's bar.
Rectangle {
    id: button

    required property string symbol
    property bool isOn: false
    property string help
    readonly property bool isHovered: area.containsMouse
    signal action

    width: 26
    height: 26
    radius: 13
    color: isOn ? Look.selected : area.containsPress ? Look.capEdge : area.containsMouse ? Look.tile : "transparent"
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.onPressAction: action()

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        tint: button.isOn ? Look.accent : Look.secondary
        size: 15
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.action()
    }
}
