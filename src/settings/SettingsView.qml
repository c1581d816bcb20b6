// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Settings
import Vellumry.Transfer
import Vellumry.Views

// The five panes under their names, and what is asked over them.
Rectangle {
    id: root

    required property SettingsModel settings
    required property TransferModel transfer
    property int pane: 0
    property bool isAsking: false
    property Item before: null // what had the keyboard before the sheet

    function showPane(): void {
        const names = ["General", "Shortcuts", "History", "Privacy", "About"];
        page.setSource(Qt.resolvedUrl(names[pane] + "Pane.qml"), {
            settings: settings
        });
    }
    function showSheet(): void {
        if (settings.sheet !== "") {
            const names = {
                "clear": "ClearQuestion",
                "applications": "ApplicationChooser",
                "report": "DesktopReportView",
                "import": "ImportSheet",
                "export": "ExportSheet"
            };
            before = Window.window ? Window.window.activeFocusItem : null;
            isAsking = true;
            const values = settings.sheet === "import" || settings.sheet === "export" ? {
                settings: settings,
                transfer: transfer
            } : {
                settings: settings
            };
            sheet.setSource(Qt.resolvedUrl(names[settings.sheet] + ".qml"), values);
            (sheet.item as Sheet).forceActiveFocus(Qt.PopupFocusReason);
        } else {
            sheet.source = "";
            isAsking = false;
            if (before)
                before.forceActiveFocus(Qt.PopupFocusReason);
        }
    }

    color: Theme.ground
    LayoutMirroring.enabled: Views.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Component.onCompleted: {
        showPane();
        tabs.takeFocus();
    }
    onPaneChanged: {
        settings.sheet = "";
        showPane();
    }
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Escape || (event.key === Qt.Key_W && event.modifiers === Qt.ControlModifier))
            root.Window.window.close();
        else
            event.accepted = false;
    }

    Item {
        anchors.fill: parent
        enabled: !root.isAsking

        Rectangle {
            id: bar
            width: parent.width
            height: tabs.height + 2 * Theme.gap
            color: Theme.card

            PageTabs {
                id: tabs
                anchors.horizontalCenter: parent.horizontalCenter
                y: Theme.gap
                room: root.width - 2 * Theme.gap
                label: Views.words("Settings")
                titles: [Views.words("General"), Views.words("Shortcuts"), Views.words("History"), Views.words("Privacy"), Views.words("About")]
                symbols: ["gearshape", "command", "clock.arrow.circlepath", "hand.raised", "info.circle"]
                index: root.pane
                onChosen: choice => root.pane = choice
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: Theme.thin
                color: Theme.line
            }
        }
        Loader {
            id: page
            anchors.top: bar.bottom
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }
    Loader {
        id: sheet
        anchors.fill: parent
        focus: root.isAsking
    }
    Connections {
        target: root.settings
        function onSheetChanged() {
            root.showSheet();
        }
    }
}
