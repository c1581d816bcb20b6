# SPDX-License-Identifier: GPL-3.0-or-later
"""Keys pressed by where they lie on the keyboard, as a hand does, with the layout as it is: nothing is remapped for it."""

from Xlib import XK, X, display
from Xlib.ext import xtest

POSITION_OF_V = 55


class PhysicalKeys:
    """Of the layout that is set when it is made."""

    def __init__(self):
        self.display = display.Display()
        self.codes = {
            "super": self.code("Super_L"),
            "control": self.code("Control_L"),
            "v": self.code("v") or POSITION_OF_V,
            "return": self.code("Return"),
        }

    def code(self, name):
        return self.display.keysym_to_keycode(XK.string_to_keysym(name))

    def press(self, *names):
        """Down in this order, up in the other."""
        for name in names:
            xtest.fake_input(self.display, X.KeyPress, self.codes[name])
        for name in reversed(names):
            xtest.fake_input(self.display, X.KeyRelease, self.codes[name])
        self.display.sync()

    def close(self):
        self.display.close()
