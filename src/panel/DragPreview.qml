// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// What the pointer carries: the first clip's title, and how many there are.
FloatingBoard {
    id: preview

    property string title
    property string symbol
    property string count

    boardWidth: content.width + 2 * Theme.margin
    boardHeight: Theme.rowHeight
    radius: Theme.rowRadius
    Accessible.role: Accessible.StaticText
    Accessible.name: title

    Row {
        id: content
        anchors.centerIn: parent
        spacing: Theme.gap

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: preview.symbol
            size: Theme.symbolSize
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth), Theme.transformWidth)
            text: preview.title
            font.pixelSize: Theme.titleSize
        }
        Pill {
            anchors.verticalCenter: parent.verticalCenter
            visible: preview.count !== ""
            text: preview.count
        }
    }
}
