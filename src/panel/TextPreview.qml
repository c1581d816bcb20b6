// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// A text in slices, of which those in sight are laid out.
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

    Connections {
        target: scrolled.model
        function onModelReset() {
            scrolled.positionViewAtBeginning();
        }
    }

    delegate: Text {
        id: slice

        required property string slice

        // Not mirrored: a text runs as its own letters do.
        LayoutMirroring.enabled: false
        width: scrolled.width - Theme.scrollArea
        text: slice.slice
        textFormat: Text.PlainText
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
