// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The words that were read in a picture.
Item {
    id: section

    required property PreviewModel preview

    height: heading.height + Theme.grid + words.height

    Label {
        id: heading
        width: parent.width
        text: Views.words("Text in image")
        color: Theme.secondary
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    WordsView {
        id: words
        objectName: "textInImage"
        anchors.top: heading.bottom
        anchors.topMargin: Theme.grid
        width: parent.width
        height: Math.min(contentHeight, Theme.wordsHeight)
        text: section.preview.textInImage
        marked: section.preview.markedWords
        upToHit: section.preview.wordsUpToHit
    }
}
