// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// How much is kept, what it takes, and how it goes.
ScrollPane {
    id: pane

    required property SettingsModel settings

    Component.onCompleted: settings.refreshAll()

    FormSection {
        PickerRow {
            title: Views.words("Keep clips for")
            labels: pane.settings.keepForDays.labels
            index: pane.settings.keepForDays.index
            onChosen: choice => pane.settings.keepForDays.choose(choice)
        }
        PickerRow {
            title: Views.words("Keep at most")
            labels: pane.settings.keepAtMost.labels
            index: pane.settings.keepAtMost.index
            onChosen: choice => pane.settings.keepAtMost.choose(choice)
        }
        PickerRow {
            title: Views.words("Images and files take up to")
            labels: pane.settings.mediaLimitMB.labels
            index: pane.settings.mediaLimitMB.index
            onChosen: choice => pane.settings.mediaLimitMB.choose(choice)
        }
        FormRow {
            isNote: true
            title: Views.words("Oldest unpinned clips go first. Pinned clips are always kept.")
        }
    }
    FormSection {
        title: Views.words("Storage")

        FormRow {
            title: Views.words("History")

            Label {
                text: pane.settings.historySize
                color: Theme.secondary
                font.pixelSize: Theme.formSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        FormRow {
            title: Views.words("Import")
            help: Views.words("From another clipboard app, or from a folder that Vellumry exported.")

            PushButton {
                text: Views.words("Import…")
                help: Views.words("From another clipboard app, or from a folder that Vellumry exported.")
                onPressed: pane.settings.sheet = "import"
            }
        }
        FormRow {
            title: Views.words("Export everything")
            help: Views.words("To a folder of ordinary files.")

            PushButton {
                text: Views.words("Export…")
                help: Views.words("Export everything")
                onPressed: pane.settings.sheet = "export"
            }
        }
        FormRow {
            title: Views.words("Clear history")
            help: Views.words("Keep pinned clips, or delete everything.")

            PushButton {
                text: Views.words("Clear…")
                help: Views.words("Clear history")
                onPressed: pane.settings.sheet = "clear"
            }
        }
    }
}
