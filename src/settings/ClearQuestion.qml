// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// What is to go. The way out has the keyboard.
Sheet {
    id: question

    required property SettingsModel settings

    title: Views.words("Clear your clipboard history?")
    message: Views.words("Delete Everything removes pinned clips too. This can't be undone.")
    onCancelled: settings.sheet = ""

    Column {
        width: parent.width
        spacing: Theme.gap

        PushButton {
            width: parent.width
            mostWidth: parent.width
            text: Views.words("Clear History, Keep Pinned")
            onPressed: {
                question.settings.clearHistory();
                question.settings.sheet = "";
            }
        }
        PushButton {
            width: parent.width
            mostWidth: parent.width
            isDangerous: true
            text: Views.words("Delete Everything")
            onPressed: {
                question.settings.deleteEverything();
                question.settings.sheet = "";
            }
        }
        PushButton {
            width: parent.width
            mostWidth: parent.width
            focus: true
            isChief: true
            text: Views.words("Cancel")
            onPressed: question.settings.sheet = ""
        }
    }
}
