// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A symbol and a sentence.
FloatingBoard {
    id: toast

    property string symbol
    property string message
    property string tone: "info"
    property int maximumWidth: 800 // of the display
    readonly property color toneColour: tone === "success" ? Theme.success : tone === "warning" ? Theme.warning : Theme.accent

    boardWidth: Theme.inset + picture.width + Theme.margin + sentence.width + Theme.inset
    boardHeight: Math.ceil(sentence.implicitHeight) + 2 * Theme.margin
    Accessible.role: Accessible.Notification
    Accessible.name: message

    // Not laid out by a row: the window needs the new size at once.
    Symbol {
        id: picture
        anchors.left: parent.left
        anchors.leftMargin: Theme.inset
        anchors.verticalCenter: parent.verticalCenter
        name: toast.symbol
        tint: toast.toneColour
        size: Theme.symbolSize
    }
    Label {
        id: sentence
        anchors.left: picture.right
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), Theme.messageWidth, toast.maximumWidth - 4 * Theme.iconSize)
        text: toast.message
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        font.pixelSize: Theme.messageSize
        font.weight: Font.Medium
    }
}
