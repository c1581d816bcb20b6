// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

import QtQuick.Window

// A picture, as large as there is room for and never larger than it is; below it the words in it.
Item {
    id: image

    required property PreviewModel preview
    readonly property real ratio: Screen.devicePixelRatio

    function tellRoom() {
        if (visible && frame.width > 0 && frame.height > 0)
            preview.setRoom(Math.floor(frame.width * ratio), Math.floor(frame.height * ratio));
    }

    onVisibleChanged: tellRoom()
    onRatioChanged: tellRoom()

    Item {
        id: frame
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: words.visible ? words.top : parent.bottom
        anchors.bottomMargin: words.visible ? Theme.gap : 0
        onWidthChanged: image.tellRoom()
        onHeightChanged: image.tellRoom()

        Image {
            id: small
            // Until the picture itself is there.
            readonly property bool isWanted: image.preview.picture === ""
            anchors.fill: parent
            visible: isWanted
            source: isWanted && image.preview.thumbnail !== "" ? image.preview.thumbnail + "/whole" : ""
            fillMode: Image.PreserveAspectFit
        }
        Rectangle {
            anchors.fill: large
            visible: large.visible
            color: Theme.paper
        }
        Image {
            id: large
            objectName: "picture"
            anchors.centerIn: parent
            visible: image.preview.picture !== ""
            width: image.preview.pictureWidth / image.ratio
            height: image.preview.pictureHeight / image.ratio
            source: image.preview.picture
            cache: false
            Accessible.role: Accessible.Graphic
            Accessible.name: Views.words("Image")
            Accessible.description: image.preview.textInImage
        }
        Symbol {
            anchors.centerIn: parent
            visible: image.preview.hasNoPicture
            name: "photo"
            size: Theme.emptySymbolSize
        }
    }
    Item {
        id: words
        visible: image.preview.textInImage !== "" || image.preview.isReadingText
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: image.preview.isReadingText ? reading.height : section.height

        TextInImageSection {
            id: section
            visible: image.preview.textInImage !== ""
            width: parent.width
            preview: image.preview
        }
        ReadingTextLabel {
            id: reading
            visible: image.preview.isReadingText
            width: parent.width
        }
    }
}
