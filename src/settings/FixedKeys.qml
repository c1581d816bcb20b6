// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// Keys that cannot be changed, to read.
FormRow {
    id: row

    required property list<string> keys

    Row {
        spacing: Theme.grid

        Repeater {
            model: row.keys

            Keycap {
                required property string modelData
                text: modelData
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData
            }
        }
    }
}
