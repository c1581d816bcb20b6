# SPDX-License-Identifier: GPL-3.0-or-later
"""The lock screens of the desktops, before and behind which tests go on. Run inside a session of scripts/wayland-session."""

import os
import signal

from session import SESSION, told

from desktop import Process, wait_until

LOGIN = ("--system", "-d", "org.freedesktop.login1", "-o", "/org/freedesktop/login1/session/" + os.environ.get("XDG_SESSION_ID", ""), "-m")
# The service that locks, and its interface.
SERVICES = {"kwin": ("org.freedesktop.ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver"),
            "gnome": ("org.gnome.Shell", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver")}


def asked(method):
    name, path, interface = SERVICES[SESSION.removesuffix("-plain")]
    return told("gdbus", "call", "--session", "-d", name, "-o", path, "-m", f"{interface}.{method}").decode()


class DesktopLock:
    """Plasma's and GNOME's own lock screens, which end when the login manager says that the user is back, as a display manager has it. GNOME
    empties the clipboard at its beginning, ends what portals have given, and runs no extensions behind it."""

    def __enter__(self):
        asked("Lock")
        wait_until(lambda: "true" in asked("GetActive"), "the lock screen")

    def __exit__(self, *_):
        told("gdbus", "call", *LOGIN, "org.freedesktop.login1.Session.Unlock")
        wait_until(lambda: "false" in asked("GetActive"), "the unlocked screen")


class Swaylock(Process):
    """The lock screen of sway and its kin."""

    def __init__(self):
        super().__init__("swaylock", "--color", "203040")

    def __exit__(self, *_):
        os.kill(self.pid, signal.SIGUSR1)  # the user is back
        wait_until(lambda: not self.alive(), "the unlocked screen")
        super().__exit__(*_)


LockedScreen = Swaylock if SESSION in ("sway", "labwc") else DesktopLock
