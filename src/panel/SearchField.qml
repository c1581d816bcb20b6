// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// Where the user types.
Item {
    id: field

    required property PanelFacade panel
    readonly property SearchInput input: holder.item as SearchInput

    // A bound component cannot be loaded in Qt 6.4, so the input is a file of its own.
    function makeInput() {
        holder.setSource("");
        holder.setSource("SearchInput.qml", { panel: field.panel });
    }

    height: Theme.fieldHeight
    Component.onCompleted: makeInput()
    Window.onVisibilityChanged: {
        if (field.Window.visibility === Window.Hidden)
            renewal.start();
    }

    // What can be undone would keep what was typed or pasted, even when the text has been cleared: each showing has an
    // input of its own. Not while the old one handles the key that closes the panel.
    Timer {
        id: renewal
        interval: 0
        onTriggered: field.makeInput()
    }
    Loader {
        id: holder
        anchors.fill: parent
        focus: true
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.MiddleButton
        cursorShape: Qt.IBeamCursor
        onClicked: field.panel.pasteIntoField()
    }
    Label {
        anchors.fill: parent
        anchors.leftMargin: Theme.thin
        verticalAlignment: Text.AlignVCenter
        visible: field.input !== null && field.input.text === "" && field.input.preeditText === ""
        text: Views.words("Search clips")
        color: Theme.secondary
        font.pixelSize: Theme.fieldSize
    }
}
