// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A board with round corners that floats above everything. Where windows may be translucent it has room for a shadow
// around it; the window that shows it sets how much.
Item {
    id: floating

    default property alias content: board.data
    property int shadowMargin: 0
    property alias color: board.color
    property alias edge: board.border.color
    property alias radius: board.radius
    property real boardWidth: 0
    property real boardHeight: 0
    readonly property color cornerColour: board.border.color

    width: boardWidth + 2 * shadowMargin
    height: boardHeight + 2 * shadowMargin
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true

    Shadow {
        anchors.fill: parent
        visible: floating.shadowMargin > 0
    }
    Rectangle {
        id: board
        x: floating.shadowMargin
        y: floating.shadowMargin
        width: floating.boardWidth
        height: floating.boardHeight
        radius: Theme.radius
        color: Theme.ground
        border.width: Theme.thin
        border.color: Theme.edge
    }
}
