// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// A text of ours in one line: as the theme writes, never as markup, cut at its end where room is short.
Text {
    color: Theme.text
    font.pixelSize: Theme.smallSize
    textFormat: Text.PlainText
    renderType: Text.NativeRendering
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight
}
