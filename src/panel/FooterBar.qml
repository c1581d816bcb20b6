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
        anchors.right: hints.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: footer.panel.countText
        color: Look.secondary
        font.pixelSize: Look.footerSize
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        renderType: Text.NativeRendering
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Row {
        id: hints
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        spacing: 12

        Repeater {
            model: footer.panel.hints

            Row {
                id: hint
                required property var modelData
                spacing: 4

                Keycap {
                    anchors.verticalCenter: parent.verticalCenter
                    text: hint.modelData.keys
                    size: 10
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: hint.modelData.text
                    color: Look.secondary
                    font.pixelSize: Look.footerSize
                    renderType: Text.NativeRendering
                }
            }
        }
    }
}
