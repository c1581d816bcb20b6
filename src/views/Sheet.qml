// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// Something to be answered before the window goes on: a card over it. Escape is the way out.
FocusScope {
    id: sheet

    required property string title
    property string message
    property real mostHeight: height - 4 * Theme.inset
    property bool fills: false // takes all the height it may have
    default property alias content: body.data
    signal cancelled

    anchors.fill: parent
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Accessible.description: message
    Keys.onEscapePressed: sheet.cancelled()

    Rectangle {
        anchors.fill: parent
        color: Theme.shade
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(sheet.width - 2 * Theme.inset, Theme.alertWidth)
        height: sheet.fills ? sheet.mostHeight : heading.height + body.height + 2 * Theme.alertMargin + Theme.inset
        radius: Theme.radius
        color: Theme.ground
        border.width: Theme.thin
        border.color: Theme.edge

        Column {
            id: heading
            x: Theme.alertMargin
            y: Theme.alertMargin
            width: parent.width - 2 * Theme.alertMargin
            spacing: Theme.gap

            Label {
                width: parent.width
                text: sheet.title
                font.pixelSize: Theme.alertTitleSize
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Label {
                visible: text !== ""
                width: parent.width
                text: sheet.message
                color: Theme.secondary
                font.pixelSize: Theme.formSize
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Item {
            id: body
            x: Theme.alertMargin
            anchors.top: heading.bottom
            anchors.topMargin: Theme.inset
            width: heading.width
            height: sheet.fills ? sheet.mostHeight - heading.height - 2 * Theme.alertMargin - Theme.inset : childrenRect.height
        }
    }
}
