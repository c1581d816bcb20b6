// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A tooltip in a window of its own.
FloatingBoard {
    id: help

    property string text

    boardWidth: tip.width
    boardHeight: tip.height
    radius: Theme.rowRadius

    Tooltip {
        id: tip
        text: help.text
        throwsShadow: false // the board's own is there, and all that is seen of the board
    }
}
