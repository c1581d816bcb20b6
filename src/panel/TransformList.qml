// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// What the chosen text can be turned into while it is pasted.
Rectangle {
    id: list

    required property PanelFacade panel
    /// Where there is less room than the entries need, they scroll.
    property real mostHeight: entries.implicitHeight + 2 * Theme.gap

    function reveal(entry: Item) {
        flick.contentY = Math.max(Math.min(flick.contentY, entry.y), entry.y + entry.height - flick.height);
    }

    height: Math.min(mostHeight, entries.implicitHeight + 2 * Theme.gap)
    radius: Theme.rowRadius
    color: Theme.ground
    border.color: Theme.edge
    border.width: Theme.thin
    Accessible.role: Accessible.PopupMenu
    Accessible.name: Views.words("Transform")

    Flickable {
        id: flick
        anchors.fill: parent
        anchors.margins: Theme.gap
        contentHeight: entries.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        interactive: false
        clip: true

        Column {
            id: entries
            width: flick.width

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
                        if (isCurrent) {
                            list.reveal(entry);
                            Views.tellFocused(entry);
                        }
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
        WheelScroll {
            flickable: flick
        }
    }
}
