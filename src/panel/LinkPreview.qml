// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// An address: whose it is, and all of it. Nothing is fetched.
Item {
    id: link

    required property PreviewModel preview

    Rectangle {
        id: tile
        width: Theme.largeTile
        height: Theme.largeTile
        radius: Theme.rowRadius
        color: Theme.tile
        anchors.left: parent.left
        anchors.top: parent.top

        Symbol {
            anchors.centerIn: parent
            name: "link"
            size: Theme.largeSymbol
            tint: Theme.accent
        }
    }
    Label {
        id: host
        anchors.left: tile.right
        anchors.leftMargin: Theme.margin
        anchors.right: parent.right
        anchors.verticalCenter: tile.verticalCenter
        text: link.preview.host === "" ? Views.words("Link") : link.preview.host
        font.pixelSize: Theme.emptyTitleSize
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    WordsView {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: tile.bottom
        anchors.topMargin: Theme.margin
        anchors.bottom: parent.bottom
        text: link.preview.text
        marked: link.preview.markedText
        upToHit: link.preview.textUpToHit
        isAddress: true
    }
}
