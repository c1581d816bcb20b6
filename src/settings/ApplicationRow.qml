// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// An application in a list of the settings, with its way out of it.
FormRow {
    id: row

    required property int index
    required property string detail
    required property bool isChosen
    required property string removal
    default property alias extra: controls.data
    signal removed

    required title
    required picture
    required symbol
    showsPicture: true
    help: detail
    content: Row {
        spacing: Theme.gap

        Row {
            id: controls
        }
        IconButton {
            objectName: "remove"
            symbol: "minus.circle.fill"
            help: row.removal
            onPressed: row.removed()
        }
    }
}
