// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A row of a form with a picker.
FormRow {
    id: row

    required property list<string> labels
    required property int index
    signal chosen(choice: int)

    Picker {
        label: row.title
        help: row.help
        labels: row.labels
        index: row.index
        onChosen: choice => row.chosen(choice)
    }
}
