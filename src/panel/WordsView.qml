// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A short text that scrolls where it is longer than its room; what is searched for is marked and in sight.
Flickable {
    id: scrolled

    required property string text
    // The text with its hits marked, and its beginning up to the end of the first; empty without hits.
    property string marked: ""
    property string upToHit: ""
    property bool isAddress: false

    onUpToHitChanged: showing.restart()
    onTextChanged: showing.restart()

    clip: true
    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    contentWidth: width
    contentHeight: words.implicitHeight

    Timer {
        // Once both texts are laid out.
        id: showing
        interval: 0
        onTriggered: {
            const wanted = scrolled.upToHit === "" ? 0 : measure.contentHeight - scrolled.height / 2;
            scrolled.contentY = Math.round(Math.max(0, Math.min(wanted, scrolled.contentHeight - scrolled.height)));
        }
    }
    Text {
        id: words
        LayoutMirroring.enabled: false
        width: scrolled.width - Theme.scrollArea
        text: scrolled.marked === "" ? scrolled.text : scrolled.marked
        textFormat: scrolled.marked === "" ? Text.PlainText : Text.RichText
        wrapMode: scrolled.isAddress ? Text.WrapAnywhere : Text.Wrap
        color: Theme.text
        renderType: Text.NativeRendering
        font.family: scrolled.isAddress ? Theme.fixedFamily : Theme.family
        font.pixelSize: scrolled.isAddress ? Theme.codeSize : Theme.textSize
        lineHeight: Theme.readingLine
        Accessible.role: Accessible.StaticText
        Accessible.name: scrolled.text
    }
    Text {
        // Never seen: how high the text is up to its first hit.
        id: measure
        visible: false
        LayoutMirroring.enabled: false
        width: words.width
        text: scrolled.upToHit
        textFormat: Text.RichText
        wrapMode: words.wrapMode
        font: words.font
        Accessible.ignored: true
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
