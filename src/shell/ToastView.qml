// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// A symbol and a sentence.
Rectangle {
    id: toast

    property string symbol
    property string message
    property string tone: "info"
    property bool dark: false
    readonly property color toneColour: tone === "success" ? (dark ? "#5fd08a" : "#177a3e") : tone === "warning" ? (dark ? "#ffb454" : "#9a5b00") : (dark ? "#7fb0ff" : "#1d62dc")

    width: Math.ceil(row.implicitWidth) + 36
    height: 44
    radius: 14
    color: dark ? "#26272c" : "#fcfcfd"
    border.width: 1
    border.color: dark ? "#3c3d44" : "#d2d3d8"
    Accessible.role: Accessible.Notification
    Accessible.name: message

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 10

        Image {
            anchors.verticalCenter: parent.verticalCenter
            width: 19
            height: 19
            sourceSize.width: 19
            sourceSize.height: 19
            source: toast.symbol === "" ? "" : "image://symbol/" + toast.symbol + "/" + String(toast.toneColour).slice(-6)
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: toast.message
            textFormat: Text.PlainText
            color: toast.dark ? "#f1f1f4" : "#19191c"
            font.pixelSize: 14
            font.weight: Font.Medium
            renderType: Text.NativeRendering
        }
    }
}
