// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// The rows, headers and clips alike. Delegates are made once and rebound: a keystroke creates nothing.
ListView {
    id: list

    required property var panel // PanelController's view of the model

    model: panel.rows
    clip: true
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    currentIndex: -1
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    Accessible.role: Accessible.List
    Accessible.name: panel.words("Clips")

    Connections {
        target: list.panel
        function onPrimaryRowChanged() {
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
        required property bool isPinned
        required property bool isSelected
        required property bool isSensitive

        width: ListView.view.width
        height: isHeader ? (header === "" ? 6 : Look.headerHeight) : Look.rowHeight
        Accessible.role: isHeader ? Accessible.Heading : Accessible.ListItem
        Accessible.name: isHeader ? header : title
        Accessible.description: isHeader ? "" : sourceName
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
            isHovered: area.containsMouse
        }
        MouseArea {
            id: area
            anchors.fill: parent
            enabled: !line.isHeader
            hoverEnabled: true
            onPressed: mouse => list.panel.rowPressed(line.index, mouse.modifiers)
            onReleased: list.panel.rowReleased(line.index)
            onDoubleClicked: list.panel.rowDoubleClicked(line.index)
        }
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
