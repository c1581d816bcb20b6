// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The panel: search above, chips, the list, what the keys do below. `shadowMargin` is the room around it for its shadow.
Item {
    id: root

    required property PanelFacade panel
    required property PreviewModel preview
    readonly property int shadowMargin: panel.shadowMargin
    readonly property color cornerColour: Theme.edge

    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true

    BorderImage {
        visible: root.shadowMargin > 0
        anchors.fill: parent
        source: root.shadowMargin > 0 ? "image://symbol/shadow" : ""
        border {
            left: Theme.shadowBorder
            right: Theme.shadowBorder
            top: Theme.shadowBorder
            bottom: Theme.shadowBorder
        }
    }
    Rectangle {
        id: board
        anchors.fill: parent
        anchors.margins: root.shadowMargin
        radius: Theme.radius
        color: Theme.ground
        border.color: Theme.edge
        border.width: Theme.thin
        Accessible.role: Accessible.Dialog
        Accessible.name: "Vellumry"

        MouseArea {
            // The empty parts move the panel.
            anchors.fill: parent
            onPressed: mouse => root.panel.grabbed(mapToGlobal(mouse.x, mouse.y))
            onPositionChanged: root.panel.dragged()
            onReleased: root.panel.dropped()
        }
        Symbol {
            id: lens
            anchors.left: parent.left
            anchors.leftMargin: Theme.inset
            anchors.verticalCenter: field.verticalCenter
            name: "magnifyingglass"
            size: Theme.lensSize
        }
        SearchField {
            id: field
            panel: root.panel
            anchors.left: lens.right
            anchors.leftMargin: Theme.margin
            anchors.right: stackButton.left
            anchors.rightMargin: Theme.margin
            anchors.top: parent.top
            anchors.topMargin: Theme.margin
        }
        StackButton {
            id: stackButton
            objectName: "stackButton"
            anchors.right: parent.right
            anchors.rightMargin: Theme.inset
            anchors.verticalCenter: field.verticalCenter
            isOn: root.panel.isStackActive
            onAction: root.panel.toggleStack()
        }
        Rectangle {
            id: line
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: Theme.thin
            anchors.rightMargin: Theme.thin
            anchors.top: field.bottom
            anchors.topMargin: Theme.margin
            height: Theme.thin
            color: Theme.line
        }
        FilterChips {
            id: chips
            panel: root.panel
            anchors.left: parent.left
            anchors.leftMargin: Theme.inset
            anchors.right: parent.right
            anchors.rightMargin: Theme.inset
            anchors.top: line.bottom
            anchors.topMargin: Theme.gap
        }
        ClipList {
            id: list
            panel: root.panel
            anchors.left: parent.left
            anchors.right: pane.visible ? pane.left : parent.right
            anchors.leftMargin: Theme.thin
            anchors.top: chips.bottom
            anchors.topMargin: Theme.grid
            anchors.bottom: footer.top
            visible: root.panel.hasRows
        }
        EmptyState {
            panel: root.panel
            anchors.centerIn: list
            visible: !root.panel.hasRows
        }
        PreviewPane {
            id: pane
            panel: root.panel
            preview: root.preview
            anchors.right: parent.right
            anchors.rightMargin: Theme.thin
            anchors.top: chips.bottom
            anchors.topMargin: Theme.grid
            anchors.bottom: footer.top
            width: Math.min(Theme.previewWidth, Math.round(board.width / 2))
            visible: root.panel.hasRows
        }
        Tooltip {
            anchors.right: stackButton.right
            anchors.top: stackButton.bottom
            anchors.topMargin: Theme.grid
            text: stackButton.help
            visible: stackButton.isAsking
        }
        FooterBar {
            id: footer
            panel: root.panel
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: Theme.thin
            anchors.rightMargin: Theme.thin
            anchors.bottom: parent.bottom
        }
    }
    PopupMenu {
        panel: root.panel
        anchors.fill: board
        onPressedBeside: (x, y) => {
            const place = mapToItem(list, x, y);
            if (list.visible && list.contains(place))
                list.openMenu(place.x, place.y);
        }
    }
}
