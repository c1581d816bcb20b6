// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// Rows of a form that belong together, under a heading.
Column {
    id: section

    property string title
    default property alias rows: body.data

    width: parent ? parent.width : 0
    spacing: Theme.gap
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Label {
        visible: section.title !== ""
        width: parent.width
        text: section.title
        color: Theme.secondary
        font.pixelSize: Theme.formSize
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Rectangle {
        width: parent.width
        height: body.height
        radius: Theme.radius
        color: Theme.card
        border.width: Theme.thin
        border.color: Theme.line

        Column {
            id: body
            width: parent.width
        }
    }
}
