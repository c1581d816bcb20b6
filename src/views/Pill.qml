// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A small coloured label.
Rectangle {
    id: pill

    property string text
    property color tint: Theme.warning
    property bool onAccent: false

    width: label.implicitWidth + 14
    height: 18
    radius: 9
    color: "transparent"
    border.color: onAccent ? Theme.text : tint
    border.width: 1

    Label {
        id: label
        anchors.centerIn: parent
        text: pill.text
        color: pill.onAccent ? Theme.text : pill.tint
        font.pixelSize: 11
    }
}
