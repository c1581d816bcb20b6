// SPDX-License-Identifier: GPL-3.0-or-later
pragma ComponentBehavior: Bound
import QtQuick
import Vellumry.Views

// Stands where the words of a picture are going to.
Label {
    text: Views.words("Reading the text in this image…")
    color: Theme.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
