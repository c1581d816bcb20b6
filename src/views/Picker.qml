// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// One of several values. Up and Down go through them; Space, Return or a click opens the list.
Rectangle {
    id: picker

    required property string label
    required property list<string> labels
    required property int index
    property string help
    readonly property string shown: index >= 0 && index < labels.length ? labels[index] : ""
    readonly property bool isOpen: list.status === Loader.Ready
    signal chosen(choice: int)

    function open(): void {
        list.setSource(Qt.resolvedUrl("PickerList.qml"), {
            ground: Window.window.contentItem,
            origin: picker,
            label: label,
            labels: labels,
            index: index
        });
    }
    function close(): void {
        if (!isOpen)
            return;
        list.source = "";
        picker.forceActiveFocus(Qt.PopupFocusReason);
    }
    function pick(choice: int): void {
        close();
        if (choice !== picker.index)
            picker.chosen(choice);
    }
    function step(by: int): void {
        const next = Math.max(0, Math.min(labels.length - 1, index + by));
        if (next !== index)
            picker.chosen(next);
    }

    width: Math.min(Theme.controlWidth, Math.max(Theme.pickerWidth, words.implicitWidth + Theme.margin + Theme.smallSymbolSize + 2 * Theme.gap))
    height: Theme.controlHeight
    radius: Theme.rowRadius
    color: area.containsMouse ? Theme.tile : Theme.cap
    border.width: activeFocus ? 2 : Theme.thin
    border.color: activeFocus ? Theme.accent : Theme.capEdge
    activeFocusOnTab: true
    Accessible.role: Accessible.ComboBox
    Accessible.name: label
    Accessible.description: shown
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: picker.open()
    Accessible.onIncreaseAction: picker.step(1)
    Accessible.onDecreaseAction: picker.step(-1)
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: event => {
        if (event.modifiers & Qt.AltModifier)
            picker.open();
        else
            picker.step(1);
    }
    Keys.onSpacePressed: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()

    Label {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.right: arrows.left
        anchors.verticalCenter: parent.verticalCenter
        text: picker.shown
        color: Theme.text
        font.pixelSize: Theme.formSize
    }
    Symbol {
        id: arrows
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.up.chevron.down"
        size: Theme.smallSymbolSize
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: {
            picker.forceActiveFocus(Qt.MouseFocusReason);
            picker.open();
        }
    }
    Loader {
        id: list
    }
    Connections {
        target: list.item as PickerList
        function onPicked(choice: int) {
            picker.pick(choice);
        }
        function onClosed() {
            picker.close();
        }
    }
}
