// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A title, a sentence or two, one button; or two, of which the plain one does what is asked about.
Rectangle {
    id: root

    required property string title
    required property string message
    required property string button
    property string action
    signal confirmed
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

            Row {
                anchors {
                    right: parent.right
                    bottom: parent.bottom
                }
                spacing: 10

                AlertButton {
                    id: actionKey
                    visible: root.action.length > 0
                    text: root.action
                    isPlain: true
                    KeyNavigation.tab: key
                    KeyNavigation.right: key
                    onPressed: {
                        root.confirmed();
                        root.answered();
                    }
                    onCancelled: root.answered()
                }
                AlertButton {
                    id: key
                    text: root.button
                    focus: true
                    KeyNavigation.tab: actionKey.visible ? actionKey : key
                    KeyNavigation.left: actionKey.visible ? actionKey : key
                    onPressed: root.answered()
                    onCancelled: root.answered()
                }
            }
        }
    }
}
