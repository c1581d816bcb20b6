// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Views

// The installed applications to choose from. Typing searches, Space or a click chooses.
Sheet {
    id: chooser

    required property SettingsModel settings

    title: Views.words("Choose apps")
    fills: true
    onCancelled: settings.sheet = ""
    Component.onCompleted: search.takeFocus()

    TextField {
        id: search
        width: parent.width
        label: Views.words("Search apps")
        placeholder: Views.words("Search apps")
        onEdited: chooser.settings.searchApplications(text)
        Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
    }
    ListView {
        id: list
        anchors.top: search.bottom
        anchors.topMargin: Theme.gap
        anchors.bottom: buttons.top
        anchors.bottomMargin: Theme.margin
        width: parent.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        model: chooser.settings.offeredApps
        Accessible.role: Accessible.List
        Accessible.name: chooser.title
        Keys.onSpacePressed: chooser.settings.toggleChosen(currentIndex)
        Keys.onReturnPressed: chooser.settings.toggleChosen(currentIndex)
        delegate: Rectangle {
            id: line

            required property int index
            required property string title
            required property string symbol
            required property url picture
            required property bool isChosen
            readonly property bool isCurrent: ListView.isCurrentItem

            width: list.width - Theme.scrollArea
            height: Theme.formRowHeight
            radius: Theme.smallRadius
            color: isChosen ? Theme.selected : area.containsMouse ? Theme.hovered : "transparent"
            border.width: isCurrent && list.activeFocus ? 2 : 0
            border.color: Theme.accent
            focus: isCurrent
            Accessible.role: Accessible.CheckBox
            Accessible.name: title
            Accessible.checkable: true
            Accessible.checked: isChosen
            Accessible.focusable: true
            Accessible.focused: isCurrent && list.activeFocus
            Accessible.onPressAction: chooser.settings.toggleChosen(line.index)
            Accessible.onToggleAction: chooser.settings.toggleChosen(line.index)

            Symbol {
                visible: image.status !== Image.Ready
                anchors.centerIn: image
                name: line.symbol
                size: Theme.applicationIcon
            }
            Image {
                id: image
                anchors.left: parent.left
                anchors.leftMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.applicationIcon
                height: Theme.applicationIcon
                sourceSize.width: Theme.applicationIcon
                sourceSize.height: Theme.applicationIcon
                fillMode: Image.PreserveAspectFit
                asynchronous: true
                source: line.picture
            }
            Label {
                anchors.left: image.right
                anchors.leftMargin: Theme.margin
                anchors.right: mark.left
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                text: line.title
                font.pixelSize: Theme.formSize
            }
            Symbol {
                id: mark
                visible: line.isChosen
                anchors.right: parent.right
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                name: "checkmark"
                tint: Theme.accent
                size: Theme.symbolSize
            }
            MouseArea {
                id: area
                anchors.fill: parent
                hoverEnabled: true
                onClicked: {
                    list.currentIndex = line.index;
                    chooser.settings.toggleChosen(line.index);
                }
            }
        }
    }
    Label {
        anchors.centerIn: list
        visible: list.count === 0
        text: Views.words("No apps found")
        color: Theme.secondary
        font.pixelSize: Theme.formSize
    }
    ScrollBar {
        view: list
        anchors.right: parent.right
        y: list.y
        height: list.height
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: Theme.gap

        PushButton {
            text: Views.words("Cancel")
            onPressed: chooser.settings.sheet = ""
        }
        PushButton {
            isChief: true
            enabled: chooser.settings.chosenCount > 0
            text: chooser.settings.isForTerminals ? Views.words("Add") : Views.words("Never Save")
            onPressed: chooser.settings.finishChoosing()
        }
    }
}
