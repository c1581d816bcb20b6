// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// One chip a filter. Large texts, long words and large numbers may leave no room for all numbers: then only the chosen
// chip has one; and where the words alone are too long, all chips are as wide as there is room for each.
Row {
    id: chips

    required property PanelFacade panel
    readonly property bool isTight: widthWith(true) > width
    readonly property bool isVeryTight: isTight && widthWith(false) > width
    readonly property real evenWidth: (width + spacing) / Math.max(1, all.count) - spacing

    function widthWith(allNumbers: bool): real {
        let sum = -spacing;
        for (let index = 0; all.isMade && index < all.count; ++index) {
            const chip = all.itemAt(index) as FilterChip;
            if (chip)
                sum += chip.wordWidth + spacing + (allNumbers || chip.isCurrent ? chip.numberWidth : 0);
        }
        return sum;
    }

    spacing: Theme.gap
    Accessible.role: Accessible.PageTabList
    Accessible.name: Views.words("Filters")

    Repeater {
        id: all

        /// The count is told before the items are there.
        property int made: 0
        readonly property bool isMade: made === count

        model: chips.panel.filters
        onItemAdded: ++made
        onItemRemoved: --made

        FilterChip {
            panel: chips.panel
            showsNumber: !chips.isTight || (isCurrent && !chips.isVeryTight)
            mostWidth: chips.isVeryTight ? chips.evenWidth : chips.width
        }
    }
}
