# SPDX-License-Identifier: GPL-3.0-or-later
"""GNOME's own lock screen, before and behind which tests go on. Run inside a session of scripts/wayland-session with GNOME."""

from session import told

from desktop import wait_until

SCREEN = ("--session", "-d", "org.gnome.Shell", "-o", "/org/gnome/ScreenSaver", "-m")
LOGIN = ("--system", "-d", "org.freedesktop.login1", "-o", "/org/freedesktop/login1/session/1", "-m")


def is_locked():
    return "true" in told("gdbus", "call", *SCREEN, "org.gnome.ScreenSaver.GetActive").decode()


class LockedScreen:
    """Locks the screen, and takes the user back in as a display manager does. GNOME empties the clipboard at its beginning, ends what
    portals have given, and runs no extensions behind it."""

    def __enter__(self):
        told("gdbus", "call", *SCREEN, "org.gnome.ScreenSaver.Lock")
        wait_until(is_locked, "the lock screen")

    def __exit__(self, *_):
        told("gdbus", "call", *LOGIN, "org.freedesktop.login1.Session.Unlock")
        wait_until(lambda: not is_locked(), "the unlocked screen")
