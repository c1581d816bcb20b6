// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// Files by name, where they are now, and how large they are.
Item {
    id: files

    required property PreviewModel preview

    EntryList {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: words.top
        anchors.bottomMargin: words.height > 0 ? Theme.gap : 0
        entries: files.preview.entries
        more: files.preview.more
    }
    Column {
        id: words
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom

        TextInImageSection {
            visible: files.preview.textInImage !== ""
            width: parent.width
            preview: files.preview
        }
        ReadingTextLabel {
            visible: files.preview.isReadingText
            width: parent.width
        }
        ImageFileText {
            visible: files.preview.offersReading
            preview: files.preview
            width: parent.width
        }
    }
}
