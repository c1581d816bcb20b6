// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// Files, or some of several clips, each in one or two lines; below them how many more there are.
Item {
    id: list

    required property QtObject entries
    required property string more

    ListView {
        id: scrolled
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: Math.min(contentHeight, parent.height - (rest.visible ? rest.height : 0))
        model: list.entries
        clip: true
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        currentIndex: -1
        Accessible.role: Accessible.List
        Accessible.name: Views.words("Chosen")

        delegate: Item {
            id: entry

            required property string name
            required property string symbol
            required property string thumbnail
            required property string swatch
            required property string told
            required property bool hasNote
            required property bool isMissing
            required property bool isFile

            width: scrolled.width
            height: Theme.entryHeight
            Accessible.role: Accessible.ListItem
            Accessible.name: name
            Accessible.description: told

            RowIcon {
                id: icon
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                symbol: entry.symbol
                thumbnail: entry.thumbnail
                swatch: entry.swatch
                size: Theme.smallTile
            }
            Column {
                anchors.left: icon.right
                anchors.leftMargin: Theme.gap
                anchors.right: parent.right
                anchors.rightMargin: Theme.scrollArea
                anchors.verticalCenter: parent.verticalCenter

                Label {
                    width: parent.width
                    text: entry.name
                    color: entry.isMissing ? Theme.secondary : Theme.text
                    font.pixelSize: Theme.textSize
                    font.strikeout: entry.isMissing
                    elide: entry.isFile ? Text.ElideMiddle : Text.ElideRight
                }
                Label {
                    visible: text !== ""
                    width: parent.width
                    text: entry.told
                    color: entry.hasNote ? Theme.warning : Theme.secondary
                }
            }
        }
        WheelScroll {
            flickable: scrolled
        }
        ScrollBar {
            parent: scrolled
            view: scrolled
            anchors.right: parent.right
            height: parent.height
        }
    }
    Label {
        id: rest
        visible: text !== ""
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: scrolled.bottom
        height: Theme.menuRowHeight
        verticalAlignment: Text.AlignVCenter
        text: list.more
        color: Theme.secondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
