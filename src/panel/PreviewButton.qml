// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel

// A button of the preview: with words, or a symbol alone.
Item {
    id: button

    required property int action
    required property string title
    required property string help
    required property string symbol
    required property bool isProminent
    property real widest: 0
    readonly property bool isAsking: help !== "" && (title === "" ? icon.isAsking : labelled.isAsking)
    signal pressed

    width: title === "" ? icon.width : labelled.width
    height: title === "" ? icon.height : labelled.height

    ActionButton {
        id: labelled
        visible: button.title !== ""
        title: button.title
        help: button.help
        symbol: button.symbol
        isProminent: button.isProminent
        widest: button.widest
        onPressed: button.pressed()
    }
    SymbolButton {
        id: icon
        visible: button.title === ""
        symbol: button.symbol
        help: button.help
        onPressed: button.pressed()
    }
}
