// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// One key or chord, drawn as a cap.
Rectangle {
    id: cap

    property string text
    property bool inverted: false
    property int size: Theme.capSize

    width: Math.max(height, label.implicitWidth + (size > Theme.capSize ? Theme.inset : Theme.gap))
    height: Theme.capHeight
    radius: Theme.smallRadius
    color: inverted ? "transparent" : Theme.cap
    border.color: inverted ? Theme.accent : Theme.capEdge
    border.width: Theme.thin

    Label {
        id: label
        anchors.centerIn: parent
        text: cap.text
        color: cap.inverted ? Theme.accent : Theme.secondary
        font.pixelSize: cap.size
        font.weight: Font.Medium
    }
}
