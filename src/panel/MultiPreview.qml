// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// Several clips: how many, and the first few.
Item {
    id: several

    required property PreviewModel preview

    Label {
        id: heading
        width: parent.width
        text: several.preview.heading
        font.pixelSize: Theme.emptyTitleSize
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    EntryList {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: heading.bottom
        anchors.topMargin: Theme.gap
        anchors.bottom: parent.bottom
        entries: several.preview.entries
        more: several.preview.more
    }
}
