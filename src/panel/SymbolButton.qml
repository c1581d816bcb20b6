// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A button that is only a symbol.
Rectangle {
    id: button

    required property string symbol
    required property string help
    readonly property alias isAsking: rest.isAsking
    signal pressed

    width: Theme.buttonHeight
    height: Theme.buttonHeight
    radius: Theme.rowRadius
    color: area.containsPress ? Theme.capEdge : area.containsMouse ? Theme.tile : Theme.cap
    border.width: Theme.thin
    border.color: Theme.capEdge
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.onPressAction: button.pressed()

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        tint: Theme.text
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
            button.pressed();
        }
    }
}
