// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// What stands where there are no rows.
Column {
    id: empty

    required property PanelFacade panel

    spacing: Theme.gap
    width: Theme.emptyWidth

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: empty.panel.hasQuery ? "magnifyingglass" : "doc.on.clipboard.fill"
        size: Theme.emptySymbolSize
        tint: Theme.capEdge
    }
    Repeater {
        model: empty.panel.emptyLines

        Label {
            required property int index
            required property string modelData

            width: empty.width
            horizontalAlignment: Text.AlignHCenter
            text: modelData
            color: index === 0 ? Theme.text : Theme.secondary
            font.pixelSize: index === 0 ? Theme.emptyTitleSize : Theme.emptySize
            font.weight: index === 0 ? Font.DemiBold : Font.Normal
            wrapMode: Text.Wrap
            maximumLineCount: 3
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
