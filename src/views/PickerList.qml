// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// The open list of a picker, over the rest of its window. A press beside it closes it.
MouseArea {
    id: shade

    required property Item ground // of the window
    required property Item origin // what it belongs to
    required property string label
    required property list<string> labels
    required property int index
    readonly property real rowHeight: Theme.menuRowHeight
    signal picked(choice: int)
    signal closed

    parent: ground
    anchors.fill: parent
    z: 10
    onPressed: shade.closed()
    onWheel: wheel => wheel.accepted = true

    Rectangle {
        id: card
        readonly property point place: shade.origin.mapToItem(shade.ground, 0, 0)

        width: Math.max(shade.origin.width, rows.widest + 2 * Theme.inset)
        height: Math.min(rows.contentHeight + Theme.gap, shade.height - 2 * Theme.gap)
        x: Math.max(Theme.gap, Math.min(shade.width - width - Theme.gap, place.x + shade.origin.width - width))
        y: Math.max(Theme.gap, Math.min(shade.height - height - Theme.gap, place.y - shade.index * shade.rowHeight))
        radius: Theme.rowRadius
        color: Theme.card
        border.width: Theme.thin
        border.color: Theme.capEdge

        ListView {
            id: rows
            property real widest: 0

            anchors.fill: parent
            anchors.margins: Theme.grid
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: shade.labels
            currentIndex: shade.index
            Accessible.role: Accessible.PopupMenu
            Accessible.name: shade.label
            Component.onCompleted: {
                positionViewAtIndex(currentIndex, ListView.Contain);
                forceActiveFocus(Qt.PopupFocusReason);
            }
            Keys.onEscapePressed: shade.closed()
            Keys.onTabPressed: shade.closed()
            Keys.onBacktabPressed: shade.closed()
            Keys.onSpacePressed: shade.picked(currentIndex)
            Keys.onReturnPressed: shade.picked(currentIndex)
            Keys.onEnterPressed: shade.picked(currentIndex)
            delegate: Rectangle {
                id: row

                required property int index
                required property string modelData
                readonly property bool isCurrent: ListView.isCurrentItem

                width: rows.width
                height: shade.rowHeight
                radius: Theme.smallRadius
                color: isCurrent ? Theme.selected : "transparent"
                focus: isCurrent
                Accessible.role: Accessible.MenuItem
                Accessible.name: modelData
                Accessible.checkable: true
                Accessible.checked: index === shade.index
                Accessible.focusable: true
                Accessible.focused: isCurrent
                Accessible.onPressAction: shade.picked(row.index)
                Component.onCompleted: rows.widest = Math.max(rows.widest, words.implicitWidth)

                Label {
                    id: words
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.margins: Theme.gap
                    anchors.verticalCenter: parent.verticalCenter
                    text: row.modelData
                    color: row.isCurrent ? Theme.accent : Theme.text
                    font.pixelSize: Theme.formSize
                }
                MouseArea {
                    anchors.fill: parent
                    hoverEnabled: true
                    onPositionChanged: rows.currentIndex = row.index
                    onClicked: shade.picked(row.index)
                }
            }
        }
    }
}
