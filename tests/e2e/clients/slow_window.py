# SPDX-License-Identifier: GPL-3.0-or-later
"""A program under load: a window that fetches a paste only a while after its key. Says on its output what it has pasted."""

import select
import sys
import time

from Xlib import X, display

CONTROL = 4
LETTER = 55


class SlowWindow:
    """Takes the keyboard; each Ctrl+V is answered `delay` seconds later, one after the other."""

    def __init__(self, delay):
        self.delay = delay
        self.display = display.Display()
        screen = self.display.screen()
        self.window = screen.root.create_window(0, 0, 200, 100, 0, screen.root_depth, event_mask=X.KeyPressMask)
        self.window.set_wm_class("slow", "Slow")
        self.window.map()
        self.clipboard, self.text, self.property = (
            self.display.intern_atom(name) for name in ("CLIPBOARD", "UTF8_STRING", "SLOW_PASTE"))
        self.due = []
        self.display.sync()

    def run(self):
        while True:
            while self.display.pending_events():
                self.handle(self.display.next_event())
            now = time.monotonic()
            while self.due and self.due[0] <= now:
                self.due.pop(0)
                self.window.convert_selection(self.clipboard, self.text, self.property, X.CurrentTime)
            self.display.flush()
            wait = max(0, self.due[0] - now) if self.due else 0.05
            select.select([self.display], [], [], wait)

    def handle(self, event):
        if event.type == X.KeyPress and event.detail == LETTER and event.state & CONTROL:
            # It comes to one key after the other.
            self.due.append(max([time.monotonic(), *self.due]) + self.delay)
        elif event.type == X.SelectionNotify and event.property != X.NONE:
            value = self.window.get_full_property(self.property, X.AnyPropertyType).value
            self.window.delete_property(self.property)
            print(value.decode() if isinstance(value, bytes) else value, flush=True)


if __name__ == "__main__":
    SlowWindow(float(sys.argv[1])).run()
