// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Onboarding
import Vellumry.Transfer
import Vellumry.Views

// What to remember, and whether it is there after the next login.
FocusScope {
    id: step

    required property OnboardingModel onboarding
    required property TransferModel transfer

    StepLayout {
        anchors.fill: parent
        step: 3
        title: Views.words("You're all set")
        subtitle: Views.words("Vellumry lives in your menu bar. Press the shortcut anytime.")
        buttons: PushButton {
            focus: true
            isChief: true
            text: Views.words("Start Using Vellumry")
            onPressed: step.onboarding.advance()
        }

        Logo {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.logoSize
            height: Theme.logoSize
        }
        FormSection {
            FormRow {
                title: Views.words("Open Vellumry")

                Keycap {
                    size: Theme.formSize
                    height: Theme.controlHeight
                    text: step.onboarding.shortcutDisplay
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
            FormRow {
                title: Views.words("Pastes for you")
                symbol: step.onboarding.hasAccessibility ? "checkmark.circle.fill" : ""
                symbolColour: Theme.success

                Label {
                    text: step.onboarding.hasAccessibility ? Views.words("On") : Views.words("Off: you press ⌘V")
                    color: Theme.secondary
                    font.pixelSize: Theme.formSize
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
            SwitchRow {
                title: Views.words("Open Vellumry at login")
                isOn: step.onboarding.launchAtLogin
                onToggled: value => step.onboarding.launchAtLogin = value
            }
        }
        PeerList {
            visible: step.transfer.historyCount > 0
            title: Views.words("Bring your clips along")
            transfer: step.transfer
        }
        TransferMessage {
            transfer: step.transfer
        }
    }
}
