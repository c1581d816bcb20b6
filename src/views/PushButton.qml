// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A button of a form: by pointer, by Return and Space, by assistive technology.
Rectangle {
    id: button

    required property string text
    property string symbol
    property string help // for screen readers, which do not see what stands beside it
    property bool isChief: false // what most people are here for
    property bool isDangerous: false
    property real mostWidth: Theme.controlWidth
    readonly property color ink: !enabled ? Theme.secondary : isChief ? Theme.buttonText : isDangerous ? Theme.danger : Theme.text
    signal pressed

    implicitWidth: Math.min(mostWidth, Math.max(Theme.buttonWidth, label.implicitWidth + (symbol === "" ? 0 : picture.width + Theme.gap) + 2 * Theme.margin))
    implicitHeight: Math.max(Theme.controlHeight, label.implicitHeight + Theme.margin)
    radius: Theme.rowRadius
    color: !enabled ? Theme.ground : isChief ? (area.containsPress ? Theme.pressedButton : Theme.button) : area.containsPress ? Theme.edge : area.containsMouse ? Theme.tile : Theme.cap
    border.width: activeFocus ? 2 : isChief && enabled ? 0 : Theme.thin
    border.color: activeFocus ? (isChief ? Theme.text : Theme.accent) : Theme.capEdge
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: help
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: {
        if (button.enabled)
            button.pressed();
    }
    Keys.onReturnPressed: button.pressed()
    Keys.onEnterPressed: button.pressed()
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            button.pressed();
    }

    Symbol {
        id: picture
        visible: button.symbol !== ""
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        name: button.symbol
        tint: button.ink
        size: Theme.smallSymbolSize
    }
    Label {
        id: label
        anchors.left: button.symbol === "" ? parent.left : picture.right
        anchors.leftMargin: button.symbol === "" ? Theme.margin : Theme.gap
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignHCenter
        text: button.text
        color: button.ink
        font.pixelSize: Theme.formSize
        font.weight: Font.Medium
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: {
            button.forceActiveFocus(Qt.MouseFocusReason);
            button.pressed();
        }
    }
}
