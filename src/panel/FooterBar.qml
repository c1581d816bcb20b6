// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// How much there is, and what the keys do.
Item {
    id: footer

    required property var panel

    height: 34

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        height: 1
        color: Look.line
    }
    Text {
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: footer.panel.countText
        color: Look.secondary
        font.pixelSize: 12
        renderType: Text.NativeRendering
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14

        Repeater {
            model: footer.panel.hints

            Row {
                id: hint
                required property var modelData
                spacing: 5

                Keycap {
                    anchors.verticalCenter: parent.verticalCenter
                    text: hint.modelData.keys
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: hint.modelData.text
                    color: Look.secondary
                    font.pixelSize: 12
                    renderType: Text.NativeRendering
                }
            }
        }
    }
}
