// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Transfer
import Vellumry.Views

// How far an import or export is, or what became of it, and the way back.
Column {
    id: box

    required property TransferModel transfer

    width: parent ? parent.width : 0
    spacing: Theme.gap

    Label {
        visible: text !== ""
        width: parent.width
        text: box.transfer.message
        color: Theme.secondary
        font.pixelSize: Theme.formSize
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    PushButton {
        anchors.left: parent.left
        visible: box.transfer.isBusy
        text: Views.words("Stop")
        onPressed: box.transfer.stop()
    }
    PushButton {
        anchors.left: parent.left
        visible: box.transfer.canUndo
        text: Views.words("Undo Import")
        onPressed: box.transfer.undoImport()
    }
}
