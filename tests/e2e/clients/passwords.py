# SPDX-License-Identifier: GPL-3.0-or-later
"""Programs in which the user types, or copies, a password."""

import os
import tempfile

from desktop import accessible, key, run, type_text, wait_until, window_title

from .base import HERE, Client


class FieldWindow(Client):
    """A GTK 3 window with a field for a password and one for a name; one of them has the focus."""

    def __init__(self, focused):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "password_window.py"), focused, window_title=f"^{focused}:")
        role = "password text" if focused == "password" else "text"
        wait_until(lambda: accessible("password_window", role), "the field on the accessibility bus")

    def content(self):
        return window_title(self.window).split(":", 1)[1]


def new_vault():
    """The path of a KeePassXC file that the password "open" opens."""
    path = os.path.join(tempfile.mkdtemp(prefix="keepass"), "vault.kdbx")
    run("keepassxc-cli", "db-create", "--set-password", path, data=b"open\nopen\n")
    return path


class KeePassXC(Client):
    """With one entry."""

    SECRET = "correct-horse-41-battery"

    def __init__(self):
        vault = new_vault()
        run("keepassxc-cli", "add", "--username", "someone", "--password-prompt", vault, "entry",
            data=("open\n" + self.SECRET + "\n" + self.SECRET + "\n").encode())
        # The password is typed: with --pw-stdin 2.7.10 crashes.
        super().__init__("keepassxc", vault, window_title="vault.*KeePassXC")
        wait_until(lambda: accessible("keepassxc", "password text"), "the field for the password")
        type_text("open")
        key("Return")

    def copy_password(self):
        """Selects the entry and copies its password."""
        node = wait_until(lambda: accessible("keepassxc", "table cell", "^entry$"), "the entry")
        area = node.queryComponent().getExtents(0)
        run("xdotool", "mousemove", str(area.x + area.width // 2), str(area.y + area.height // 2), "click", "1")
        key("ctrl+c")


class LockedKeePassXC(Client):
    """A Qt program where it asks for the password of a vault."""

    def __init__(self):
        super().__init__("keepassxc", new_vault(), window_title="KeePassXC")
        wait_until(lambda: accessible("keepassxc", "password text"), "the field for the password")
