// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

// The shadow of a small board: it reaches Theme.smallShadow beyond it.
BorderImage {
    source: visible ? "image://symbol/small-shadow" : ""
    border {
        left: Theme.smallShadowBorder
        right: Theme.smallShadowBorder
        top: Theme.smallShadowBorder
        bottom: Theme.smallShadowBorder
    }
}
