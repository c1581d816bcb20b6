// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Transfer
import Vellumry.Views

// What other programs have left, and folders that were exported.
Sheet {
    id: sheet

    required property SettingsModel settings
    required property TransferModel transfer

    title: Views.words("Import clips")
    message: Views.words("The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.")
    fills: true
    onCancelled: settings.sheet = ""
    Component.onCompleted: {
        transfer.forgetMessage();
        transfer.look();
        done.forceActiveFocus(Qt.PopupFocusReason);
    }

    ScrollPane {
        anchors.top: parent.top
        anchors.bottom: outcome.top
        anchors.bottomMargin: Theme.margin
        width: parent.width
        margin: 0

        PeerList {
            visible: sheet.transfer.historyCount > 0
            title: Views.words("Other apps")
            transfer: sheet.transfer
        }
        Label {
            visible: sheet.transfer.historyCount === 0
            width: parent.width
            text: sheet.transfer.isLooking ? Views.words("Looking for other clipboard apps…") : Views.words("No history of CopyQ, GPaste, Klipper or Clipman was found.")
            color: Theme.secondary
            font.pixelSize: Theme.formSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Column {
            width: parent.width
            spacing: Theme.gap

            Label {
                width: parent.width
                text: Views.words("A folder that Vellumry exported")
                font.pixelSize: Theme.formSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            TextField {
                id: folder
                width: parent.width
                label: Views.words("Folder to import from")
                placeholder: Views.words("Path of the folder")
                onAccepted: sheet.transfer.importFolder(folder.text)
            }
            PushButton {
                anchors.left: parent.left
                enabled: !sheet.transfer.isBusy && folder.text !== ""
                text: Views.words("Import Folder")
                onPressed: sheet.transfer.importFolder(folder.text)
            }
        }
    }
    TransferMessage {
        id: outcome
        anchors.bottom: done.top
        anchors.bottomMargin: Theme.margin
        transfer: sheet.transfer
    }
    PushButton {
        id: done
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        focus: true
        isChief: true
        text: Views.words("Done")
        onPressed: sheet.settings.sheet = ""
    }
}
