// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// What the steps have in common: a title, a line below it, what the step is about, and the way on.
Item {
    id: layout

    required property string title
    required property string subtitle
    property int step: 0
    default property alias content: body.data
    property alias buttons: row.data

    ScrollPane {
        id: pane
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: bar.top
        margin: Theme.alertMargin

        Column {
            width: parent.width
            spacing: Theme.gap

            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: layout.title
                font.pixelSize: Theme.headingSize
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: layout.subtitle
                color: Theme.secondary
                font.pixelSize: Theme.messageSize
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Column {
            id: body
            width: parent.width
            spacing: Theme.inset
        }
    }
    Item {
        id: bar
        anchors.bottom: parent.bottom
        width: parent.width
        height: row.height + 2 * Theme.inset

        Rectangle {
            width: parent.width
            height: Theme.thin
            color: Theme.line
        }
        Row {
            // How far it is.
            anchors.left: parent.left
            anchors.leftMargin: Theme.alertMargin
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gap

            Repeater {
                model: 4

                Rectangle {
                    required property int index
                    width: Theme.gap
                    height: width
                    radius: width / 2
                    color: index <= layout.step ? Theme.accent : Theme.edge
                }
            }
        }
        Row {
            id: row
            anchors.right: parent.right
            anchors.rightMargin: Theme.alertMargin
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gap
        }
    }
}
