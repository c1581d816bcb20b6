// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A short text that scrolls where it is longer than its room.
Flickable {
    id: scrolled

    required property string text
    property bool isAddress: false

    clip: true
    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    contentWidth: width
    contentHeight: words.implicitHeight

    Text {
        id: words
        LayoutMirroring.enabled: false
        width: scrolled.width - Theme.scrollArea
        text: scrolled.text
        textFormat: Text.PlainText
        wrapMode: scrolled.isAddress ? Text.WrapAnywhere : Text.Wrap
        color: Theme.text
        renderType: Text.NativeRendering
        font.family: scrolled.isAddress ? Theme.fixedFamily : Theme.family
        font.pixelSize: scrolled.isAddress ? Theme.codeSize : Theme.textSize
        lineHeight: Theme.readingLine
        Accessible.role: Accessible.StaticText
        Accessible.name: scrolled.text
    }
    WheelScroll {
        flickable: scrolled
    }
    ScrollBar {
        // Beside the text, which is not mirrored.
        LayoutMirroring.enabled: false
        parent: scrolled
        view: scrolled
        anchors.right: parent.right
        height: parent.height
    }
}
