// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// What the pointer carries: the first clip's title, and how many there are.
Rectangle {
    id: preview

    property string title
    property string symbol
    property string count
    readonly property color cornerColour: Theme.edge

    implicitWidth: content.width + 2 * Theme.margin
    implicitHeight: Theme.rowHeight
    radius: Theme.rowRadius
    color: Theme.ground
    border.color: Theme.edge
    border.width: Theme.thin
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true
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
