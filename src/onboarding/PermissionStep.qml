// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Onboarding
import Vellumry.Views

// What the program needs of the desktop: to press the paste keys, and the key of the history.
FocusScope {
    id: step

    required property OnboardingModel onboarding
    readonly property bool isAllowed: onboarding.hasAccessibility

    StepLayout {
        anchors.fill: parent
        step: 1
        title: Views.words("Let Vellumry paste for you")
        subtitle: Views.words("Pick a clip and it lands right where you were typing. macOS asks you to allow this once.")
        buttons: [
            PushButton {
                visible: !step.isAllowed
                width: visible ? implicitWidth : 0
                text: Views.words("Not now, I'll press ⌘V myself")
                mostWidth: 300
                onPressed: step.onboarding.advance()
            },
            PushButton {
                focus: true
                isChief: true
                text: step.isAllowed ? Views.words("Continue") : Views.words("Open System Settings")
                onPressed: {
                    if (step.isAllowed)
                        step.onboarding.advance();
                    else
                        step.onboarding.requestTrust();
                }
            }
        ]

        FormSection {
            FormRow {
                visible: step.isAllowed
                symbol: "checkmark.circle.fill"
                symbolColour: Theme.success
                title: Views.words("Allowed. Vellumry can paste for you.")
            }
            FormRow {
                visible: !step.isAllowed
                title: Views.words("Privacy & Security › Accessibility")
                help: "Vellumry"

                // A picture of what to look for.
                Rectangle {
                    width: Theme.switchWidth
                    height: Theme.switchHeight
                    radius: height / 2
                    color: Theme.button

                    Rectangle {
                        x: Views.isRightToLeft ? 2 : parent.width - width - 2
                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.height - 4
                        height: width
                        radius: width / 2
                        color: Theme.buttonText
                    }
                }
            }
            FormRow {
                visible: !step.isAllowed
                symbol: "arrow.triangle.2.circlepath"
                title: Views.words("Switch Vellumry on in System Settings. This screen updates by itself.")
            }
            FormRow {
                visible: step.onboarding.isWaylandSession
                symbol: "exclamationmark.triangle.fill"
                symbolColour: Theme.warning
                title: Views.words("This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing")
            }
            FormRow {
                visible: step.onboarding.offersExtension
                symbol: "gearshape"
                symbolColour: Theme.accent
                title: Views.words("Vellumry's extension for GNOME is off")
                help: Views.words("With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.")

                PushButton {
                    text: Views.words("Switch On")
                    help: Views.words("Vellumry's extension for GNOME is off")
                    onPressed: step.onboarding.switchOnExtension()
                }
            }
            FormRow {
                visible: step.onboarding.extensionMessage !== ""
                isNote: true
                title: step.onboarding.extensionMessage
            }
            FormRow {
                isNote: true
                title: Views.words("Vellumry only presses ⌘V for you. It never reads your screen or what you type.")
            }
        }
        FormSection {
            visible: step.onboarding.isKeyringClosed

            FormRow {
                symbol: "lock.fill"
                symbolColour: Theme.warning
                title: Views.words("Your keyring is locked")
                help: Views.words("Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.")

                PushButton {
                    text: Views.words("Unlock…")
                    help: Views.words("Your keyring is locked")
                    onPressed: step.onboarding.unlockKeyring()
                }
            }
        }
        FormSection {
            FormRow {
                symbol: "folder.fill"
                symbolColour: Theme.accent
                title: Views.words("Files you copy in Finder")
                help: Views.words("Optional. macOS asks once for Desktop, Documents and Downloads.")

                PushButton {
                    text: Views.words("Check")
                    help: Views.words("Files you copy in Finder")
                    onPressed: step.onboarding.checkFiles()
                }
            }
            FormRow {
                visible: step.onboarding.fileAccessMessage !== ""
                isNote: true
                symbol: step.onboarding.isFileAccessAllowed ? "checkmark.circle.fill" : "exclamationmark.triangle.fill"
                symbolColour: step.onboarding.isFileAccessAllowed ? Theme.success : Theme.warning
                title: step.onboarding.fileAccessMessage
            }
        }
    }
}
