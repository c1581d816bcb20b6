// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// The global shortcuts, and the panel's keys to read.
ScrollPane {
    id: pane

    required property SettingsModel settings

    FormSection {
        title: Views.words("In every app")

        FormRow {
            title: Views.words("Open Vellumry")

            RecorderButton {
                label: Views.words("Open Vellumry")
                recorder: pane.settings.openPanelShortcut
            }
        }
        FormRow {
            title: Views.words("Start / stop Paste Stack")

            RecorderButton {
                label: Views.words("Start / stop Paste Stack")
                recorder: pane.settings.pasteStackShortcut
            }
        }
        Repeater {
            model: pane.settings.shortcutProblems

            FormRow {
                required property string modelData
                warning: modelData
                symbol: "exclamationmark.triangle.fill"
                symbolColour: Theme.warning
            }
        }
        FormRow {
            visible: pane.settings.shortcutOffer !== ""
            title: Views.words("%1 is free.").arg(pane.settings.shortcutOffer)

            PushButton {
                text: Views.words("Use It")
                help: pane.settings.shortcutOffer
                onPressed: pane.settings.takeOfferedShortcut()
            }
        }
        SwitchRow {
            title: Views.words("Paste pinned clips with ⌃⌥1 … ⌃⌥9")
            help: Views.words("Works in every app, without opening Vellumry.")
            isOn: pane.settings.pinnedShortcutsEnabled
            onToggled: value => pane.settings.pinnedShortcutsEnabled = value
        }
        FormRow {
            isNote: true
            title: Views.words("Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.")
        }
    }
    FormSection {
        title: Views.words("In the panel")

        FixedKeys {
            title: Views.words("Paste · paste as plain text")
            keys: [Views.words("↩"), Views.words("⇧↩")]
        }
        FixedKeys {
            title: Views.words("Paste clip 1–9")
            keys: [Views.words("⌘1 … ⌘9")]
        }
        FixedKeys {
            title: Views.words("Select several · merge")
            keys: [Views.words("⇧↑  ⇧↓"), Views.words("⌘M")]
        }
        FixedKeys {
            title: Views.words("Pin · delete · copy")
            keys: [Views.words("⌘P"), Views.words("⌘⌫"), Views.words("⌘C")]
        }
        FixedKeys {
            title: Views.words("Transforms")
            keys: [Views.words("⌘T")]
        }
        FixedKeys {
            title: Views.words("Next filter · close")
            keys: [Views.words("⇥"), Views.words("⎋")]
        }
    }
}
