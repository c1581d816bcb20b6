// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Onboarding
import Vellumry.Transfer
import Vellumry.Views

// One step after the other.
Rectangle {
    id: root

    required property OnboardingModel onboarding
    required property TransferModel transfer

    function showStep(): void {
        const names = ["Welcome", "Permission", "TryIt", "Done"];
        const values = names[onboarding.step] === "Done" ? {
            onboarding: onboarding,
            transfer: transfer
        } : {
            onboarding: onboarding
        };
        step.setSource(Qt.resolvedUrl(names[onboarding.step] + "Step.qml"), values);
        (step.item as FocusScope).forceActiveFocus(Qt.OtherFocusReason);
        if (onboarding.step > 0 && !Views.reducesMotion())
            arrival.restart();
    }

    color: Theme.ground
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: Views.words("Welcome to Vellumry")
    Component.onCompleted: {
        showStep();
        // What other programs have left is known when the last step shows it.
        transfer.look();
    }
    Keys.onPressed: event => {
        if (event.key === Qt.Key_W && event.modifiers === Qt.ControlModifier) {
            event.accepted = true;
            root.Window.window.close();
        }
    }

    Loader {
        id: step
        focus: true
        width: root.width
        height: root.height
    }
    Connections {
        target: root.onboarding
        function onStepChanged() {
            root.showStep();
        }
    }
    ParallelAnimation {
        id: arrival

        NumberAnimation {
            target: step
            property: "x"
            from: Views.isRightToLeft ? -root.width / 6 : root.width / 6
            to: 0
            duration: 420
            easing.type: Easing.OutBack
            easing.overshoot: 1.1
        }
        NumberAnimation {
            target: step
            property: "opacity"
            from: 0
            to: 1
            duration: 220
        }
    }
}
