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

    // What was at the top before the rows changed, and whether the chosen row was in sight.
    property string topClip
    property real topOffset: 0
    property bool isPrimaryInSight: true

    /// Where row `index` begins in the view; NaN for a row that is not made.
    function offsetOf(index: int): real {
        const item = itemAtIndex(index);
        return item === null ? NaN : item.y - contentY;
    }
    function isInSight(index: int): bool {
        const item = itemAtIndex(index);
        return item !== null && item.y >= contentY && item.y + item.height <= contentY + height;
    }
    /// Remembers what the user looks at.
    function noteView() {
        isPrimaryInSight = panel.primaryRow >= 0 && isInSight(panel.primaryRow);
        const top = indexAt(1, contentY + Theme.grid);
        topClip = panel.clipIDOfRow(top);
        topOffset = topClip === "" ? 0 : itemAtIndex(top).y - contentY;
        Views.orderForReading(contentItem);
    }
    /// Brings the chosen row into sight, with one row of context.
    function reveal() {
        const row = panel.primaryRow;
        if (row < 0)
            return;
        if (row <= 1) {
            positionViewAtBeginning();
        } else {
            positionViewAtIndex(Math.min(row + 1, count - 1), ListView.Contain);
            positionViewAtIndex(row - 1, ListView.Contain);
            alignTop();
        }
        noteView();
    }
    /// No row is cut at the top, unless that is the end of the list and there are headers in sight.
    function alignTop() {
        const top = indexAt(1, contentY + 1);
        if (top > 0 && !atYEnd && offsetOf(top) < -1)
            contentY = Math.min(itemAtIndex(top).y + itemAtIndex(top).height, lastY);
    }
    /// The rows changed under the user: what was looked at stays where it was.
    function keepView() {
        forceLayout();
        if (isPrimaryInSight) {
            reveal();
            return;
        }
        const row = topClip === "" ? -1 : panel.rowOfClipID(topClip);
        if (row < 0)
            return;
        positionViewAtIndex(row, ListView.Beginning);
        contentY = Math.max(originY, Math.min(contentY - topOffset, lastY));
        noteView();
    }
    function scrollRows(rows: int) {
        const top = Math.max(0, indexAt(1, contentY + 1));
        if (rows < 0 && offsetOf(top) < -1)
            rows += 1; // the one that is cut comes into sight first
        positionViewAtIndex(Math.max(0, Math.min(top + rows, count - 1)), ListView.Beginning);
        noteView();
    }

    function openMenu(x: real, y: real) {
        const place = mapToItem(null, x, y);
        panel.openRowMenu(indexAt(x, y + contentY), place, false);
    }

    objectName: "clips"
    model: panel.rows
    clip: true
    reuseItems: true
    interactive: false
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
            list.keepView();
        }
        function onRevealed() {
            area.rest();
            list.reveal();
        }
        function onGapClosed(row: int, clips: int, headers: int) {
            list.gapRow = row;
            list.gap = Math.min(list.height, list.gap + clips * Theme.rowHeight + headers * Theme.headerHeight);
            closing.restart();
        }
        function onRowMenuAsked() {
            list.reveal();
            const item = list.itemAtIndex(list.panel.primaryRow);
            if (item !== null)
                list.panel.openRowMenu(list.panel.primaryRow, item.mapToItem(null, Views.isRightToLeft ? list.width - Theme.inset : Theme.inset, item.height), true);
        }
    }

    // Behind the last row of a list that is scrolled there is room, so that at its end too the view begins with a whole
    // row.
    bottomMargin: contentHeight > height ? height % Theme.rowHeight : 0
    readonly property real lastY: Math.max(originY, originY + contentHeight + bottomMargin - height)

    // Rows below a gap glide up to close it.
    property int gapRow: 0
    property real gap: 0
    NumberAnimation {
        id: closing
        target: list
        property: "gap"
        to: 0
        duration: Theme.glide
        easing.type: Easing.OutCubic
    }

    delegate: ClipRow {
        id: row
        transform: Translate {
            y: row.index >= list.gapRow ? list.gap : 0
        }
        width: list.width
        isHovered: list.hoveredRow === index
        isPrimary: list.panel.primaryRow === index && !list.panel.menu.isOpen
        onPressed: list.panel.rowActivated(index)
    }

    MouseArea {
        // One for all rows. A row lights up only when the pointer was moved there: neither the panel coming up under it
        // nor rows passing beneath it count.
        id: area
        property point restingAt
        property bool isKnown: false
        property int wheelRest: 0

        function rowAt(x: real, y: real): int {
            return list.indexAt(x, y + list.contentY);
        }
        function rest() {
            list.hoveredRow = -1;
        }

        parent: list
        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onEntered: {
            restingAt = mapToGlobal(mouseX, mouseY);
            isKnown = true;
        }
        onPositionChanged: mouse => {
            if (mouse.buttons & Qt.LeftButton)
                list.panel.pressMoved(mapToItem(null, mouse.x, mouse.y));
            const place = mapToGlobal(mouse.x, mouse.y);
            if (isKnown && !pressed && (place.x !== restingAt.x || place.y !== restingAt.y))
                list.hoveredRow = rowAt(mouse.x, mouse.y);
            restingAt = place;
            isKnown = true;
        }
        onExited: rest()
        onPressed: mouse => {
            if (mouse.button === Qt.RightButton)
                list.openMenu(mouse.x, mouse.y);
            else
                list.panel.rowPressed(rowAt(mouse.x, mouse.y), mouse.modifiers, mapToItem(null, mouse.x, mouse.y));
        }
        onReleased: mouse => {
            if (mouse.button === Qt.LeftButton)
                list.panel.rowReleased();
        }
        onCanceled: list.panel.pressCancelled()
        onDoubleClicked: mouse => {
            if (mouse.button === Qt.LeftButton)
                list.panel.rowDoubleClicked(mouse.modifiers);
        }
        onWheel: wheel => {
            // A notch is 120 and moves three rows; fine wheels and touchpads send parts of it.
            wheelRest += wheel.angleDelta.y;
            const rows = Math.trunc(wheelRest / 40);
            wheelRest -= rows * 40;
            if (rows !== 0)
                list.scrollRows(-rows);
        }
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
        anchors.rightMargin: Theme.inset
        y: below + height > list.height ? rowTop - height : below
        text: list.help
        visible: row !== null
    }

    Item {
        // Where the view stands in a long list; the thumb can be dragged, and a press beside it turns a page.
        id: bar
        parent: list
        visible: list.visibleArea.heightRatio < 1
        anchors.right: parent.right
        width: Theme.scrollArea
        height: list.height

        Rectangle {
            id: thumb
            objectName: "scrollThumb"
            readonly property real room: bar.height - height
            readonly property real rest: 1 - list.visibleArea.heightRatio

            anchors.horizontalCenter: parent.horizontalCenter
            width: grip.containsMouse || grip.pressed ? Theme.scrollBar : Theme.scrollBar / 2
            radius: width / 2
            color: Theme.thumb
            y: rest <= 0 ? 0 : Math.max(0, Math.min(1, list.visibleArea.yPosition / rest)) * room
            height: Math.max(Theme.leastThumb, list.visibleArea.heightRatio * list.height)
        }
        MouseArea {
            id: grip
            property real heldAt: -1

            anchors.fill: parent
            hoverEnabled: true
            preventStealing: true
            onPressed: mouse => {
                const onThumb = mouse.y >= thumb.y && mouse.y <= thumb.y + thumb.height;
                heldAt = onThumb ? mouse.y - thumb.y : -1;
                if (!onThumb)
                    list.scrollRows((mouse.y < thumb.y ? -1 : 1) * Math.max(1, Math.floor(list.height / Theme.rowHeight) - 1));
            }
            onPositionChanged: mouse => {
                if (!pressed || heldAt < 0 || thumb.room <= 0)
                    return;
                const share = Math.max(0, Math.min(1, (mouse.y - heldAt) / thumb.room));
                if (share >= 1) {
                    list.positionViewAtEnd();
                } else {
                    list.contentY = list.originY + share * (list.lastY - list.originY);
                    list.alignTop();
                }
                list.noteView();
            }
            onReleased: heldAt = -1
        }
    }
}
