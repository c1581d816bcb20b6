// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A small button that shows a symbol and says what it does.
Rectangle {
    id: button

    required property string symbol
    required property string help
    signal pressed

    width: Theme.controlHeight
    height: width
    radius: width / 2
    color: area.containsPress ? Theme.capEdge : area.containsMouse ? Theme.tile : "transparent"
    border.width: activeFocus ? 2 : 0
    border.color: Theme.accent
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: button.pressed()
    Keys.onReturnPressed: button.pressed()
    Keys.onEnterPressed: button.pressed()
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            button.pressed();
    }

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        size: Theme.symbolSize
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.pressed()
    }
}
