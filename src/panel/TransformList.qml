// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// What the chosen text can be turned into while it is pasted.
Rectangle {
    id: list

    required property PanelFacade panel

    height: entries.implicitHeight + 2 * Theme.gap
    radius: Theme.rowRadius
    color: Theme.ground
    border.color: Theme.edge
    border.width: Theme.thin
    Accessible.role: Accessible.PopupMenu
    Accessible.name: Views.words("Transform")

    Column {
        id: entries
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.gap

        Repeater {
            model: list.panel.transforms

            Rectangle {
                id: entry

                required property int index
                required property string modelData
                readonly property bool isCurrent: list.panel.transformIndex === index

                width: entries.width
                height: Theme.menuRowHeight
                radius: Theme.smallRadius
                color: isCurrent ? Theme.selected : area.containsMouse ? Theme.hovered : "transparent"
                Accessible.role: Accessible.MenuItem
                Accessible.name: modelData
                Accessible.focusable: true
                Accessible.focused: isCurrent
                Accessible.onPressAction: list.panel.transformChosen(index)
                onIsCurrentChanged: {
                    if (isCurrent)
                        Views.tellFocused(entry);
                }

                Label {
                    anchors.left: parent.left
                    anchors.leftMargin: Theme.gap
                    anchors.verticalCenter: parent.verticalCenter
                    text: entry.modelData
                    color: entry.isCurrent ? Theme.accent : Theme.text
                    font.pixelSize: Theme.emptySize
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
