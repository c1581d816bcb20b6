// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// What a button does, in a sentence.
Rectangle {
    id: tooltip

    property string text
    readonly property color cornerColour: Theme.capEdge

    width: words.width + 20
    height: Math.ceil(words.implicitHeight) + 12
    radius: Theme.rowRadius
    color: Theme.cap
    border.width: 1
    border.color: Theme.capEdge
    Accessible.role: Accessible.ToolTip
    Accessible.name: text

    Label {
        id: words
        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), 360)
        text: tooltip.text
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
}
