// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// What the chosen text can be turned into while it is pasted.
Rectangle {
    id: list

    required property var panel

    width: 230
    height: entries.implicitHeight + 12
    radius: 10
    color: Look.ground
    border.color: Look.edge
    border.width: 1
    Accessible.role: Accessible.PopupMenu
    Accessible.name: panel.words("Transform")

    Column {
        id: entries
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 6

        Repeater {
            model: list.panel.transforms

            Rectangle {
                id: entry

                required property int index
                required property string modelData
                readonly property bool isCurrent: list.panel.transformIndex === index

                width: entries.width
                height: 30
                radius: 6
                color: isCurrent ? Look.selected : area.containsMouse ? Look.hovered : "transparent"
                Accessible.role: Accessible.MenuItem
                Accessible.name: modelData
                Accessible.focused: isCurrent

                Text {
                    anchors.left: parent.left
                    anchors.leftMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    text: entry.modelData
                    color: entry.isCurrent ? Look.accent : Look.text
                    font.pixelSize: 13
                    renderType: Text.NativeRendering
                }
                MouseArea {
                    id: area
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: list.panel.transformChosen(entry.index)
                }
            }
        }
    }
}
