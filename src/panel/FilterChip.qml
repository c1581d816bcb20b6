// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// One filter, with how many clips it lets through where there is room for the number.
Rectangle {
    id: chip

    required property PanelFacade panel
    required property int index
    required property string title
    required property string count
    required property bool showsNumber
    required property real mostWidth
    readonly property bool isCurrent: panel.filter === index
    readonly property real wordWidth: Math.ceil(label.implicitWidth) + 2 * Theme.margin
    readonly property real numberWidth: Math.ceil(number.implicitWidth) + Theme.grid

    width: Math.min(mostWidth, wordWidth + (showsNumber ? numberWidth : 0))
    height: Theme.chipHeight
    radius: height / 2
    color: isCurrent ? Theme.selected : area.containsMouse ? Theme.hovered : "transparent"
    border.width: Theme.thin
    border.color: isCurrent ? Theme.accent : Theme.line
    Accessible.role: Accessible.PageTab
    Accessible.name: title
    Accessible.description: count
    Accessible.selectable: true
    Accessible.selected: isCurrent
    Accessible.onPressAction: chip.panel.filter = index
    onIsCurrentChanged: Views.tellSelected(chip)

    Label {
        id: label
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), chip.width - 2 * Theme.margin)
        text: chip.title
        color: chip.isCurrent ? Theme.accent : Theme.text
        font.weight: Font.Medium
    }
    Label {
        id: number
        anchors.left: label.right
        anchors.leftMargin: Theme.grid
        anchors.verticalCenter: parent.verticalCenter
        visible: chip.showsNumber
        text: chip.count
        color: chip.isCurrent ? Theme.accent : Theme.secondary
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: chip.panel.filter = chip.index
    }
}
