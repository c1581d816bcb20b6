// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// On or off. It asks for the other state and shows the one it is told of, so that a refusal springs back by itself.
Item {
    id: control

    required property string label
    required property bool isOn
    property string help
    signal toggled(value: bool)

    function turn(): void {
        if (control.enabled)
            control.toggled(!control.isOn);
    }

    width: Theme.switchWidth
    height: Theme.controlHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.description: help
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: control.turn()
    Accessible.onToggleAction: control.turn()
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            control.turn();
    }

    Rectangle {
        anchors.centerIn: parent
        width: track.width + 6
        height: track.height + 6
        radius: height / 2
        color: "transparent"
        border.width: 2
        border.color: Theme.accent
        visible: control.activeFocus
    }
    Rectangle {
        id: track
        anchors.centerIn: parent
        width: parent.width
        height: Theme.switchHeight
        radius: height / 2
        color: !control.isOn ? Theme.thumb : control.enabled ? Theme.button : Theme.secondary

        Rectangle {
            readonly property bool isAtEnd: control.isOn !== Views.isRightToLeft
            x: isAtEnd ? parent.width - width - 2 : 2
            anchors.verticalCenter: parent.verticalCenter
            width: parent.height - 4
            height: width
            radius: width / 2
            color: control.isOn ? Theme.buttonText : "#ffffff"
        }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: {
            control.forceActiveFocus(Qt.MouseFocusReason);
            control.turn();
        }
    }
}
