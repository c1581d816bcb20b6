// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// A column that scrolls when it is longer than its place, and follows the keyboard to what has it.
Flickable {
    id: pane

    default property alias content: column.data
    property real margin: Theme.inset
    property alias spacing: column.spacing

    function reveal(item: Item): void {
        let above = item;
        while (above && above !== column)
            above = above.parent;
        if (!above)
            return;
        const top = item.mapToItem(column, 0, 0).y;
        const room = Theme.inset * 2;
        if (top - room < contentY)
            contentY = Math.max(0, top - room);
        else if (top + item.height + room > contentY + height)
            contentY = Math.max(0, Math.min(contentHeight - height, top + item.height + room - height));
    }

    contentWidth: width
    contentHeight: column.height + 2 * margin
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    Column {
        id: column
        x: pane.margin
        y: pane.margin
        width: pane.width - 2 * pane.margin
        spacing: Theme.inset
    }
    Connections {
        target: pane.Window.window
        function onActiveFocusItemChanged() {
            if (pane.Window.window.activeFocusItem)
                pane.reveal(pane.Window.window.activeFocusItem);
        }
    }
    ScrollBar {
        parent: pane
        view: pane
        height: pane.height
        x: Views.isRightToLeft ? 0 : pane.width - width
    }
}
