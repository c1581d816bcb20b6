// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A title, a sentence or two, one button; or two, of which the plain one does what is asked about and cannot be undone.
Rectangle {
    id: root

    required property string title
    required property string message
    required property string button
    property string action
    signal confirmed
    signal answered

    width: Theme.alertWidth
    height: column.implicitHeight + 2 * Theme.alertMargin
    color: Theme.ground
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message

    Column {
        id: column
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: Theme.alertMargin
        }
        spacing: Theme.gap

        Label {
            width: parent.width
            text: root.title
            color: Theme.text
            font.pixelSize: Theme.alertTitleSize
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
            font.pixelSize: Theme.messageSize
            lineHeight: 1.25
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Item {
            width: parent.width
            height: key.height + Theme.gap

            Row {
                anchors {
                    right: parent.right
                    bottom: parent.bottom
                }
                spacing: Theme.gap

                AlertButton {
                    id: actionKey
                    visible: root.action.length > 0
                    text: root.action
                    isPlain: true
                    isDangerous: true
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
