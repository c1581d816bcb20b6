// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// How much there is, and what the keys do now.
Item {
    id: footer

    required property PanelFacade panel

    /// Above its button, as high as it is.
    function openMenu(isByKeys: bool) {
        panel.openStatusMenu(menuButton.mapToItem(null, Views.isRightToLeft ? 0 : menuButton.width, 0), isByKeys);
    }

    height: Theme.footerHeight

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        height: Theme.thin
        color: Theme.line
    }
    Label {
        id: tally
        objectName: "count"
        anchors.left: parent.left
        anchors.leftMargin: Theme.inset
        anchors.right: undoButton.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: footer.panel.countText
        color: Theme.secondary
        font.pixelSize: Theme.footerSize
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    FooterButton {
        id: undoButton
        objectName: "undoButton"
        visible: footer.panel.canUndo
        width: visible ? implicitWidth : 0
        anchors.right: footer.panel.hasAccessibility ? hints.left : permission.left
        anchors.rightMargin: visible ? Theme.margin : 0
        anchors.verticalCenter: parent.verticalCenter
        text: Views.words("Undo")
        onAction: footer.panel.undoDeletion()
    }
    Row {
        id: hints
        objectName: "hints"

        /// What the count and the buttons leave; the count is never cut for a hint.
        readonly property real room: footer.width - 2 * Theme.inset - Math.ceil(tally.implicitWidth) - Theme.gap - undoButton.width - undoButton.anchors.rightMargin - menuButton.width - anchors.rightMargin

        /// How wide the hints are that stay at least as long as the one of `rank`.
        function widthUpTo(rank: int): real {
            let sum = 0;
            for (let index = 0; all.isMade && index < all.count; ++index) {
                const hint = all.itemAt(index) as FooterHint;
                if (hint && hint.rank <= rank)
                    sum += hint.implicitWidth + (sum > 0 ? spacing : 0);
            }
            return sum;
        }

        visible: footer.panel.hasAccessibility
        anchors.right: menuButton.left
        anchors.rightMargin: menuButton.visible ? Theme.margin : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.margin

        Repeater {
            id: all

            /// The count is told before the items are there.
            property int made: 0
            readonly property bool isMade: made === count

            model: footer.panel.hints
            onItemAdded: ++made
            onItemRemoved: --made

            FooterHint {
                visible: hints.widthUpTo(rank) <= hints.room
            }
        }
    }
    Rectangle {
        id: permission
        objectName: "permission"
        visible: !footer.panel.hasAccessibility
        anchors.right: menuButton.left
        anchors.rightMargin: menuButton.visible ? Theme.margin : 0
        anchors.verticalCenter: parent.verticalCenter
        width: offer.implicitWidth + 2 * Theme.margin
        height: Theme.chipHeight
        radius: height / 2
        color: press.containsPress ? Theme.pressedButton : Theme.button
        Accessible.role: Accessible.Button
        Accessible.name: offer.text
        Accessible.onPressAction: footer.panel.requestAccessibility()

        Label {
            id: offer
            anchors.centerIn: parent
            text: Views.words("Allow Vellumry to paste for you")
            color: Theme.buttonText
            font.weight: Font.Medium
        }
        MouseArea {
            id: press
            anchors.fill: parent
            onClicked: footer.panel.requestAccessibility()
        }
    }
    FooterButton {
        id: menuButton
        objectName: "menuButton"
        visible: footer.panel.hasStatusMenu
        width: visible ? implicitWidth : 0
        anchors.right: parent.right
        anchors.rightMargin: Theme.inset
        anchors.verticalCenter: parent.verticalCenter
        text: Views.words("Menu")
        symbol: "line.3.horizontal"
        onAction: footer.openMenu(false)

        Connections {
            target: footer.panel
            function onStatusMenuAsked() {
                footer.openMenu(true);
            }
        }
    }
}
