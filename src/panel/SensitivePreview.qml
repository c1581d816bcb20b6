// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Panel
import Vellumry.Views

// A secret: that it is one, and how long it stays.
Item {
    id: secret

    required property PreviewModel preview

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: Theme.gap

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "lock.fill"
            size: Theme.emptySymbolSize
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: secret.preview.text
            font.pixelSize: Theme.emptyTitleSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            objectName: "countdown"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: secret.preview.countdown
            color: Theme.secondary
            font.pixelSize: Theme.emptySize
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
