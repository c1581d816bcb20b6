// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Shell
import Vellumry.Views

// How much of the stack waits, what comes next, which end goes first, and the way out.
FloatingBoard {
    id: bar

    required property StackHUDModel stack
    // What the button under the resting pointer does; the window has no room for it.
    readonly property string help: order.isAsking ? order.help : end.isAsking ? end.help : ""
    readonly property real helpCentre: (order.isAsking ? order.x : end.x) + end.width / 2
    property int askingTime: Theme.askingTime

    boardWidth: Theme.inset + Math.ceil(words.implicitWidth) + next.room + Theme.margin + order.width + Theme.grid + end.width + Theme.gap
    boardHeight: Theme.barHeight
    Accessible.role: Accessible.ToolBar
    Accessible.name: Views.words("Paste Stack")

    // Not laid out by a row: the window needs the new size at once.
    Label {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: Theme.inset
        anchors.verticalCenter: parent.verticalCenter
        text: bar.stack.sentence
        textFormat: Text.StyledText
        color: bar.stack.isOver ? Theme.text : Theme.secondary
        font.pixelSize: Theme.hudSize
        Accessible.role: Accessible.StaticText
        Accessible.name: bar.stack.spoken
    }
    Rectangle {
        id: divider
        visible: next.visible
        anchors.left: words.right
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.thin
        height: Theme.titleLine
        color: Theme.edge
    }
    Label {
        id: next
        // Of the bar's width; nothing without an item that comes next.
        readonly property real room: visible ? Theme.margin + divider.width + Theme.margin + width : 0
        objectName: "next"
        visible: text !== ""
        anchors.left: divider.right
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), Theme.nextWidth)
        text: bar.stack.next
        font.pixelSize: Theme.hudSize
        Accessible.role: Accessible.StaticText
        Accessible.name: bar.stack.spokenNext
    }
    HUDButton {
        id: order
        anchors.right: end.left
        anchors.rightMargin: Theme.grid
        anchors.verticalCenter: parent.verticalCenter
        symbol: "arrow.up.arrow.down"
        isOn: bar.stack.isReversed
        help: bar.stack.orderHelp
        askingTime: bar.askingTime
        onAction: bar.stack.turnAround()
    }
    HUDButton {
        id: end
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        help: bar.stack.stopHelp
        askingTime: bar.askingTime
        onAction: bar.stack.stop()
    }
}
