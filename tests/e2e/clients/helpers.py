# SPDX-License-Identifier: GPL-3.0-or-later
"""Programs of our own that play a foreign one, each in a process of its own."""

import os
import subprocess

from desktop import Process, focus, run, window_of_class

from .base import HERE

PYTHON = "/usr/bin/python3"


class Helper(Process):
    """A program of this folder that says by lines how far it is."""

    def __init__(self, name, *arguments):
        super().__init__(PYTHON, os.path.join(HERE, name), *arguments, stdout=subprocess.PIPE)

    def line(self):
        return self.handle.stdout.readline().decode().rstrip("\n")


class SlowWindow(Helper):
    """Fetches each paste `delay` seconds after its key."""

    def __init__(self, delay):
        super().__init__("slow_window.py", str(delay))
        focus(window_of_class("Slow"))

    def pasted(self, count):
        return [self.line() for _ in range(count)]


class ClipboardReader(Helper):
    """Reads whatever comes onto the clipboard at once, from its construction on."""

    def __init__(self):
        super().__init__("clipboard_reader.py")
        self.line()


class HangingOwner(Helper):
    """Owns the clipboard from its construction on and answers nothing."""

    def __init__(self):
        super().__init__("owners.py")
        self.line()


def store_and_quit(text):
    """A program copies the text, has the clipboard manager keep it, and quits."""
    run(PYTHON, os.path.join(HERE, "storing_program.py"), text)
