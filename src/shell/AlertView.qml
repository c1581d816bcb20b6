// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A title, a sentence or two, one button.
Rectangle {
    id: root

    required property string title
    required property string message
    required property string button
    signal answered

    width: 440
    height: column.implicitHeight + 48
    color: Theme.ground

    Column {
        id: column
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: 24
        }
        spacing: 10

        Label {
            width: parent.width
            text: root.title
            color: Theme.text
            font.pixelSize: 17
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            width: parent.width
            text: root.message
            color: Theme.secondary
            font.pixelSize: 14
            lineHeight: 1.25
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Item {
            width: parent.width
            height: 44

            Rectangle {
                id: key
                anchors {
                    right: parent.right
                    bottom: parent.bottom
                }
                width: Math.max(96, label.implicitWidth + 40)
                height: 34
                radius: 8
                color: area.containsPress ? "#1f5fd0" : "#2a6fe8"
                focus: true
                Accessible.role: Accessible.Button
                Accessible.name: root.button
                Accessible.onPressAction: root.answered()
                Keys.onReturnPressed: root.answered()
                Keys.onEnterPressed: root.answered()
                Keys.onSpacePressed: root.answered()
                Keys.onEscapePressed: root.answered()

                Label {
                    id: label
                    anchors.centerIn: parent
                    text: root.button
                    color: "white"
                    font.pixelSize: 14
                    font.weight: Font.Medium
                }
                MouseArea {
                    id: area
                    anchors.fill: parent
                    onClicked: root.answered()
                }
            }
        }
    }
}
