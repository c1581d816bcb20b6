// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Shell
import Vellumry.Views

// How much of the stack waits, which end goes first, and the way out.
Rectangle {
    id: bar

    required property StackHUDModel stack
    readonly property color cornerColour: Theme.edge
    // What the button under the resting pointer does; the window has no room for it.
    readonly property string help: order.isAsking ? order.help : end.isAsking ? end.help : ""
    readonly property real helpCentre: (order.isAsking ? order.x : end.x) + end.width / 2
    property int askingTime: Theme.askingTime

    width: Theme.inset + Math.ceil(words.implicitWidth) + Theme.margin + order.width + Theme.grid + end.width + Theme.gap
    height: Theme.barHeight
    radius: Theme.radius
    color: Theme.ground
    border.width: Theme.thin
    border.color: Theme.edge
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true
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
    HUDButton {
        id: order
        anchors.left: words.right
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        symbol: "arrow.up.arrow.down"
        isOn: bar.stack.isReversed
        help: bar.stack.orderHelp
        askingTime: bar.askingTime
        onAction: bar.stack.turnAround()
    }
    HUDButton {
        id: end
        anchors.left: order.right
        anchors.leftMargin: Theme.grid
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        help: bar.stack.stopHelp
        askingTime: bar.askingTime
        onAction: bar.stack.stop()
    }
}
