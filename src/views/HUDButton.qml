// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A round button of the stack's bar.
Rectangle {
    id: button

    required property string symbol
    property bool isOn: false
    property string help
    readonly property alias isAsking: rest.isAsking
    property alias askingTime: rest.interval
    signal action

    width: Theme.chipHeight
    height: width
    radius: width / 2
    color: isOn ? Theme.selected : area.containsPress ? Theme.capEdge : area.containsMouse ? Theme.tile : "transparent"
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.onPressAction: action()

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        tint: button.isOn ? Theme.accent : Theme.secondary
        size: Theme.smallSymbolSize
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
