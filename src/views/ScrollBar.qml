// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// Where a view stands in what it scrolls. The thumb can be dragged, and a press beside it turns a page.
Item {
    id: bar

    required property Flickable view
    readonly property real rest: view.contentHeight - view.height

    function go(place: real): void {
        view.contentY = view.originY + Math.max(0, Math.min(rest, place));
    }

    visible: rest > 0.5
    width: Theme.scrollArea
    Accessible.ignored: true

    Rectangle {
        id: thumb
        readonly property real room: bar.height - height
        anchors.horizontalCenter: parent.horizontalCenter
        width: grip.containsMouse || grip.pressed ? Theme.scrollBar : Theme.scrollBar / 2
        radius: width / 2
        color: Theme.thumb
        height: Math.max(Theme.leastThumb, bar.height * Math.min(1, bar.view.height / Math.max(1, bar.view.contentHeight)))
        y: bar.rest <= 0 ? 0 : Math.max(0, Math.min(1, (bar.view.contentY - bar.view.originY) / bar.rest)) * room
    }
    MouseArea {
        id: grip
        property real heldAt: -1

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: mouse => {
            const onThumb = mouse.y >= thumb.y && mouse.y <= thumb.y + thumb.height;
            heldAt = onThumb ? mouse.y - thumb.y : -1;
            if (!onThumb)
                bar.go(bar.view.contentY - bar.view.originY + (mouse.y < thumb.y ? -1 : 1) * bar.view.height * 0.9);
        }
        onPositionChanged: mouse => {
            if (pressed && heldAt >= 0 && thumb.room > 0)
                bar.go((mouse.y - heldAt) / thumb.room * bar.rest);
        }
        onReleased: heldAt = -1
    }
}
