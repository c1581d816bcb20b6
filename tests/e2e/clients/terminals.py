# SPDX-License-Identifier: GPL-3.0-or-later
"""Terminals: one line is printed at their start, then `cat` writes down what is typed."""

import os
import tempfile

from desktop import key, run, wait_until

from .base import Client


class Terminal(Client):
    toolkit = "terminal"
    paste_key = "ctrl+shift+v"
    window_class = ""
    command = ()
    FIRST_LINE = "one-terminal-word"

    def __init__(self):
        self.path = os.path.join(tempfile.mkdtemp(prefix="terminal"), "typed")
        inner = f"echo {self.FIRST_LINE}; exec cat > {self.path}"
        super().__init__(*self.command, *self.running(inner), window_class=self.window_class)
        wait_until(lambda: os.path.exists(self.path), "the shell in the terminal")

    def running(self, inner):
        return ("-e", "sh", "-c", inner)

    def settle(self):
        """`cat` gets whole lines."""
        key("Return")


class XTerm(Terminal):
    """Pastes the primary selection on Shift+Insert; what is selected in it is copied."""

    title, window_class, paste_key = "xterm", "XTerm", "shift+Insert"
    command = ("xterm", "-xrm", "XTerm*selectToClipboard: true", "-geometry", "100x30")

    def copy_first_line(self):
        """A triple click on the first line copies it."""
        run("xdotool", "mousemove", "--window", self.window, "30", "10")
        run("xdotool", "click", "--repeat", "3", "--delay", "30", "1")
        return self.FIRST_LINE + "\n"


class Rxvt(Terminal):
    title, window_class, paste_key = "rxvt-unicode", "URxvt", "shift+Insert"
    command = ("urxvt",)


class LxTerminal(Terminal):
    title, window_class = "LXTerminal", "lxterminal"
    command = ("dbus-run-session", "lxterminal", "--no-remote")

    def running(self, inner):
        return ("-e", f"sh -c '{inner}'")


class Konsole(Terminal):
    title, window_class = "Konsole", "konsole"
    command = ("dbus-run-session", "konsole", "--nofork")


class Kitty(Terminal):
    title, window_class = "kitty", "kitty"
    command = ("kitty", "--config", "NONE")

    def running(self, inner):
        return ("sh", "-c", inner)


class XfceTerminal(Terminal):
    title, window_class = "Xfce Terminal", "Xfce4-terminal"
    command = ("dbus-run-session", "xfce4-terminal", "--disable-server")

    def running(self, inner):
        return ("-x", "sh", "-c", inner)


class GnomeTerminal(Terminal):
    title, window_class = "GNOME Terminal", "Gnome-terminal"
    command = ("dbus-run-session", "gnome-terminal", "--wait", "--")

    def running(self, inner):
        return ("sh", "-c", inner)
