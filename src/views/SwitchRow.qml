// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// A row of a form with a switch; a click on its words turns it too.
FormRow {
    id: row

    required property bool isOn
    property bool isFixed: false
    signal toggled(value: bool)

    onClicked: control.turn()

    Switch {
        id: control
        label: row.title
        help: row.help
        isOn: row.isOn
        enabled: !row.isFixed
        onToggled: value => row.toggled(value)
    }
}
