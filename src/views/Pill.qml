// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A small coloured label.
Rectangle {
    id: pill

    property string text
    property color tint: Theme.warning
    property bool onAccent: false

    width: label.implicitWidth + Theme.margin
    height: Theme.capHeight
    radius: height / 2
    color: "transparent"
    border.color: onAccent ? Theme.text : tint
    border.width: Theme.thin

    Label {
        id: label
        anchors.centerIn: parent
        text: pill.text
        color: pill.onAccent ? Theme.text : pill.tint
        font.pixelSize: Theme.capSize
    }
}
