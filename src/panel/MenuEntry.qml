// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// One entry of a menu, or the line between two groups.
Item {
    id: entry

    required property int index
    required property string text
    required property string symbol
    required property string keys
    required property bool isEnabled
    required property bool isSeparator
    required property bool hasItems
    required property bool isCheckable
    required property bool isChecked
    required property string swatch
    property bool isCurrent: false
    readonly property color ink: !isEnabled ? Theme.secondary : isCurrent ? Theme.accent : Theme.text

    /// The width without anything cut.
    signal needs(width: real)
    signal pointed(isThere: bool)
    /// The pointer is on it, by its own motion or because the entry came up under it.
    signal entered
    signal rested
    signal chosen

    height: isSeparator ? 2 * Theme.grid + Theme.thin : Theme.menuRowHeight
    Component.onCompleted: needs(Theme.gap + Theme.symbolSize + Theme.gap + Math.ceil(label.implicitWidth) + Theme.inset + Math.ceil(hint.implicitWidth) + Theme.symbolSize + Theme.gap)
    Accessible.ignored: isSeparator
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.description: keys
    Accessible.focusable: isEnabled
    Accessible.focused: isCurrent
    Accessible.checkable: isCheckable
    Accessible.checked: isChecked
    Accessible.onPressAction: chosen()
    onIsCurrentChanged: {
        if (isCurrent)
            Views.tellFocused(entry);
    }

    Rectangle {
        visible: entry.isSeparator
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        height: Theme.thin
        color: Theme.line
    }
    Rectangle {
        visible: entry.isCurrent
        anchors.fill: parent
        radius: Theme.smallRadius
        color: Theme.selected
    }
    Symbol {
        id: picture
        visible: !entry.isSeparator && entry.swatch === ""
        anchors.left: parent.left
        anchors.leftMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        name: entry.isChecked ? "checkmark" : entry.symbol
        tint: entry.isCurrent ? Theme.accent : Theme.secondary
        size: Theme.symbolSize
    }
    Rectangle {
        visible: entry.swatch !== ""
        anchors.fill: picture
        radius: Theme.smallRadius
        color: entry.swatch === "" ? "transparent" : entry.swatch
        border.color: Theme.edge
        border.width: Theme.thin
    }
    Label {
        id: label
        anchors.left: picture.right
        anchors.leftMargin: Theme.gap
        anchors.right: hint.left
        anchors.rightMargin: hint.text === "" ? 0 : Theme.inset
        anchors.verticalCenter: parent.verticalCenter
        text: entry.text
        color: entry.ink
        font.pixelSize: Theme.emptySize
    }
    Label {
        id: hint
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap + (entry.hasItems ? Theme.symbolSize : 0)
        anchors.verticalCenter: parent.verticalCenter
        text: entry.keys
        color: Theme.secondary
    }
    Symbol {
        visible: entry.hasItems
        anchors.right: parent.right
        anchors.rightMargin: Theme.grid
        anchors.verticalCenter: parent.verticalCenter
        name: entry.hasItems ? "chevron.right" : ""
        tint: entry.ink
        size: Theme.smallSymbolSize
        mirror: Views.isRightToLeft
    }
    HoverRest {
        interval: 180
        isHovered: entry.isCurrent && area.containsMouse
        onIsAskingChanged: {
            if (isAsking)
                entry.rested();
        }
    }
    MouseArea {
        id: area
        anchors.fill: parent
        enabled: !entry.isSeparator
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onEntered: entry.entered()
        onPositionChanged: entry.pointed(true)
        onExited: entry.pointed(false)
        onClicked: entry.chosen()
    }
}
