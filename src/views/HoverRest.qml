// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// Tells when the pointer has come to rest on something, long enough to be taken for a question.
Timer {
    id: rest

    required property bool isHovered
    property bool isAsking: false

    interval: Theme.askingTime
    running: isHovered
    onTriggered: isAsking = true
    onIsHoveredChanged: {
        if (!isHovered)
            isAsking = false;
    }
}
