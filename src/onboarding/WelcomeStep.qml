// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Onboarding
import Vellumry.Views

// What it is for, in three lines.
FocusScope {
    id: step

    required property OnboardingModel onboarding
    readonly property bool isStill: Views.reducesMotion()

    StepLayout {
        anchors.fill: parent
        step: 0
        title: Views.words("Welcome to Vellumry")
        subtitle: Views.words("Copy once. Find it anytime.")
        buttons: PushButton {
            focus: true
            isChief: true
            text: Views.words("Get Started")
            onPressed: step.onboarding.advance()
        }

        Logo {
            id: logo
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.welcomeLogo
            height: Theme.welcomeLogo

            NumberAnimation on time {
                running: !step.isStill
                from: 0
                to: logo.duration
                duration: logo.duration * 1000
            }
        }
        FormSection {
            opacity: step.isStill ? 1 : 0

            NumberAnimation on opacity {
                running: !step.isStill
                from: 0
                to: 1
                duration: 600
            }
            FormRow {
                symbol: "doc.on.clipboard.fill"
                symbolColour: Theme.accent
                title: Views.words("Remembers everything you copy")
                help: Views.words("Text, links, images, files and colors.")
            }
            FormRow {
                symbol: "magnifyingglass"
                symbolColour: Theme.accent
                title: Views.words("Finds it in a keystroke")
                help: Views.words("Type two letters. Even text inside screenshots.")
            }
            FormRow {
                symbol: "lock.shield.fill"
                symbolColour: Theme.accent
                title: Views.words("Private and encrypted")
                help: Views.words("Your clips never leave this Mac.")
            }
        }
    }
}
