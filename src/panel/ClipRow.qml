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
    required property string markedTitle
    required property string sourceName
    required property string imageMatch
    required property string symbol
    required property string thumbnail
    required property string swatch
    required property string pill
    required property string number
    required property string pinNumber
    required property string description
    required property bool isPinned
    required property bool isSelected
    required property bool isSensitive

    property bool isHovered: false
    property bool isPrimary: false
    // Kept for reuse, it is no row: neither to be seen nor to be read out.
    property bool isPooled: false

    ListView.onPooled: isPooled = true
    ListView.onReused: isPooled = false
    visible: !isPooled
    height: isHeader ? (header === "" ? Theme.gap : Theme.headerHeight) : Theme.rowHeight
    Accessible.ignored: isPooled
    Accessible.role: isHeader ? Accessible.Heading : Accessible.ListItem
    Accessible.name: isHeader ? header : title
    Accessible.description: description
    Accessible.selected: isSelected
    Accessible.selectable: !isHeader
    // Typing stays in the search field; a screen reader follows what is called focused.
    Accessible.focusable: !isHeader
    Accessible.focused: isPrimary
    Accessible.onPressAction: row.pressed()

    signal pressed
    onIsSelectedChanged: Views.tellSelected(row)

    // A screen reader reads what the keys work on; once all of the row is as it will be, and after the field, which gets
    // the keyboard with the window.
    readonly property bool isSpoken: isPrimary && !isPooled && Window.active
    onIsSpokenChanged: telling.restart()
    Timer {
        id: telling
        interval: 0
        onTriggered: {
            if (row.isSpoken)
                Views.tellFocused(row);
        }
    }

    Label {
        visible: row.isHeader
        anchors.left: parent.left
        anchors.leftMargin: Theme.inset
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.grid
        text: row.header
        color: Theme.secondary
        font.weight: Font.DemiBold
    }
    Item {
        anchors.fill: parent
        visible: !row.isHeader

        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap
            anchors.rightMargin: Theme.gap
            radius: Theme.rowRadius
            color: row.isSelected ? Theme.selected : row.isHovered ? Theme.hovered : "transparent"
        }
        Rectangle {
            // Colour alone would not tell the chosen row from the others.
            visible: row.isSelected
            anchors.left: parent.left
            anchors.leftMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.accentBar
            height: parent.height - 2 * Theme.gap
            radius: width / 2
            color: Theme.accent
        }
        RowIcon {
            id: icon
            anchors.left: parent.left
            anchors.leftMargin: Theme.inset
            anchors.verticalCenter: parent.verticalCenter
            symbol: row.symbol
            thumbnail: row.thumbnail
            swatch: row.swatch
            isSelected: row.isSelected
        }
        Column {
            anchors.left: icon.right
            anchors.leftMargin: Theme.margin
            anchors.right: marks.left
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter

            Label {
                width: parent.width
                text: row.markedTitle
                textFormat: Text.StyledText
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
            anchors.rightMargin: Theme.inset
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gap

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
                size: Theme.smallSymbolSize
            }
            Keycap {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.pinNumber !== ""
                text: row.pinNumber
                inverted: true
            }
            Keycap {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.number !== ""
                text: row.number
            }
        }
    }
}
