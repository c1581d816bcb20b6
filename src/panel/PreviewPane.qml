// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// The right-hand side of the panel: what is chosen in full, where it came from, and what can be done with it.
Item {
    id: pane

    required property PanelFacade panel
    required property PreviewModel preview
    property Item askingButton: null

    objectName: "preview"
    clip: true
    Accessible.role: Accessible.Grouping
    Accessible.name: Views.words("Preview")

    Rectangle {
        anchors.left: parent.left
        width: Theme.thin
        height: parent.height
        color: Theme.line
    }
    ClipPreview {
        visible: pane.preview.body !== PreviewModel.Several
        preview: pane.preview
        anchors.fill: stage
    }
    MultiPreview {
        visible: pane.preview.body === PreviewModel.Several
        preview: pane.preview
        anchors.fill: stage
    }
    Item {
        id: stage
        anchors.left: parent.left
        anchors.leftMargin: Theme.inset
        anchors.right: parent.right
        anchors.rightMargin: Theme.inset
        anchors.top: parent.top
        anchors.topMargin: Theme.gap
        anchors.bottom: words.top
        anchors.bottomMargin: Theme.gap
    }
    Column {
        id: words
        anchors.left: stage.left
        anchors.right: stage.right
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin
        spacing: Theme.gap

        Label {
            objectName: "note"
            visible: text !== ""
            width: parent.width
            text: pane.preview.note
            color: Theme.secondary
            wrapMode: Text.Wrap
            maximumLineCount: Math.max(1, Math.floor(pane.height / 3 / Theme.smallLine))
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Label {
            objectName: "details"
            visible: text !== ""
            width: parent.width
            text: pane.preview.details
            color: Theme.secondary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        TransformList {
            visible: pane.preview.showsTransforms
            panel: pane.panel
            width: parent.width
            mostHeight: pane.height * 0.6
        }
        Flow {
            id: actions
            width: parent.width
            spacing: Theme.gap

            /// Those of one clip stand in one line; those of several have two.
            readonly property bool isTight: pane.preview.body !== PreviewModel.Several && wanted() > width

            function wanted(): real {
                let sum = 0;
                for (let index = 0; all.isMade && index < all.count; ++index) {
                    const button = all.itemAt(index) as PreviewButton;
                    if (button)
                        sum += button.wanted + (sum > 0 ? spacing : 0);
                }
                return sum;
            }

            Repeater {
                id: all

                /// The count is told before the items are there.
                property int made: 0
                readonly property bool isMade: made === count

                model: pane.preview.buttons
                onItemAdded: ++made
                onItemRemoved: --made

                PreviewButton {
                    id: button
                    widest: actions.width
                    isTight: actions.isTight
                    onPressed: pane.preview.perform(button.action)
                    onIsAskingChanged: pane.askingButton = button.isAsking ? button : null
                }
            }
        }
    }
    Tooltip {
        readonly property Item button: pane.askingButton
        // Above the button and within the pane.
        readonly property point place: button === null ? Qt.point(0, 0) : button.mapToItem(pane, button.width / 2, 0)

        visible: button !== null
        text: pane.askingButton === null ? "" : (pane.askingButton as PreviewButton).told
        x: Math.max(Theme.gap, Math.min(place.x - width / 2, pane.width - width - Theme.gap))
        y: place.y - height - Theme.grid
    }
}
