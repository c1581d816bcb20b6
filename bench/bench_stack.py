# SPDX-License-Identifier: GPL-3.0-or-later
"""What the running Paste Stack adds to a paste key: from the key going down to the program in front getting it, with the
stack and without. Run inside scripts/headless-session; VELLUMRY names the program. Prints milliseconds."""

import os
import select
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))

from Xlib import X, display  # noqa: E402
from Xlib.ext import xtest  # noqa: E402

from desktop import Vellumry, copy_text, key, wait_until, windows  # noqa: E402
from history_probe import ids  # noqa: E402

PRESSES = int(os.environ.get("VELLUMRY_STACK_PRESSES", "200"))
CONTROL, LETTER = 37, 55


class Target:
    """A window that gets keys and fetches what was pasted, as an editor does."""

    def __init__(self):
        self.display = display.Display()
        screen = self.display.screen()
        self.window = screen.root.create_window(0, 0, 200, 100, 0, screen.root_depth,
                                                event_mask=X.KeyPressMask | X.StructureNotifyMask)
        self.window.map()
        self.wait_for(X.MapNotify)
        wait_until(self.has_focus, "the keyboard")
        self.clipboard = self.display.intern_atom("CLIPBOARD")
        self.text = self.display.intern_atom("UTF8_STRING")
        self.property = self.display.intern_atom("BENCH")
        self.keys = display.Display()

    def has_focus(self):
        focus = self.display.get_input_focus().focus
        if getattr(focus, "id", 0) == self.window.id:
            return True
        self.window.set_input_focus(X.RevertToParent, X.CurrentTime)
        self.display.sync()
        return False

    def wait_for(self, kind):
        while True:
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type == kind and (kind != X.KeyPress or event.detail == LETTER):
                    return event
            if not select.select([self.display.fileno()], [], [], 5)[0]:
                sys.exit("nothing came")

    def press(self):
        """Milliseconds from the press to its event."""
        xtest.fake_input(self.keys, X.KeyPress, CONTROL)
        self.keys.sync()
        began = time.perf_counter()
        xtest.fake_input(self.keys, X.KeyPress, LETTER)
        self.keys.flush()
        self.wait_for(X.KeyPress)
        took = (time.perf_counter() - began) * 1000
        xtest.fake_input(self.keys, X.KeyRelease, LETTER)
        xtest.fake_input(self.keys, X.KeyRelease, CONTROL)
        self.keys.sync()
        return took

    def paste(self):
        self.window.convert_selection(self.clipboard, self.text, self.property, X.CurrentTime)
        self.display.flush()
        self.wait_for(X.SelectionNotify)
        return self.window.get_full_property(self.property, X.AnyPropertyType).value.decode()


def figures(name, values):
    values = sorted(values)
    rank = min(len(values) - 1, int(len(values) * 0.99))
    print(f"{name:<28} median {statistics.median(values):6.2f}  p99 {values[rank]:6.2f}  max {values[-1]:6.2f}", flush=True)
    return statistics.median(values), values[rank]


def main():
    with Vellumry():
        target = Target()
        copy_text("plain")
        wait_until(lambda: len(ids()) == 1, "the first copy in the history")
        without = []
        for _ in range(PRESSES):
            without.append(target.press())
            target.paste()
        key("super+ctrl+s")
        wait_until(lambda: windows("^Paste Stack$"), "the stack")
        for number in range(PRESSES):
            copy_text(f"item {number}")
            wait_until(lambda: len(ids()) == number + 2, f"{number + 1} items")
        wait_until(target.has_focus, "the keyboard")
        with_stack = []
        wrong = 0
        for number in range(PRESSES):
            with_stack.append(target.press())
            wrong += target.paste() != f"item {number}"
            time.sleep(0.02)
        print(f"{PRESSES} presses, milliseconds from the press to its event in the window")
        before = figures("without the stack", without)
        after = figures("with the stack", with_stack)
        print(f"added by the stack           median {after[0] - before[0]:6.2f}  p99 {after[1] - before[1]:6.2f}")
        print(f"wrong or missing items       {wrong}")


main()
