// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Transfer
import Vellumry.Views

// Asks for the folder of an export, and warns that its files are not encrypted.
Sheet {
    id: sheet

    required property SettingsModel settings
    required property TransferModel transfer

    title: Views.words("Export everything")
    message: Views.words("Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.")
    onCancelled: settings.sheet = ""
    Component.onCompleted: {
        transfer.forgetMessage();
        folder.text = transfer.suggestedFolder;
        folder.takeFocus();
    }

    Column {
        width: parent.width
        spacing: Theme.margin

        Label {
            width: parent.width
            text: Views.words("New folder")
            font.pixelSize: Theme.formSize
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        TextField {
            id: folder
            objectName: "exportFolder"
            width: parent.width
            label: Views.words("New folder")
            placeholder: Views.words("Path of the folder")
            onAccepted: sheet.transfer.exportTo(folder.text)
        }
        TransferMessage {
            transfer: sheet.transfer
        }
        Row {
            anchors.right: parent.right
            spacing: Theme.gap

            PushButton {
                text: Views.words("Done")
                onPressed: sheet.settings.sheet = ""
            }
            PushButton {
                isChief: true
                enabled: !sheet.transfer.isBusy && folder.text !== ""
                text: Views.words("Export")
                onPressed: sheet.transfer.exportTo(folder.text)
            }
        }
    }
}
