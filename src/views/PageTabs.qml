// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// The names of pages in a row. The keyboard reaches the one that shows; Left and Right go to its neighbours.
Row {
    id: tabs

    required property list<string> titles
    required property list<string> symbols
    required property int index
    required property string label
    required property real room // that all of them have
    signal chosen(choice: int)

    function go(choice: int): void {
        const next = Math.max(0, Math.min(titles.length - 1, choice));
        pages.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        if (index !== next)
            tabs.chosen(next);
    }
    function takeFocus(): void {
        pages.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.grid
    Accessible.role: Accessible.PageTabList
    Accessible.name: label

    Repeater {
        id: pages
        model: tabs.titles

        Rectangle {
            id: page

            required property string modelData
            required property int index
            readonly property bool isCurrent: tabs.index === index
            readonly property color ink: isCurrent ? Theme.accent : Theme.secondary

            width: Math.min((tabs.room - 4 * Theme.grid) / tabs.titles.length, Math.max(Theme.tabWidth, title.implicitWidth + 2 * Theme.gap))
            height: picture.height + title.height + 2 * Theme.gap + Theme.grid
            radius: Theme.rowRadius
            color: isCurrent ? Theme.selected : area.containsMouse ? Theme.hovered : "transparent"
            border.width: activeFocus ? 2 : 0
            border.color: Theme.accent
            activeFocusOnTab: isCurrent || activeFocus
            Accessible.role: Accessible.PageTab
            Accessible.name: modelData
            Accessible.selectable: true
            Accessible.selected: isCurrent
            Accessible.focusable: true
            Accessible.focused: activeFocus
            Accessible.onPressAction: tabs.chosen(page.index)
            // Where the page was changed from elsewhere, the keyboard stays on the name of the one that shows.
            onIsCurrentChanged: {
                if (isCurrent && Window.activeFocusItem && Window.activeFocusItem.parent === tabs)
                    forceActiveFocus(Qt.OtherFocusReason);
                Views.tellSelected(page);
            }
            // Assistive technology may move the keyboard alone.
            onActiveFocusChanged: {
                if (activeFocus && !isCurrent)
                    tabs.chosen(page.index);
            }
            Keys.onLeftPressed: tabs.go(page.index + (Views.isRightToLeft ? 1 : -1))
            Keys.onRightPressed: tabs.go(page.index + (Views.isRightToLeft ? -1 : 1))
            Keys.onPressed: event => {
                event.accepted = true;
                if (event.key === Qt.Key_Home)
                    tabs.go(0);
                else if (event.key === Qt.Key_End)
                    tabs.go(tabs.titles.length - 1);
                else
                    event.accepted = false;
            }

            Symbol {
                id: picture
                anchors.horizontalCenter: parent.horizontalCenter
                y: Theme.gap
                name: tabs.symbols[page.index]
                tint: page.ink
                size: Theme.lensSize
            }
            Label {
                id: title
                anchors.top: picture.bottom
                anchors.topMargin: Theme.grid
                x: Theme.grid
                width: parent.width - 2 * Theme.grid
                horizontalAlignment: Text.AlignHCenter
                text: page.modelData
                color: page.ink
                font.weight: page.isCurrent ? Font.DemiBold : Font.Normal
            }
            MouseArea {
                id: area
                anchors.fill: parent
                hoverEnabled: true
                onClicked: tabs.go(page.index)
            }
        }
    }
}
