// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel

// One clip: its body, by what it is.
Item {
    id: body

    required property PreviewModel preview

    TextPreview {
        visible: body.preview.body === PreviewModel.Text
        preview: body.preview
        anchors.fill: parent
    }
    LinkPreview {
        visible: body.preview.body === PreviewModel.Link
        preview: body.preview
        anchors.fill: parent
    }
    ImagePreview {
        visible: body.preview.body === PreviewModel.Image
        preview: body.preview
        anchors.fill: parent
    }
    ColorPreview {
        visible: body.preview.body === PreviewModel.Color
        preview: body.preview
        anchors.fill: parent
    }
    FilePreview {
        visible: body.preview.body === PreviewModel.File
        preview: body.preview
        anchors.fill: parent
    }
    SensitivePreview {
        visible: body.preview.body === PreviewModel.Sensitive
        preview: body.preview
        anchors.fill: parent
    }
}
