// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The open menu over the panel. A press beside it closes it; the keys reach it by way of the search field, which keeps
// the keyboard.
Item {
    id: popup

    required property PanelFacade panel
    readonly property PanelMenu menu: panel.menu
    // The menu's place counts in the window.
    readonly property point place: Qt.point(menu.place.x - x, menu.place.y - y)
    /// A right press beside the menu, which is meant for what lies there.
    signal pressedBeside(x: real, y: real)

    /// Where a board of that size begins, as near to `wanted` as it fits.
    function fit(wanted: real, size: real, room: real): real {
        return Math.round(Math.max(Theme.gap, Math.min(wanted, room - size - Theme.gap)));
    }

    visible: menu.isOpen

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: mouse => {
            popup.menu.close();
            if (mouse.button === Qt.RightButton)
                popup.pressedBeside(mouse.x, mouse.y);
        }
        onWheel: wheel => wheel.accepted = true
    }
    MenuBoard {
        id: board
        objectName: "menu"
        menu: popup.menu
        level: popup.menu.root
        isRoot: true
        mostHeight: popup.height - 2 * Theme.gap
        x: popup.fit(Views.isRightToLeft ? popup.place.x - width : popup.place.x, width, popup.width)
        y: popup.fit(popup.place.y, height, popup.height)
        Accessible.name: popup.menu.name
    }
    MenuBoard {
        readonly property real after: board.x + board.width - Theme.grid
        readonly property real before: board.x - width + Theme.grid
        readonly property bool fitsAfter: after + width + Theme.gap <= popup.width
        readonly property bool fitsBefore: before >= Theme.gap

        objectName: "submenu"
        menu: popup.menu
        level: popup.menu.sub
        isRoot: false
        visible: popup.menu.subRow >= 0
        mostHeight: board.mostHeight
        x: popup.fit((Views.isRightToLeft ? fitsBefore : !fitsAfter) ? before : after, width, popup.width)
        y: popup.fit(board.y + board.topOf(popup.menu.subRow) - Theme.grid, height, popup.height)
        Accessible.name: board.textOf(popup.menu.subRow)
    }
}
