// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A key and what it does now.
Item {
    id: hint

    required property string keys
    required property string text
    /// Where room is short, the highest goes first.
    required property int rank

    implicitWidth: cap.width + Theme.grid + Math.ceil(does.implicitWidth)
    implicitHeight: Math.max(cap.height, does.implicitHeight)

    Keycap {
        id: cap
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        text: hint.keys
    }
    Label {
        id: does
        anchors.left: cap.right
        anchors.leftMargin: Theme.grid
        anchors.verticalCenter: parent.verticalCenter
        text: hint.text
        color: Theme.secondary
        font.pixelSize: Theme.footerSize
    }
}
