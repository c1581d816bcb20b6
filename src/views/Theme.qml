// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick
import Vellumry.Views

// Every colour and measure of our windows, in light and dark. Contrast of text on its ground is at least 4.5 : 1, of a
// part that is worked with 3 : 1. Measures lie on a grid of four pixels; heights grow with the font.
QtObject {
    // By the user's choice and the desktop's scheme.
    readonly property bool dark: Views.dark

    readonly property color ground: dark ? "#1f2024" : "#fafafb"
    readonly property color edge: dark ? "#3c3d44" : "#d2d3d8"
    readonly property color line: dark ? "#2f3036" : "#e6e6ea"
    readonly property color text: dark ? "#f1f1f4" : "#19191c"
    readonly property color secondary: dark ? "#a8a9b2" : "#5c5d65"
    readonly property color accent: dark ? "#7db0ff" : "#1654c4"
    readonly property color selected: dark ? "#2b3a55" : "#dbe7fc"
    readonly property color hovered: dark ? "#2a2b30" : "#f0f0f3"
    readonly property color tile: dark ? "#33343b" : "#ececf0"
    readonly property color selectedTile: dark ? "#374866" : "#cfdffa"
    readonly property color cap: dark ? "#2e2f35" : "#f0f0f3"
    readonly property color capEdge: dark ? "#4a4b53" : "#cfd0d6"
    readonly property color thumb: "#8f9098"
    readonly property color success: dark ? "#5fd08a" : "#177a3e"
    readonly property color warning: dark ? "#ffb454" : "#8a5000"
    readonly property color button: dark ? "#7db0ff" : "#1654c4"
    readonly property color pressedButton: dark ? "#a3c8ff" : "#10409a"
    readonly property color danger: dark ? "#ff8f87" : "#b3261e"
    readonly property color card: dark ? "#26272c" : "#ffffff"
    readonly property color shade: dark ? "#99000000" : "#66202024"
    // What pictures with clear parts lie on.
    readonly property color paper: dark ? "#d9d9de" : "#ffffff"
    readonly property color buttonText: dark ? "#10203c" : "#ffffff"

    readonly property int titleSize: 14
    readonly property int smallSize: 12
    readonly property int capSize: 11
    readonly property int footerSize: 11
    readonly property int fieldSize: 19
    readonly property int messageSize: 14
    readonly property int emptyTitleSize: 16
    readonly property int emptySize: 13
    readonly property int alertTitleSize: 17
    readonly property int formSize: 13
    readonly property int headingSize: 24
    readonly property int hudSize: 14
    readonly property int textSize: 13
    readonly property int codeSize: 12
    readonly property real readingLine: 1.15
    readonly property string family: Views.family
    readonly property string fixedFamily: Views.fixedFamily

    readonly property int thin: 1
    readonly property int grid: 4
    readonly property int gap: 8
    readonly property int margin: 12
    readonly property int inset: 16
    readonly property int alertMargin: 24
    readonly property int radius: 14
    readonly property int rowRadius: 8
    readonly property int smallRadius: 4
    readonly property int tileRadius: 7
    readonly property int accentBar: 3
    readonly property int scrollBar: 8
    readonly property int scrollArea: 16
    readonly property int leastThumb: 28

    readonly property int iconSize: 32
    readonly property int symbolSize: 18
    readonly property int smallSymbolSize: 14
    readonly property int lensSize: 20
    readonly property int emptySymbolSize: 36
    readonly property int emptyWidth: 420
    readonly property int transformWidth: 232
    readonly property int tooltipWidth: 360
    readonly property int alertWidth: 440
    readonly property int messageWidth: 560
    readonly property int buttonWidth: 96
    readonly property int controlWidth: 220
    readonly property int pickerWidth: 150
    readonly property int tabWidth: 84
    readonly property int switchWidth: 40
    readonly property int switchHeight: 22
    readonly property int applicationIcon: 24
    readonly property int logoSize: 96
    readonly property int welcomeLogo: 128
    readonly property int tryFieldWidth: 280
    readonly property int settingsWidth: 540
    readonly property int previewWidth: 372
    readonly property int largeTile: 44
    // What of the shadow's picture is not stretched.
    readonly property int shadowBorder: 86
    // Milliseconds that the pointer rests until it is taken for a question.
    readonly property int askingTime: 600
    readonly property int largeSymbol: 24
    readonly property int smallTile: 24
    readonly property int swatchHeight: 140
    readonly property int wordsHeight: 92

    // Milliseconds.
    readonly property int glide: 140

    // The line heights of the fonts in use.
    readonly property int titleLine: Math.ceil(titleFont.height)
    readonly property int smallLine: Math.ceil(smallFont.height)
    readonly property int fieldLine: Math.ceil(fieldFont.height)
    readonly property int rowHeight: Math.max(44, onGrid(titleLine + smallLine + 4))
    readonly property int headerHeight: Math.max(24, onGrid(smallLine + 6))
    readonly property int chipHeight: Math.max(26, smallLine + 8)
    readonly property int capHeight: Math.max(18, smallLine + 2)
    readonly property int footerHeight: Math.max(32, onGrid(smallLine + 12))
    readonly property int fieldHeight: Math.max(28, onGrid(fieldLine))
    readonly property int menuRowHeight: Math.max(28, onGrid(titleLine + 12))
    readonly property int buttonHeight: Math.max(28, onGrid(smallLine + 12))
    readonly property int formRowHeight: Math.max(44, onGrid(titleLine + 20))
    readonly property int controlHeight: Math.max(28, onGrid(titleLine + 8))
    readonly property int entryHeight: Math.max(36, onGrid(2 * smallLine + 4))
    readonly property int barHeight: Math.max(40, onGrid(titleLine + 20))

    readonly property FontMetrics titleFont: FontMetrics {
        font.pixelSize: Theme.titleSize
    }
    readonly property FontMetrics smallFont: FontMetrics {
        font.pixelSize: Theme.smallSize
    }
    readonly property FontMetrics fieldFont: FontMetrics {
        font.pixelSize: Theme.fieldSize
    }

    function onGrid(length: real): int {
        return Math.ceil(length / 4) * 4;
    }
}
