// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick

// What a control is for, in words that wrap, and the control at the end of the line.
Item {
    id: row

    property string title
    property string help
    property string warning // what went wrong the last time
    property bool isNote: false // words alone
    property string symbol
    property color symbolColour: Theme.secondary
    property url picture
    property bool showsPicture: false
    default property alias content: holder.data
    signal clicked

    width: parent ? parent.width : 0
    height: Math.max(Theme.formRowHeight, words.height + 2 * Theme.margin, holder.height + 2 * Theme.gap)

    Rectangle {
        visible: row.y > 0
        x: Theme.inset
        width: parent.width - 2 * Theme.inset
        height: Theme.thin
        color: Theme.line
    }
    MouseArea {
        anchors.fill: parent
        onClicked: row.clicked()
    }
    Item {
        id: mark
        anchors.left: parent.left
        anchors.leftMargin: Theme.inset
        anchors.verticalCenter: parent.verticalCenter
        width: row.showsPicture ? Theme.applicationIcon + Theme.gap : row.symbol !== "" ? Theme.symbolSize + Theme.gap : 0
        height: Theme.applicationIcon

        Symbol {
            visible: row.symbol !== "" && image.status !== Image.Ready
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            tint: row.symbolColour
            size: row.showsPicture ? Theme.applicationIcon : Theme.symbolSize
        }
        Image {
            id: image
            visible: row.showsPicture
            anchors.left: parent.left
            width: Theme.applicationIcon
            height: Theme.applicationIcon
            sourceSize.width: Theme.applicationIcon
            sourceSize.height: Theme.applicationIcon
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            source: row.picture
        }
    }
    Column {
        id: words
        anchors.left: mark.right
        anchors.right: holder.left
        anchors.rightMargin: holder.width > 0 ? Theme.margin : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            visible: text !== ""
            width: parent.width
            text: row.title
            color: row.isNote ? Theme.secondary : Theme.text
            font.pixelSize: row.isNote ? Theme.smallSize : Theme.formSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Label {
            visible: text !== ""
            width: parent.width
            text: row.help
            color: Theme.secondary
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Label {
            visible: text !== ""
            width: parent.width
            text: row.warning
            color: Theme.warning
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
    Item {
        id: holder
        anchors.right: parent.right
        anchors.rightMargin: Theme.inset
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
