// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// What a button does, in a sentence.
Rectangle {
    id: tooltip

    property string text
    property bool throwsShadow: true

    width: words.width + 2 * Theme.margin
    height: Math.ceil(words.implicitHeight) + Theme.margin
    radius: Theme.rowRadius
    color: Theme.cap
    border.width: Theme.thin
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true
    border.color: Theme.capEdge
    Accessible.role: Accessible.ToolTip
    Accessible.name: text

    Shadow {
        anchors.fill: parent
        anchors.margins: -Theme.smallShadow
        visible: tooltip.throwsShadow
        // Behind the tooltip's own ground.
        z: -1
    }
    Label {
        id: words
        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), Theme.tooltipWidth)
        text: tooltip.text
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
}
