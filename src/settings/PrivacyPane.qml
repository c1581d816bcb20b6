// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// What is never kept, what goes by itself, and what may be read.
ScrollPane {
    id: pane

    required property SettingsModel settings

    FormSection {
        title: Views.words("Never save clips from")

        Repeater {
            model: pane.settings.ignoredApps

            ApplicationRow {
                removal: Views.words("Save clips from this app again")
                onRemoved: pane.settings.saveFrom(index)
            }
        }
        FormRow {
            isNote: true
            title: pane.settings.moreManagers

            PushButton {
                text: Views.words("Add Apps…")
                help: Views.words("Never save clips from")
                onPressed: pane.settings.beginChoosing(false)
            }
        }
    }
    FormSection {
        title: Views.words("Secrets")

        FormRow {
            title: Views.words("Skip passwords from password managers")
            help: Views.words("Anything an app marks as secret or temporary is never saved.")

            Label {
                text: Views.words("Always on")
                color: Theme.secondary
                font.pixelSize: Theme.formSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        FormRow {
            title: Views.words("Auto-delete card numbers, codes and API keys")

            Label {
                text: Views.words("Always on")
                color: Theme.secondary
                font.pixelSize: Theme.formSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        PickerRow {
            title: Views.words("Delete them")
            labels: pane.settings.secretSeconds.labels
            index: pane.settings.secretSeconds.index
            onChosen: choice => pane.settings.secretSeconds.choose(choice)
        }
    }
    FormSection {
        title: Views.words("Files")

        FormRow {
            title: Views.words("Paste files from Desktop, Documents and Downloads")
            help: Views.words("macOS asks once per folder. Vellumry only opens a file when you paste or copy it.")

            PushButton {
                text: Views.words("Check")
                help: Views.words("Paste files from Desktop, Documents and Downloads")
                onPressed: pane.settings.allowFileFolders()
            }
        }
        FormRow {
            visible: pane.settings.fileAccessMessage !== ""
            isNote: true
            symbol: pane.settings.isFileAccessAllowed ? "checkmark.circle.fill" : "exclamationmark.triangle.fill"
            symbolColour: pane.settings.isFileAccessAllowed ? Theme.success : Theme.warning
            title: pane.settings.fileAccessMessage
        }
    }
}
