// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// Scrolls with the wheel alone: dragging belongs to what lies in the view.
WheelHandler {
    id: wheel

    required property Flickable flickable

    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    target: null
    onWheel: event => {
        // Touchpads tell pixels, wheels eighths of a degree: a notch of 120 is three lines.
        const moved = event.pixelDelta.y !== 0 ? event.pixelDelta.y : event.angleDelta.y / 120 * 3 * Theme.titleLine;
        const lowest = wheel.flickable.originY + Math.max(0, wheel.flickable.contentHeight - wheel.flickable.height);
        wheel.flickable.contentY = Math.max(wheel.flickable.originY, Math.min(wheel.flickable.contentY - moved, lowest));
    }
}
