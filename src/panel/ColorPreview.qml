// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// A colour, and the ways in which it is written.
Item {
    id: color

    required property PreviewModel preview

    Rectangle {
        // What a translucent colour lets through.
        anchors.fill: swatch
        radius: swatch.radius
        color: Theme.paper
    }
    Rectangle {
        id: swatch
        objectName: "swatch"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: Math.min(Theme.swatchHeight, parent.height / 2)
        radius: Theme.rowRadius
        color: color.preview.swatch === "" ? Theme.tile : color.preview.swatch
        border.width: Theme.thin
        border.color: Theme.edge
        Accessible.role: Accessible.Graphic
        Accessible.name: Views.words("Color")
    }
    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: swatch.bottom
        anchors.topMargin: Theme.margin
        spacing: Theme.gap

        Repeater {
            model: color.preview.notations

            Label {
                required property int index
                required property string modelData

                width: color.width
                text: modelData
                color: index === 0 ? Theme.text : Theme.secondary
                font.family: Theme.fixedFamily
                font.pixelSize: index === 0 ? Theme.emptyTitleSize : Theme.textSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
}
