// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// One chip a filter, with how many clips it lets through.
Row {
    id: chips

    required property var panel

    spacing: 6

    Repeater {
        model: chips.panel.filters

        Rectangle {
            id: chip

            required property int index
            required property var modelData
            readonly property bool isCurrent: chips.panel.filter === index

            width: label.implicitWidth + count.implicitWidth + 28
            height: 26
            radius: 13
            color: isCurrent ? Look.selected : area.containsMouse ? Look.hovered : "transparent"
            border.width: 1
            border.color: isCurrent ? Look.selected : Look.line
            Accessible.role: Accessible.RadioButton
            Accessible.name: modelData.title
            Accessible.checked: isCurrent
            Accessible.onPressAction: chips.panel.filter = index

            Text {
                id: label
                anchors.left: parent.left
                anchors.leftMargin: 11
                anchors.verticalCenter: parent.verticalCenter
                text: chip.modelData.title
                color: chip.isCurrent ? Look.accent : Look.text
                font.pixelSize: 12
                font.weight: Font.Medium
                renderType: Text.NativeRendering
            }
            Text {
                id: count
                anchors.left: label.right
                anchors.leftMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                text: chip.modelData.count
                color: chip.isCurrent ? Look.accent : Look.secondary
                font.pixelSize: 12
                renderType: Text.NativeRendering
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
