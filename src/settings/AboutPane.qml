// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// What this is, and which one.
ScrollPane {
    id: pane

    required property SettingsModel settings

    Column {
        width: parent.width
        spacing: Theme.gap

        Logo {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.logoSize
            height: Theme.logoSize
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: "Vellumry"
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: Views.words("Copy once. Find it anytime.")
            color: Theme.secondary
            font.pixelSize: Theme.formSize
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: pane.settings.version
            color: Theme.secondary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    FormSection {
        title: Views.words("Updates")

        FormRow {
            visible: !pane.settings.hasUpdates
            title: Views.words("Off in developer builds")
            help: Views.words("Where a package manager keeps Vellumry, it updates it too.")
        }
        SwitchRow {
            visible: pane.settings.hasUpdates
            title: Views.words("Install updates automatically")
            help: Views.words("Vellumry updates itself while you're away from your Mac. Off = it asks first.")
            isOn: pane.settings.installsUpdates
            onToggled: value => pane.settings.installsUpdates = value
        }
        FormRow {
            visible: pane.settings.hasUpdates
            title: Views.words("Checks once a day")
            help: pane.settings.lastChecked

            PushButton {
                text: Views.words("Check Now")
                onPressed: pane.settings.checkForUpdates()
            }
        }
        FormRow {
            visible: pane.settings.updateReady !== ""
            symbol: "arrow.down.circle.fill"
            symbolColour: Theme.accent
            title: pane.settings.updateReady

            PushButton {
                isChief: true
                text: Views.words("Restart Now")
                onPressed: pane.settings.installUpdate()
            }
        }
    }
    Flow {
        width: parent.width
        spacing: Theme.gap

        PushButton {
            text: Views.words("Website")
            symbol: "arrow.up.right"
            onPressed: pane.settings.openWebsite()
        }
        PushButton {
            text: Views.words("Email support")
            symbol: "arrow.up.right"
            onPressed: pane.settings.openSupport()
        }
        PushButton {
            text: Views.words("Privacy policy")
            symbol: "arrow.up.right"
            onPressed: pane.settings.openPrivacy()
        }
        PushButton {
            text: Views.words("Terms")
            symbol: "arrow.up.right"
            onPressed: pane.settings.openTerms()
        }
    }
}
