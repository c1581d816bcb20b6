// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A symbol and a sentence.
Rectangle {
    id: toast

    readonly property color cornerColour: Theme.edge
    property string symbol
    property string message
    property string tone: "info"
    property int maximumWidth: 800 // of the display
    readonly property color toneColour: tone === "success" ? Theme.success : tone === "warning" ? Theme.warning : Theme.accent

    width: 18 + picture.width + 10 + sentence.width + 18
    height: Math.max(44, Math.ceil(sentence.implicitHeight) + 24)
    radius: 14
    color: Theme.ground
    border.width: 1
    border.color: Theme.edge
    LayoutMirroring.enabled: Qt.locale().textDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Notification
    Accessible.name: message

    // Not laid out by a row: the window needs the new size at once.
    Symbol {
        id: picture
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        name: toast.symbol
        tint: toast.toneColour
        size: 19
    }
    Label {
        id: sentence
        anchors.left: picture.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), 560, toast.maximumWidth - 120)
        text: toast.message
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        font.pixelSize: 14
        font.weight: Font.Medium
    }
}
