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
    /// Where the words of all buttons do not fit into a line, those of the lesser ones give way.
    property bool isTight: false
    readonly property bool isSymbol: title === "" || (isTight && !isProminent && symbol !== "")
    readonly property real wanted: title === "" ? icon.width : labelled.wanted
    /// What is told where the pointer rests.
    readonly property string told: help !== "" || !isSymbol ? help : title
    readonly property bool isAsking: told !== "" && (isSymbol ? icon.isAsking : labelled.isAsking)
    signal pressed

    width: isSymbol ? icon.width : labelled.width
    height: isSymbol ? icon.height : labelled.height

    ActionButton {
        id: labelled
        visible: !button.isSymbol
        title: button.title
        help: button.help
        symbol: button.symbol
        isProminent: button.isProminent
        widest: button.widest
        onPressed: button.pressed()
    }
    SymbolButton {
        id: icon
        visible: button.isSymbol
        symbol: button.symbol
        help: button.told
        onPressed: button.pressed()
    }
}
