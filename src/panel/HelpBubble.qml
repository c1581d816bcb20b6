// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// What a button does, in a sentence.
Rectangle {
    id: bubble

    property string text
    readonly property color cornerColour: Look.capEdge

    width: words.width + 20
    height: Math.ceil(words.implicitHeight) + 12
    radius: Look.rowRadius
    color: Look.cap
    border.width: 1
    border.color: Look.capEdge
    Accessible.role: Accessible.ToolTip
    Accessible.name: text

    Text {
        id: words
        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), 360)
        text: bubble.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Look.text
        font.pixelSize: Look.smallSize
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
    }
}
