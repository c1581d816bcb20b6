// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// One clip of the list.
Item {
    id: row

    required property var clip // the list model's roles for this row
    property bool isHovered: false

    height: Look.rowHeight

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        radius: Look.rowRadius
        color: row.clip.isSelected ? Look.selected : row.isHovered ? Look.hovered : "transparent"
    }
    RowIcon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.clip.symbol
        thumbnail: row.clip.thumbnail
        swatch: row.clip.swatch
        isSelected: row.clip.isSelected
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: marks.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Text {
            width: parent.width
            text: row.clip.title
            textFormat: Text.PlainText
            color: row.clip.isSensitive ? Look.secondary : Look.text
            font.pixelSize: Look.titleSize
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
        }
        Text {
            width: parent.width
            text: row.clip.imageMatch === "" ? row.clip.sourceName : row.clip.sourceName + "  ·  " + row.clip.imageMatch
            textFormat: Text.PlainText
            color: Look.secondary
            font.pixelSize: Look.smallSize
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            renderType: Text.NativeRendering
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
            visible: row.clip.pill !== ""
            text: row.clip.pill
        }
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.clip.isPinned
            name: row.clip.isPinned ? "pin.fill" : ""
            tint: Look.accent
            size: 14
        }
        Keycap {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.clip.pinKeys !== ""
            text: row.clip.pinKeys
            inverted: true
        }
        Keycap {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.clip.numberKeys !== ""
            text: row.clip.numberKeys
        }
    }
}
