# SPDX-License-Identifier: GPL-3.0-or-later
"""Foreign windows in which the user types a password, or a name where a password could be."""

import os
import tempfile

from clients import fresh_home
from desktop import HERE, Process, accessible, focus, run, wait_until, window_title, windows


class FieldWindow(Process):
    """A window with a field for a password and one for a name; one of them has the focus."""

    def __init__(self, focused):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "password_window.py"), focused)
        self.window = wait_until(lambda: (windows(f"^{focused}:") or [None])[0], "the window with fields", 60)
        focus(self.window)
        role = "password text" if focused == "password" else "text"
        wait_until(lambda: accessible("password_window", role), "the field on the accessibility bus", 60)

    def content(self):
        return window_title(self.window).split(":", 1)[1]


class LockedVault(Process):
    """KeePassXC, a Qt program, where it asks for the password of a vault."""

    def __init__(self):
        vault = os.path.join(tempfile.mkdtemp(prefix="keepass"), "vault.kdbx")
        run("keepassxc-cli", "db-create", "--set-password", vault, data=b"open\nopen\n", timeout=60)
        super().__init__("keepassxc", vault, env=fresh_home())
        self.window = wait_until(lambda: (windows("KeePassXC") or [None])[0], "the password manager", 60)
        focus(self.window)
        wait_until(lambda: accessible("keepassxc", "password text"), "the field for the password", 60)
