// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// One key or chord, drawn as a cap.
Rectangle {
    id: cap

    property string text
    property bool inverted: false
    property int size: 11

    width: Math.max(height, label.implicitWidth + 10)
    height: 18
    radius: 4
    color: inverted ? "transparent" : Look.cap
    border.color: inverted ? Look.accent : Look.capEdge
    border.width: 1

    Text {
        id: label
        anchors.centerIn: parent
        text: cap.text
        color: cap.inverted ? Look.accent : Look.secondary
        font.pixelSize: cap.size
        font.weight: Font.Medium
        renderType: Text.NativeRendering
    }
}
