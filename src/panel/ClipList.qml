// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// The rows, headers and clips alike. Delegates are made once and rebound: a keystroke creates nothing.
ListView {
    id: list

    required property var panel // PanelController's view of the model
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
    Accessible.name: panel.words("Clips")

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

    delegate: Item {
        id: line

        required property int index
        required property string header
        required property bool isHeader
        required property bool isFirst
        required property string title
        required property string sourceName
        required property string imageMatch
        required property string symbol
        required property string thumbnail
        required property string swatch
        required property string pill
        required property string numberKeys
        required property string pinKeys
        required property string pinHint
        required property bool isPinned
        required property bool isSelected
        required property bool isSensitive

        // Kept for reuse, it is no row: neither to be seen nor to be read out.
        property bool isPooled: false
        ListView.onPooled: isPooled = true
        ListView.onReused: isPooled = false
        visible: !isPooled
        Accessible.ignored: isPooled

        width: ListView.view.width
        height: isHeader ? (header === "" ? 6 : Look.headerHeight) : Look.rowHeight
        Accessible.role: isHeader ? Accessible.Heading : Accessible.ListItem
        Accessible.name: isHeader ? header : title
        Accessible.description: isHeader ? "" : pinHint === "" ? sourceName : sourceName + ", " + pinHint
        Accessible.selected: isSelected
        Accessible.selectable: !isHeader

        Text {
            visible: line.isHeader
            anchors.left: parent.left
            anchors.leftMargin: 18
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 6
            text: line.header
            color: Look.secondary
            font.pixelSize: Look.smallSize
            font.weight: Font.DemiBold
            renderType: Text.NativeRendering
        }
        ClipRow {
            visible: !line.isHeader
            width: parent.width
            clip: line
            isHovered: list.hoveredRow === line.index
        }
    }

    MouseArea {
        // One for all rows. A row lights up only when the pointer was moved there: neither the panel coming up under it nor rows
        // passing beneath it count.
        id: area
        property point restingAt
        property bool isKnown: false
        property int pressedRow: -1

        function rowAt(mouse: var): int {
            return list.indexAt(mouse.x, mouse.y + list.contentY);
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
                list.hoveredRow = rowAt(mouse);
            restingAt = place;
            isKnown = true;
        }
        onExited: rest()
        onPressed: mouse => {
            pressedRow = rowAt(mouse);
            list.panel.rowPressed(pressedRow, mouse.modifiers);
        }
        onReleased: list.panel.rowReleased(pressedRow)
        onDoubleClicked: mouse => list.panel.rowDoubleClicked(rowAt(mouse))
    }

    HoverRest {
        id: question
        isHovered: list.help !== ""
    }
    HelpBubble {
        readonly property Item row: question.isAsking ? list.itemAtIndex(list.hoveredRow) : null
        readonly property real rowTop: row === null ? 0 : row.y - list.contentY
        readonly property real below: rowTop + Look.rowHeight

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
        color: Look.capEdge
        y: list.visibleArea.yPosition * list.height
        height: Math.max(24, list.visibleArea.heightRatio * list.height)
    }
}
