// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// One of our own symbols, in a colour.
Image {
    property string name
    property color tint: Theme.secondary
    property int size: Theme.symbolSize

    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    source: name === "" ? "" : "image://symbol/" + name + "/" + String(tint).slice(-6)
    smooth: true
}
