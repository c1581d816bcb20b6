// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A button of the footer: a word, and a symbol before it where it has one.
Rectangle {
    id: button

    required property string text
    property string symbol
    signal action

    implicitWidth: Theme.gap + (symbol === "" ? 0 : picture.width + Theme.grid) + Math.ceil(label.implicitWidth) + Theme.gap
    height: Theme.chipHeight
    radius: height / 2
    color: area.containsPress ? Theme.capEdge : area.containsMouse ? Theme.tile : "transparent"
    border.width: Theme.thin
    border.color: Theme.line
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: action()

    Symbol {
        id: picture
        visible: button.symbol !== ""
        anchors.left: parent.left
        anchors.leftMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        name: button.symbol
        size: Theme.smallSymbolSize
    }
    Label {
        id: label
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: button.text
        font.pixelSize: Theme.footerSize
        font.weight: Font.Medium
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.action()
    }
}
