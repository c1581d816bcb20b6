# SPDX-License-Identifier: GPL-3.0-or-later
"""Copies its argument, has the clipboard manager keep it, and quits with the answer, as GTK programs do that end at once."""

import sys

from Xlib import X, Xatom, display
from Xlib.protocol import event


def main(text):
    connection = display.Display()
    window = connection.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
    clipboard, manager, targets, save, utf8, answer = (connection.intern_atom(name) for name in (
        "CLIPBOARD", "CLIPBOARD_MANAGER", "TARGETS", "SAVE_TARGETS", "UTF8_STRING", "SAVED"))
    window.set_selection_owner(clipboard, X.CurrentTime)
    window.convert_selection(manager, save, answer, X.CurrentTime)
    connection.flush()
    while True:
        happened = connection.next_event()
        if happened.type == X.SelectionNotify and happened.selection == manager:
            return
        if happened.type != X.SelectionRequest:
            continue
        given = happened.property or happened.target
        if happened.target == targets:
            happened.requestor.change_property(given, Xatom.ATOM, 32, [targets, utf8])
        elif happened.target == utf8:
            happened.requestor.change_property(given, utf8, 8, text.encode())
        else:
            given = X.NONE
        happened.requestor.send_event(event.SelectionNotify(time=happened.time, requestor=happened.requestor,
                                                            selection=happened.selection, target=happened.target,
                                                            property=given))
        connection.flush()


if __name__ == "__main__":
    main(sys.argv[1])
