// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// One chip a filter, with how many clips it lets through.
Row {
    id: chips

    required property PanelFacade panel

    spacing: 6

    Repeater {
        model: chips.panel.filters

        Rectangle {
            id: chip

            required property int index
            required property string title
            required property string count
            readonly property bool isCurrent: chips.panel.filter === index

            width: label.implicitWidth + number.implicitWidth + 28
            height: 26
            radius: 13
            color: isCurrent ? Theme.selected : area.containsMouse ? Theme.hovered : "transparent"
            border.width: 1
            border.color: isCurrent ? Theme.selected : Theme.line
            Accessible.role: Accessible.RadioButton
            Accessible.name: title
            Accessible.checked: isCurrent
            Accessible.onPressAction: chips.panel.filter = index

            Label {
                id: label
                anchors.left: parent.left
                anchors.leftMargin: 11
                anchors.verticalCenter: parent.verticalCenter
                text: chip.title
                color: chip.isCurrent ? Theme.accent : Theme.text
                font.pixelSize: 12
                font.weight: Font.Medium
            }
            Label {
                id: number
                anchors.left: label.right
                anchors.leftMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                text: chip.count
                color: chip.isCurrent ? Theme.accent : Theme.secondary
                font.pixelSize: 12
            }
            MouseArea {
                id: area
                anchors.fill: parent
                hoverEnabled: true
                onClicked: chips.panel.filter = chip.index
            }
        }
    }
}
