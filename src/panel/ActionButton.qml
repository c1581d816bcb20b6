// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A button with words.
Rectangle {
    id: button

    required property string title
    property string help
    property string symbol
    property bool isProminent: false
    property real widest: 0
    readonly property alias isAsking: rest.isAsking
    readonly property color ink: isProminent ? Theme.buttonText : Theme.text
    readonly property real lead: symbol === "" ? Theme.margin : Theme.gap + picture.width + Theme.grid
    readonly property real wanted: lead + Math.ceil(words.implicitWidth) + Theme.margin
    signal pressed

    width: widest > 0 ? Math.min(wanted, widest) : wanted
    height: Theme.buttonHeight
    radius: Theme.rowRadius
    color: isProminent ? (area.containsPress ? Theme.pressedButton : Theme.button) : area.containsPress ? Theme.capEdge : area.containsMouse ? Theme.tile : Theme.cap
    border.width: isProminent ? 0 : Theme.thin
    border.color: Theme.capEdge
    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: help
    Accessible.onPressAction: button.pressed()

    // Laid out from the left and mirrored as one.
    Symbol {
        id: picture
        visible: button.symbol !== ""
        anchors.left: parent.left
        anchors.leftMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        name: button.symbol
        tint: button.ink
        size: Theme.smallSymbolSize
    }
    Label {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: button.lead
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        text: button.title
        color: button.ink
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
            button.pressed();
        }
    }
}
