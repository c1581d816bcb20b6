// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A tooltip in a window of its own.
FloatingBoard {
    id: help

    property alias text: tooltip.text

    boardWidth: tooltip.width
    boardHeight: tooltip.height
    radius: Theme.rowRadius
    edge: Theme.capEdge

    Tooltip {
        id: tooltip
    }
}
