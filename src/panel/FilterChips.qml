// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// One chip a filter, with how many clips it lets through.
Row {
    id: chips

    required property PanelFacade panel

    spacing: Theme.gap
    Accessible.role: Accessible.PageTabList
    Accessible.name: Views.words("Filters")

    Repeater {
        model: chips.panel.filters

        Rectangle {
            id: chip

            required property int index
            required property string title
            required property string count
            readonly property bool isCurrent: chips.panel.filter === index

            width: label.implicitWidth + number.implicitWidth + 3 * Theme.gap + Theme.grid
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
            Accessible.onPressAction: chips.panel.filter = index

            Label {
                id: label
                anchors.left: parent.left
                anchors.leftMargin: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                text: chip.title
                color: chip.isCurrent ? Theme.accent : Theme.text
                font.weight: Font.Medium
            }
            Label {
                id: number
                anchors.left: label.right
                anchors.leftMargin: Theme.grid
                anchors.verticalCenter: parent.verticalCenter
                text: chip.count
                color: chip.isCurrent ? Theme.accent : Theme.secondary
            }
            onIsCurrentChanged: Views.tellSelected(chip)

            MouseArea {
                id: area
                anchors.fill: parent
                hoverEnabled: true
                onClicked: chips.panel.filter = chip.index
            }
        }
    }
}
