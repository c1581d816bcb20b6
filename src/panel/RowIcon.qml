// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// What a clip looks like in small: its picture, its colour, or the symbol of its kind.
Rectangle {
    id: icon

    property string symbol
    property string thumbnail
    property string swatch
    property bool isSelected: false
    property int size: Theme.iconSize

    width: size
    height: size
    radius: Theme.tileRadius
    color: swatch !== "" ? swatch : isSelected ? Theme.selectedTile : Theme.tile
    border.width: swatch !== "" ? Theme.thin : 0
    border.color: Theme.edge

    Symbol {
        anchors.centerIn: parent
        visible: icon.thumbnail === "" && icon.swatch === ""
        name: visible ? icon.symbol : ""
        tint: icon.isSelected ? Theme.accent : Theme.secondary
        size: Theme.symbolSize
    }
    Image {
        anchors.fill: parent
        visible: icon.thumbnail !== ""
        source: icon.thumbnail
        sourceSize.width: icon.size
        sourceSize.height: icon.size
        asynchronous: false
    }
}
