// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Transfer
import Vellumry.Views

// What other clipboard programs have left here, each with its way into the history.
FormSection {
    id: section

    required property TransferModel transfer

    Repeater {
        model: section.transfer.histories

        FormRow {
            id: row

            required property int index
            required property string program
            required property string contents
            required property bool canImport
            required property bool isDone

            symbol: row.isDone ? "checkmark.circle.fill" : row.canImport ? "clock.arrow.circlepath" : "exclamationmark.triangle.fill"
            symbolColour: row.isDone ? Theme.success : row.canImport ? Theme.accent : Theme.warning
            title: row.program
            help: row.contents

            PushButton {
                visible: row.canImport
                enabled: !section.transfer.isBusy
                text: row.isDone ? Views.words("Import Again") : Views.words("Import")
                help: row.program
                onPressed: section.transfer.importHistory(row.index)
            }
        }
    }
}
