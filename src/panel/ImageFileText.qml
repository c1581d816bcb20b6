// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The offer to read the words in a picture file.
Column {
    id: offer

    required property PreviewModel preview

    spacing: Theme.grid

    ActionButton {
        objectName: "readText"
        title: Views.words("Read text in this image")
        symbol: "text.viewfinder"
        widest: offer.width
        onPressed: offer.preview.readText()
    }
    Label {
        width: parent.width
        text: Views.words("So search can find it by its words. macOS may ask you to allow access to this folder once.")
        color: Theme.secondary
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
