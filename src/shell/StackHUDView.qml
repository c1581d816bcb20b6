// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Vellumry.Panel

// How much of the stack waits, which end goes first, and the way out.
Rectangle {
    id: bar

    required property var stack
    readonly property color cornerColour: Look.edge
    readonly property bool isOver: !stack.isActive && stack.pastedCount > 0
    readonly property bool countsDown: !isOver && stack.count > 0
    // 13.5 pixels: only points may be fractions.
    readonly property real textSize: 13.5 * 72 / (Screen.logicalPixelDensity * 25.4)
    // What the button under the resting pointer does; the window has no room for it.
    readonly property string help: order.isAsking ? order.help : end.isAsking ? end.help : ""
    readonly property real helpCentre: (order.isAsking ? order.x : end.x) + end.width / 2
    property int askingTime: 600
    signal reversed
    signal stopped

    width: 16 + Math.ceil(number.implicitWidth + words.implicitWidth) + 12 + order.width + 4 + end.width + 8
    height: 40
    radius: 14
    color: Look.ground
    border.width: 1
    border.color: Look.edge
    LayoutMirroring.enabled: Qt.locale().textDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.ToolBar
    Accessible.name: views.words("Paste Stack")

    // Not laid out by a row: the window needs the new size at once.
    Text {
        id: number
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        rightPadding: text === "" ? 0 : 5
        text: bar.countsDown ? bar.stack.count : ""
        color: Look.text
        font.pointSize: bar.textSize
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
    }
    Text {
        id: words
        anchors.left: number.right
        anchors.verticalCenter: parent.verticalCenter
        text: bar.isOver ? (bar.stack.pastedCount === 1 ? views.words("Pasted") : views.words("All %1 pasted").arg(bar.stack.pastedCount)) : bar.countsDown ? views.words("to paste") : views.words("Copy what you need, then ⌘V")
        color: bar.isOver ? Look.text : Look.secondary
        font.pointSize: bar.textSize
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        Accessible.role: Accessible.StaticText
        Accessible.name: bar.countsDown ? bar.stack.count + " " + text : text
    }
    HUDButton {
        id: order
        anchors.left: words.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        symbol: "arrow.up.arrow.down"
        isOn: bar.stack.isReversed
        help: bar.stack.isReversed ? views.words("Newest first. Click for oldest first") : views.words("Oldest first. Click for newest first")
        askingTime: bar.askingTime
        onAction: bar.reversed()
    }
    HUDButton {
        id: end
        anchors.left: order.right
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        help: views.words("Stop Paste Stack (⌃⌘S)")
        askingTime: bar.askingTime
        onAction: bar.stopped()
    }
}
