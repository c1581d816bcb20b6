// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// One board of a menu: as wide as its widest entry, and no higher than there is room; then it scrolls.
Rectangle {
    id: board

    required property PanelMenu menu
    required property MenuLevel level
    required property bool isRoot
    required property real mostHeight
    property real widest: 0
    /// Beside the entries, where they scroll.
    readonly property real barRoom: bar.visible ? Theme.gap : 0

    function entryAt(row: int): MenuEntry {
        return entries.itemAt(row) as MenuEntry;
    }
    /// Where an entry begins on the board.
    function topOf(row: int): real {
        const entry = entryAt(row);
        return entry === null ? 0 : entry.y - flick.contentY + flick.y;
    }
    function textOf(row: int): string {
        const entry = entryAt(row);
        return entry === null ? "" : entry.text;
    }
    function reveal(row: int) {
        const entry = entryAt(row);
        if (entry === null)
            return;
        if (entry.y < flick.contentY)
            flick.contentY = entry.y;
        else if (entry.y + entry.height > flick.contentY + flick.height)
            flick.contentY = entry.y + entry.height - flick.height;
    }

    width: Math.max(Theme.transformWidth, widest + barRoom + 2 * Theme.grid)
    height: Math.min(mostHeight, column.height + 2 * Theme.grid)
    radius: Theme.rowRadius
    color: Theme.ground
    border.color: Theme.edge
    border.width: Theme.thin
    Accessible.role: Accessible.PopupMenu

    Shadow {
        anchors.fill: parent
        anchors.margins: -Theme.smallShadow
        // Behind the board's own ground.
        z: -1
    }
    Connections {
        target: board.level
        function onModelAboutToBeReset() {
            board.widest = 0;
        }
        function onCurrentChanged() {
            board.reveal(board.level.current);
        }
    }
    MouseArea {
        // The edges of the board are not beside the menu.
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
    }
    Flickable {
        id: flick
        anchors.fill: parent
        anchors.margins: Theme.grid
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column
            x: Views.isRightToLeft ? board.barRoom : 0
            width: flick.width - board.barRoom

            Repeater {
                id: entries
                model: board.level

                MenuEntry {
                    width: column.width
                    isCurrent: board.level.current === index
                    onNeeds: width => board.widest = Math.max(board.widest, width)
                    onPointed: isThere => {
                        if (isThere || isCurrent)
                            board.menu.pointed(board.level, isThere ? index : -1);
                    }
                    onEntered: board.menu.entered(board.level, index)
                    onRested: {
                        if (board.isRoot)
                            board.menu.rested(index);
                    }
                    onChosen: board.menu.choose(board.level, index)
                }
            }
        }
    }
    ScrollBar {
        id: bar
        objectName: "menuScrollBar"
        view: flick
        anchors.right: parent.right
        y: flick.y
        height: flick.height
    }
}
