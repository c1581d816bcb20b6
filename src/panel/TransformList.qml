// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// What the chosen text can be turned into while it is pasted.
Rectangle {
    id: list

    required property PanelFacade panel

    width: 230
    height: entries.implicitHeight + 12
    radius: 10
    color: Theme.ground
    border.color: Theme.edge
    border.width: 1
    Accessible.role: Accessible.PopupMenu
    Accessible.name: Views.words("Transform")

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
                color: isCurrent ? Theme.selected : area.containsMouse ? Theme.hovered : "transparent"
                Accessible.role: Accessible.MenuItem
                Accessible.name: modelData
                Accessible.focused: isCurrent

                Label {
                    anchors.left: parent.left
                    anchors.leftMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    text: entry.modelData
                    color: entry.isCurrent ? Theme.accent : Theme.text
                    font.pixelSize: 13
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
