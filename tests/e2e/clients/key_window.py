# SPDX-License-Identifier: GPL-3.0-or-later
"""A bare window that gets keys and fetches what was pasted, as an editor does, and can tell when."""

import select
import time

from Xlib import X, display
from Xlib.ext import xtest

from desktop import Failure, wait_until

CONTROL, LETTER = 37, 55


class KeyWindow:
    def __init__(self):
        self.display = display.Display()
        screen = self.display.screen()
        self.window = screen.root.create_window(0, 0, 200, 100, 0, screen.root_depth,
                                                event_mask=X.KeyPressMask | X.StructureNotifyMask | X.PropertyChangeMask)
        self.window.map()
        self.wait_for(X.MapNotify)
        wait_until(self.has_focus, "the keyboard")
        self.clipboard, self.text, self.incremental, self.property = (
            self.display.intern_atom(name) for name in ("CLIPBOARD", "UTF8_STRING", "INCR", "PASTED_HERE"))
        self.keys = display.Display()

    def has_focus(self):
        focus = self.display.get_input_focus().focus
        if getattr(focus, "id", 0) == self.window.id:
            return True
        self.window.set_input_focus(X.RevertToParent, X.CurrentTime)
        self.display.sync()
        return False

    def wait_for(self, kind, fits=lambda event: True, seconds=60.0):
        """The next event of that kind; Failure when none came in time, as on a machine where a key never arrives."""
        end = time.monotonic() + seconds
        while True:
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type == kind and fits(event):
                    return event
            if not select.select([self.display.fileno()], [], [], max(0.0, end - time.monotonic()))[0]:
                raise Failure(f"nothing came into the window within {seconds:g} s")

    def forget_events(self):
        """What has come so far answers no later wait."""
        while self.display.pending_events():
            self.display.next_event()

    def press(self):
        """Presses Ctrl+V. Milliseconds from the press to its event."""
        xtest.fake_input(self.keys, X.KeyPress, CONTROL)
        self.keys.sync()
        began = time.perf_counter()
        xtest.fake_input(self.keys, X.KeyPress, LETTER)
        self.keys.flush()
        self.wait_for(X.KeyPress, lambda event: event.detail == LETTER)
        took = (time.perf_counter() - began) * 1000
        xtest.fake_input(self.keys, X.KeyRelease, LETTER)
        xtest.fake_input(self.keys, X.KeyRelease, CONTROL)
        self.keys.sync()
        return took

    def paste(self):
        """The bytes of the clipboard's text, however large."""
        self.window.convert_selection(self.clipboard, self.text, self.property, X.CurrentTime)
        self.display.flush()
        if self.wait_for(X.SelectionNotify).property == X.NONE:
            return None
        kind, data = self.take()
        if kind != self.incremental:
            return data
        pieces = []
        while True:
            self.wait_for(X.PropertyNotify, lambda event: event.atom == self.property and event.state == X.PropertyNewValue)
            _, data = self.take()
            if not data:
                return b"".join(pieces)
            pieces.append(data)

    def take(self):
        """Type and bytes of the property, which is deleted."""
        found = self.window.get_property(self.property, X.AnyPropertyType, 0, 1 << 26, delete=True)
        self.display.flush()
        return found.property_type, found.value if isinstance(found.value, bytes) else b""

    def close(self):
        self.display.close()
        self.keys.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
