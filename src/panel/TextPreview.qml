// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// A text in slices, of which those in sight are laid out; with its styles and with what is searched for marked.
ListView {
    id: scrolled

    required property PreviewModel preview

    objectName: "text"
    model: preview.lines
    clip: true
    reuseItems: true
    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    keyNavigationEnabled: false
    currentIndex: -1
    Accessible.role: Accessible.Document
    Accessible.name: Views.words("Text")

    // The first hit comes into sight, with some of what stands before it.
    function showHit() {
        const row = preview.hitRow;
        if (row < 0)
            return positionViewAtBeginning();
        forceLayout();
        positionViewAtIndex(row, ListView.Beginning);
        const item = itemAtIndex(row);
        if (item === null)
            return;
        measure.text = preview.rowUpToHit();
        const wanted = item.y + measure.contentHeight - height / 3;
        const last = Math.max(originY, originY + contentHeight - height);
        contentY = Math.round(Math.max(originY, Math.min(wanted, last)));
    }

    Connections {
        target: scrolled.model
        function onModelReset() {
            scrolled.positionViewAtBeginning();
        }
    }
    Connections {
        target: scrolled.preview
        function onHitChanged() {
            scrolled.showHit();
        }
    }
    Text {
        // Never seen: how high a slice is up to its hit.
        id: measure
        visible: false
        LayoutMirroring.enabled: false
        width: scrolled.width - Theme.scrollArea
        textFormat: Text.RichText
        wrapMode: Text.Wrap
        font.family: scrolled.preview.isFixedWidth ? Theme.fixedFamily : Theme.family
        font.pixelSize: scrolled.preview.isFixedWidth ? Theme.codeSize : Theme.textSize
        Accessible.ignored: true
    }

    delegate: Text {
        id: slice

        required property string slice
        required property string markup

        // Not mirrored: a text runs as its own letters do.
        LayoutMirroring.enabled: false
        width: scrolled.width - Theme.scrollArea
        text: slice.markup === "" ? slice.slice : slice.markup
        // The markup is our own and names nothing to be fetched.
        textFormat: slice.markup === "" ? Text.PlainText : Text.RichText
        wrapMode: Text.Wrap
        color: Theme.text
        renderType: Text.NativeRendering
        font.family: scrolled.preview.isFixedWidth ? Theme.fixedFamily : Theme.family
        font.pixelSize: scrolled.preview.isFixedWidth ? Theme.codeSize : Theme.textSize
        lineHeight: Theme.readingLine
        Accessible.role: Accessible.StaticText
        Accessible.name: slice.slice
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
