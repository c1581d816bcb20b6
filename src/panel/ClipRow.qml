// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// One line of the list: a section's header, or a clip.
Item {
    id: row

    // The list model's roles.
    required property int index
    required property string header
    required property bool isHeader
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

    property bool isHovered: false
    // Kept for reuse, it is no row: neither to be seen nor to be read out.
    property bool isPooled: false

    ListView.onPooled: isPooled = true
    ListView.onReused: isPooled = false
    visible: !isPooled
    height: isHeader ? (header === "" ? 6 : Theme.headerHeight) : Theme.rowHeight
    Accessible.ignored: isPooled
    Accessible.role: isHeader ? Accessible.Heading : Accessible.ListItem
    Accessible.name: isHeader ? header : title
    Accessible.description: isHeader ? "" : pinHint === "" ? sourceName : sourceName + ", " + pinHint
    Accessible.selected: isSelected
    Accessible.selectable: !isHeader

    Label {
        visible: row.isHeader
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        text: row.header
        color: Theme.secondary
        font.weight: Font.DemiBold
    }
    Item {
        anchors.fill: parent
        visible: !row.isHeader

        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            radius: Theme.rowRadius
            color: row.isSelected ? Theme.selected : row.isHovered ? Theme.hovered : "transparent"
        }
        RowIcon {
            id: icon
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            symbol: row.symbol
            thumbnail: row.thumbnail
            swatch: row.swatch
            isSelected: row.isSelected
        }
        Column {
            anchors.left: icon.right
            anchors.leftMargin: 12
            anchors.right: marks.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Label {
                width: parent.width
                text: row.title
                color: row.isSensitive ? Theme.secondary : Theme.text
                font.pixelSize: Theme.titleSize
                maximumLineCount: 1
            }
            Label {
                width: parent.width
                text: row.imageMatch === "" ? row.sourceName : row.sourceName + "  ·  " + row.imageMatch
                color: Theme.secondary
                maximumLineCount: 1
            }
        }
        Row {
            id: marks
            anchors.right: parent.right
            anchors.rightMargin: 18
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6

            Pill {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.pill !== ""
                text: row.pill
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.isPinned
                name: row.isPinned ? "pin.fill" : ""
                tint: Theme.accent
                size: 14
            }
            Keycap {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.pinKeys !== ""
                text: row.pinKeys
                inverted: true
            }
            Keycap {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.numberKeys !== ""
                text: row.numberKeys
            }
        }
    }
}
