// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick
import Vellumry.Views

// Every colour and measure of our windows. The colours come from the user's and the desktop's choice; measures lie on a
// grid of four pixels; heights grow with the font.
QtObject {
    // By the user's choice and the desktop's scheme.
    readonly property bool dark: Views.dark

    readonly property color ground: Views.colors.ground
    readonly property color edge: Views.colors.edge
    readonly property color line: Views.colors.line
    readonly property color text: Views.colors.text
    readonly property color secondary: Views.colors.secondary
    readonly property color accent: Views.colors.accent
    readonly property color selected: Views.colors.selected
    readonly property color hovered: Views.colors.hovered
    readonly property color tile: Views.colors.tile
    readonly property color selectedTile: Views.colors.selectedTile
    readonly property color cap: Views.colors.cap
    readonly property color capEdge: Views.colors.capEdge
    readonly property color thumb: Views.colors.thumb
    readonly property color success: Views.colors.success
    readonly property color warning: Views.colors.warning
    readonly property color button: Views.colors.button
    readonly property color pressedButton: Views.colors.pressedButton
    readonly property color danger: Views.colors.danger
    readonly property color card: Views.colors.card
    readonly property color shade: Views.colors.shade
    // What pictures with clear parts lie on.
    readonly property color paper: Views.colors.paper
    readonly property color buttonText: Views.colors.buttonText

    readonly property int titleSize: sized(14)
    readonly property int smallSize: sized(12)
    readonly property int capSize: sized(11)
    readonly property int footerSize: sized(11)
    readonly property int fieldSize: sized(19)
    readonly property int messageSize: sized(14)
    readonly property int emptyTitleSize: sized(16)
    readonly property int emptySize: sized(13)
    readonly property int alertTitleSize: sized(17)
    readonly property int formSize: sized(13)
    readonly property int headingSize: sized(24)
    readonly property int hudSize: sized(14)
    readonly property int textSize: sized(13)
    readonly property int codeSize: sized(12)
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

    readonly property int iconSize: grown(32)
    readonly property int symbolSize: grown(18)
    readonly property int smallSymbolSize: grown(14)
    readonly property int lensSize: grown(20)
    readonly property int emptySymbolSize: grown(36)
    readonly property int emptyWidth: grown(420)
    readonly property int transformWidth: grown(232)
    readonly property int nextWidth: grown(260)
    readonly property int tooltipWidth: grown(360)
    readonly property int alertWidth: 440
    readonly property int messageWidth: grown(560)
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
    readonly property int previewWidth: grown(372)
    readonly property int largeTile: grown(44)
    // What of the shadow's picture is not stretched.
    readonly property int shadowBorder: 86
    // How far the shadow of a small board reaches, and the same of its picture.
    readonly property int smallShadow: 18
    readonly property int smallShadowBorder: 32
    // Milliseconds that the pointer rests until it is taken for a question.
    readonly property int askingTime: 600
    readonly property int largeSymbol: grown(24)
    readonly property int smallTile: grown(24)
    readonly property int swatchHeight: grown(140)
    readonly property int wordsHeight: grown(92)

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

    /// A size of letters by the user's choice.
    function sized(pixels: int): int {
        return Math.round(pixels * Views.textScale);
    }
    /// A measure of what stands beside letters or holds them: it grows with these, and does not shrink.
    function grown(pixels: int): int {
        return Math.round(pixels * Math.max(1, Views.textScale));
    }
    function onGrid(length: real): int {
        return Math.ceil(length / 4) * 4;
    }
}
