// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The rows, headers and clips alike. Delegates are made once and rebound: a keystroke creates nothing.
ListView {
    id: list

    required property PanelFacade panel
    property int hoveredRow: -1
    readonly property string help: panel.helpOf(hoveredRow)
    property alias askingTime: question.interval

    objectName: "clips"
    model: panel.rows
    clip: true
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    currentIndex: -1
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    onContentYChanged: area.rest()
    onHoveredRowChanged: {
        question.isAsking = false;
        if (question.isHovered)
            question.restart();
        panel.rowHovered(hoveredRow);
    }
    Accessible.role: Accessible.List
    Accessible.name: Views.words("Clips")

    Connections {
        target: list.panel
        function onPresented() {
            area.isKnown = false;
            area.rest();
        }
        function onContentChanged() {
            area.rest();
        }
        function onPrimaryRowChanged() {
            area.rest();
            if (list.panel.primaryRow <= 1)
                list.positionViewAtBeginning();
            else
                list.positionViewAtIndex(list.panel.primaryRow, ListView.Contain);
        }
    }

    delegate: ClipRow {
        width: list.width
        isHovered: list.hoveredRow === index
    }

    MouseArea {
        // One for all rows. A row lights up only when the pointer was moved there: neither the panel coming up under it nor rows
        // passing beneath it count.
        id: area
        property point restingAt
        property bool isKnown: false
        property int pressedRow: -1

        function rowAt(x: real, y: real): int {
            return list.indexAt(x, y + list.contentY);
        }
        function rest() {
            list.hoveredRow = -1;
        }

        parent: list
        anchors.fill: parent
        hoverEnabled: true
        onEntered: {
            restingAt = mapToGlobal(mouseX, mouseY);
            isKnown = true;
        }
        onPositionChanged: mouse => {
            const place = mapToGlobal(mouse.x, mouse.y);
            if (isKnown && (place.x !== restingAt.x || place.y !== restingAt.y))
                list.hoveredRow = rowAt(mouse.x, mouse.y);
            restingAt = place;
            isKnown = true;
        }
        onExited: rest()
        onPressed: mouse => {
            pressedRow = rowAt(mouse.x, mouse.y);
            list.panel.rowPressed(pressedRow, mouse.modifiers);
        }
        onReleased: list.panel.rowReleased(pressedRow)
        onDoubleClicked: mouse => list.panel.rowDoubleClicked(rowAt(mouse.x, mouse.y))
    }

    HoverRest {
        id: question
        isHovered: list.help !== ""
    }
    Tooltip {
        readonly property Item row: question.isAsking ? list.itemAtIndex(list.hoveredRow) : null
        readonly property real rowTop: row === null ? 0 : row.y - list.contentY
        readonly property real below: rowTop + Theme.rowHeight

        z: 1
        anchors.right: parent.right
        anchors.rightMargin: 18
        y: below + height > list.height ? rowTop - height : below
        text: list.help
        visible: row !== null
    }

    Rectangle {
        // Where the view stands in a long list.
        visible: list.visibleArea.heightRatio < 1
        anchors.right: parent.right
        anchors.rightMargin: 2
        width: 4
        radius: 2
        color: Theme.capEdge
        y: list.visibleArea.yPosition * list.height
        height: Math.max(24, list.visibleArea.heightRatio * list.height)
    }
}
