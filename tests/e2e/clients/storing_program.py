# SPDX-License-Identifier: GPL-3.0-or-later
"""Copies its argument, has the clipboard manager keep it, and quits with the answer, as GTK programs do that end at once."""

import sys

from owners import answer
from Xlib import X, display


def main(text):
    connection = display.Display()
    window = connection.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
    clipboard, manager, save, utf8, saved = (connection.get_atom(name) for name in (
        "CLIPBOARD", "CLIPBOARD_MANAGER", "SAVE_TARGETS", "UTF8_STRING", "SAVED"))
    window.set_selection_owner(clipboard, X.CurrentTime)
    window.convert_selection(manager, save, saved, X.CurrentTime)
    connection.flush()
    while True:
        happened = connection.next_event()
        if happened.type == X.SelectionNotify and happened.selection == manager:
            return
        if happened.type == X.SelectionRequest:
            answer(connection, happened, {utf8: text.encode()})


if __name__ == "__main__":
    main(sys.argv[1])
