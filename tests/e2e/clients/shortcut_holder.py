# SPDX-License-Identifier: GPL-3.0-or-later
"""Another program that holds the shortcut of the panel."""

from Xlib import X, display

LETTER_V = 55
CONTROL, SUPER = X.ControlMask, X.Mod4Mask


class ShortcutHolder:
    """Holds Super+Ctrl+V, whatever is locked, until it is closed."""

    def __init__(self):
        self.display = display.Display()
        for locks in (0, X.LockMask, X.Mod2Mask, X.LockMask | X.Mod2Mask):
            self.display.screen().root.grab_key(LETTER_V, CONTROL | SUPER | locks, True, X.GrabModeAsync, X.GrabModeAsync)
        self.display.sync()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.display.close()
