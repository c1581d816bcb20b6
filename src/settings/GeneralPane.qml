// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// How the program starts, pastes and looks.
ScrollPane {
    id: pane

    required property SettingsModel settings

    FormSection {
        SwitchRow {
            title: Views.words("Open Vellumry at login")
            isOn: pane.settings.launchAtLogin
            warning: pane.settings.loginMessage
            onToggled: value => pane.settings.launchAtLogin = value
        }
        PickerRow {
            title: Views.words("Recent clips in the menu")
            labels: pane.settings.recentInMenu.labels
            index: pane.settings.recentInMenu.index
            onChosen: choice => pane.settings.recentInMenu.choose(choice)
        }
        PickerRow {
            title: Views.words("Appearance")
            labels: pane.settings.appearance.labels
            index: pane.settings.appearance.index
            onChosen: choice => pane.settings.appearance.choose(choice)
        }
        FormRow {
            title: Views.words("Panel position")
            help: Views.words("Drag the panel by an empty spot to move it. It opens there next time.")

            PushButton {
                text: Views.words("Move to Center")
                enabled: pane.settings.panelMoved
                onPressed: pane.settings.centerPanel()
            }
        }
        FormRow {
            title: Views.words("What works on this desktop")

            PushButton {
                text: Views.words("Show…")
                help: Views.words("What works on this desktop")
                onPressed: pane.settings.sheet = "report"
            }
        }
    }
    FormSection {
        title: Views.words("Pasting")

        SwitchRow {
            title: Views.words("Paste directly into the app")
            help: Views.words("Off = Vellumry copies and you press ⌘V.")
            isOn: pane.settings.pasteDirectly
            onToggled: value => pane.settings.pasteDirectly = value
        }
        FormRow {
            visible: pane.settings.pasteDirectly
            isNote: true
            symbol: pane.settings.hasAccessibility ? "checkmark.circle.fill" : "exclamationmark.triangle.fill"
            symbolColour: pane.settings.hasAccessibility ? Theme.success : Theme.warning
            title: pane.settings.hasAccessibility ? Views.words("Allowed in Privacy & Security → Accessibility") : Views.words("Needs your OK in Privacy & Security → Accessibility")

            PushButton {
                visible: !pane.settings.hasAccessibility
                width: visible ? implicitWidth : 0
                text: Views.words("Allow…")
                onPressed: pane.settings.allowPasting()
            }
        }
        SwitchRow {
            title: Views.words("Paste as plain text by default")
            isOn: pane.settings.plainTextByDefault
            onToggled: value => pane.settings.plainTextByDefault = value
        }
        SwitchRow {
            title: Views.words("Sound when pasting")
            isOn: pane.settings.soundWhenPasting
            onToggled: value => pane.settings.soundWhenPasting = value
        }
    }
    FormSection {
        title: Views.words("Apps that paste differently")

        Repeater {
            model: pane.settings.terminals

            ApplicationRow {
                id: terminal
                removal: Views.words("Paste into this app as usual again")
                onRemoved: pane.settings.forgetTerminal(index)

                Picker {
                    label: terminal.title
                    labels: [Views.words("Like a terminal"), Views.words("Like other apps")]
                    index: terminal.isChosen ? 0 : 1
                    onChosen: choice => pane.settings.setTerminal(terminal.index, choice === 0)
                }
            }
        }
        FormRow {
            isNote: true
            title: Views.words("Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.")

            PushButton {
                text: Views.words("Add Apps…")
                help: Views.words("Apps that paste differently")
                onPressed: pane.settings.beginChoosing(true)
            }
        }
    }
    FormSection {
        title: Views.words("Screenshots")

        SwitchRow {
            title: Views.words("Save new screenshots")
            help: Views.words("Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.")
            isOn: pane.settings.saveNewScreenshots
            warning: pane.settings.screenshotMessage
            onToggled: value => pane.settings.saveNewScreenshots = value
        }
    }
}
