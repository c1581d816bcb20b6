// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// One stage of the try, with its number until it is done.
FormRow {
    id: stage

    required property int number
    required property string name
    required property bool isDone

    title: name
    symbol: isDone ? "checkmark" : ""
    symbolColour: Theme.success
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: isDone

    Binding on title {
        when: !stage.isDone
        value: Views.words("%1. %2").arg(Views.number(stage.number)).arg(stage.name)
    }
}
