// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// What stands where there are no rows.
Column {
    id: empty

    required property var panel

    spacing: 8
    width: 420

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: empty.panel.hasQuery ? "magnifyingglass" : "doc.on.clipboard.fill"
        size: 36
        tint: Look.capEdge
    }
    Repeater {
        model: empty.panel.emptyLines

        Text {
            required property int index
            required property string modelData

            width: empty.width
            horizontalAlignment: Text.AlignHCenter
            text: modelData
            textFormat: Text.PlainText
            color: index === 0 ? Look.text : Look.secondary
            font.pixelSize: index === 0 ? 16 : 13
            font.weight: index === 0 ? Font.DemiBold : Font.Normal
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            renderType: Text.NativeRendering
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
