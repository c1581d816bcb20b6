// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Onboarding
import Vellumry.Views

// The whole loop, really done: copy, open, paste.
FocusScope {
    id: step

    required property OnboardingModel onboarding

    Component.onCompleted: field.takeFocus()
    Connections {
        target: step.onboarding
        function onChanged() {
            if (field.text !== step.onboarding.typedText)
                field.text = step.onboarding.typedText;
        }
    }

    StepLayout {
        anchors.fill: parent
        step: 2
        title: Views.words("Try it: takes 5 seconds")
        subtitle: Views.words("This is all Vellumry is. You'll never lose a copy again.")
        buttons: [
            PushButton {
                text: Views.words("Replay")
                onPressed: {
                    step.onboarding.replay();
                    field.takeFocus();
                }
            },
            PushButton {
                isChief: true
                text: Views.words("Continue")
                onPressed: step.onboarding.advance()
            }
        ]

        FormSection {
            TryStage {
                number: 1
                name: Views.words("Copy this")
                help: step.onboarding.sample
                isDone: step.onboarding.copied

                PushButton {
                    text: Views.words("Copy")
                    help: step.onboarding.sample
                    onPressed: {
                        step.onboarding.copySample();
                        field.takeFocus();
                    }
                }
            }
            TryStage {
                number: 2
                name: Views.words("Open Vellumry")
                isDone: step.onboarding.panelOpened

                Row {
                    spacing: Theme.margin

                    Keycap {
                        anchors.verticalCenter: parent.verticalCenter
                        size: Theme.formSize
                        height: Theme.controlHeight
                        text: step.onboarding.shortcutDisplay
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                    PushButton {
                        text: Views.words("Open It for Me")
                        onPressed: {
                            // What is chosen there is to arrive in the field.
                            field.takeFocus();
                            step.onboarding.openPanel();
                        }
                    }
                }
            }
            FormRow {
                visible: step.onboarding.bindings !== ""
                title: step.onboarding.bindingsFile !== "" ? Views.words("For the shortcut, add this to %1").arg(step.onboarding.bindingsFile)
                                                           : Views.words("For the shortcut, bind these in your desktop's settings")
                help: step.onboarding.bindings

                PushButton {
                    text: Views.words("Copy")
                    help: step.onboarding.bindings
                    onPressed: step.onboarding.copyBindings()
                }
            }
            FormRow {
                visible: step.onboarding.shortcutProblem !== ""
                warning: step.onboarding.shortcutProblem
                symbol: "exclamationmark.triangle.fill"
                symbolColour: Theme.warning

                PushButton {
                    visible: step.onboarding.shortcutOffer !== ""
                    width: visible ? implicitWidth : 0
                    text: Views.words("Use %1").arg(step.onboarding.shortcutOffer)
                    onPressed: step.onboarding.takeOfferedShortcut()
                }
            }
            TryStage {
                number: 3
                name: Views.words("Press Return to paste here")
                isDone: step.onboarding.pasted

                TextField {
                    id: field
                    width: Theme.tryFieldWidth
                    label: Views.words("Press Return to paste here")
                    placeholder: Views.words("Your paste lands here")
                    onEdited: step.onboarding.typedText = text
                }
            }
        }
        FormSection {
            visible: step.onboarding.pasted

            FormRow {
                symbol: "sparkles"
                symbolColour: Theme.accent
                title: Views.words("That's it. Everything you copy is now one shortcut away.")
            }
        }
    }
}
