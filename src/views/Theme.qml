// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick
import Vellumry.Views

// Every colour and measure of our windows, in light and dark. Contrast of text on its ground is at least 4.5 : 1.
QtObject {
    // By the user's choice and the desktop's scheme.
    readonly property bool dark: Views.dark

    readonly property color ground: dark ? "#1f2024" : "#fafafb"
    readonly property color edge: dark ? "#3c3d44" : "#d2d3d8"
    readonly property color line: dark ? "#2f3036" : "#e6e6ea"
    readonly property color text: dark ? "#f1f1f4" : "#19191c"
    readonly property color secondary: dark ? "#a3a4ad" : "#62636b"
    readonly property color accent: dark ? "#5b9bff" : "#1d62dc"
    readonly property color selected: dark ? "#2b3a55" : "#dbe7fc"
    readonly property color hovered: dark ? "#2a2b30" : "#f0f0f3"
    readonly property color tile: dark ? "#33343b" : "#ececf0"
    readonly property color selectedTile: dark ? "#3b4d6e" : "#c8dafa"
    readonly property color cap: dark ? "#2e2f35" : "#f0f0f3"
    readonly property color capEdge: dark ? "#4a4b53" : "#cfd0d6"
    readonly property color success: dark ? "#5fd08a" : "#177a3e"
    readonly property color warning: dark ? "#ffb454" : "#9a5b00"

    readonly property int radius: 14
    readonly property int rowRadius: 8
    readonly property int margin: 12
    readonly property int rowHeight: 42
    readonly property int headerHeight: 28
    readonly property int titleSize: 14
    readonly property int smallSize: 12
    readonly property int footerSize: 11
    readonly property int fieldSize: 19
    readonly property int fieldHeight: 28
}
