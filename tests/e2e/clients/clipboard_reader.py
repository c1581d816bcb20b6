# SPDX-License-Identifier: GPL-3.0-or-later
"""Another clipboard manager, or a remote desktop: reads whatever comes onto the clipboard as soon as it is there."""

from Xlib import X, display
from Xlib.ext import xfixes


def main():
    connection = display.Display()
    connection.xfixes_query_version()
    root = connection.screen().root
    window = root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
    clipboard, targets, text, answer = (
        connection.intern_atom(name) for name in ("CLIPBOARD", "TARGETS", "UTF8_STRING", "READ_HERE"))
    connection.xfixes_select_selection_input(window, clipboard, xfixes.XFixesSetSelectionOwnerNotifyMask)
    print("reading", flush=True)
    while True:
        event = connection.next_event()
        if event.type == X.SelectionNotify:
            if event.property != X.NONE:
                window.delete_property(event.property)
            continue
        for target in (targets, text):
            window.convert_selection(clipboard, target, answer, X.CurrentTime)
        connection.flush()


if __name__ == "__main__":
    main()
