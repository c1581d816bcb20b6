// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// A small coloured label.
Rectangle {
    id: pill

    property string text
    property color tint: Look.warning
    property bool onAccent: false

    width: label.implicitWidth + 14
    height: 18
    radius: 9
    color: "transparent"
    border.color: onAccent ? Look.text : tint
    border.width: 1

    Text {
        id: label
        anchors.centerIn: parent
        text: pill.text
        color: pill.onAccent ? Look.text : pill.tint
        font.pixelSize: 11
        renderType: Text.NativeRendering
    }
}
