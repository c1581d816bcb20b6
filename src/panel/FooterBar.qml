// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// How much there is, and what the keys do.
Item {
    id: footer

    required property PanelFacade panel

    height: 34

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        height: 1
        color: Theme.line
    }
    Label {
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.right: hints.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: footer.panel.countText
        color: Theme.secondary
        font.pixelSize: Theme.footerSize
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
                required property string keys
                required property string text
                spacing: 4

                Keycap {
                    anchors.verticalCenter: parent.verticalCenter
                    text: hint.keys
                    size: 10
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: hint.text
                    color: Theme.secondary
                    font.pixelSize: Theme.footerSize
                }
            }
        }
    }
}
