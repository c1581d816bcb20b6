// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// What works on this desktop, feature by feature, and what to do about the rest.
Sheet {
    id: report

    required property SettingsModel settings

    title: Views.words("What works on this desktop")
    fills: true
    onCancelled: settings.sheet = ""

    ListView {
        id: list
        anchors.top: parent.top
        anchors.bottom: done.top
        anchors.bottomMargin: Theme.margin
        width: parent.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        spacing: Theme.gap
        model: report.settings.report
        activeFocusOnTab: contentHeight > height
        Accessible.role: Accessible.List
        Accessible.name: report.title
        Keys.onUpPressed: contentY = Math.max(0, contentY - Theme.rowHeight)
        Keys.onDownPressed: contentY = Math.max(0, Math.min(contentHeight - height, contentY + Theme.rowHeight))
        delegate: Item {
            id: line

            required property string title
            required property string detail
            required property string note
            required property string symbol
            required property bool isGood

            width: list.width - Theme.scrollArea
            height: words.height + Theme.gap
            Accessible.role: Accessible.ListItem
            Accessible.name: title
            Accessible.description: detail

            Symbol {
                id: picture
                anchors.left: parent.left
                y: 1
                name: line.symbol
                tint: line.isGood ? Theme.success : Theme.warning
                size: Theme.symbolSize
            }
            Column {
                id: words
                anchors.left: picture.right
                anchors.leftMargin: Theme.gap
                anchors.right: parent.right
                spacing: 2

                Label {
                    width: parent.width
                    text: line.title
                    font.pixelSize: Theme.formSize
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                    elide: Text.ElideNone
                }
                Label {
                    width: parent.width
                    text: line.detail
                    font.pixelSize: Theme.formSize
                    wrapMode: Text.Wrap
                    elide: Text.ElideNone
                }
                Label {
                    visible: text !== ""
                    width: parent.width
                    text: line.note
                    color: Theme.secondary
                    wrapMode: Text.Wrap
                    elide: Text.ElideNone
                }
            }
        }
    }
    ScrollBar {
        view: list
        anchors.right: parent.right
        height: list.height
    }
    PushButton {
        id: done
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        focus: true
        isChief: true
        text: Views.words("Done")
        onPressed: report.settings.sheet = ""
    }
}
