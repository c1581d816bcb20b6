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
        FormRow {
            title: Views.words("Updates")

            Label {
                text: Views.words("Off in developer builds")
                color: Theme.secondary
                font.pixelSize: Theme.formSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
}
