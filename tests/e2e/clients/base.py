# SPDX-License-Identifier: GPL-3.0-or-later
"""What all foreign programs of the tests have in common."""

import os
import tempfile

from desktop import Failure, Process, clipboard, focus, type_text, wait_until, window_of_class, windows

HERE = os.path.dirname(os.path.abspath(__file__))


def fresh_home():
    """An environment in which a program finds nothing of its earlier runs: an editor that was ended offers to restore."""
    folder = tempfile.mkdtemp(prefix="client")
    return dict(os.environ, XDG_CONFIG_HOME=folder + "/config", XDG_DATA_HOME=folder + "/data", XDG_CACHE_HOME=folder + "/cache")


def until_copied(copy, target="TARGETS"):
    """Copies until the clipboard has an owner with that target: a program just started may not listen yet."""

    def copied():
        copy()
        return clipboard(target) is not None

    wait_until(copied, f"{target} on the clipboard")


def written(folder, name, text=""):
    """The path of a new file."""
    path = os.path.join(folder, name)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    return path


class Client(Process):
    """A program with a window, which has the keyboard once it is started. Its window is found by its class, or by its title (a
    pattern)."""

    title = ""  # of the program, for people
    toolkit = ""
    paste_key = "ctrl+v"
    start_limit = 60.0

    def __init__(self, *command, window_class=None, window_title=None, **options):
        super().__init__(*command, **{"env": fresh_home(), **options})
        if window_class:
            self.window = window_of_class(window_class)
        else:
            self.window = wait_until(lambda: (windows(window_title) or [None])[0], f"a window {window_title!r}", self.start_limit)
        focus(self.window)

    def get_ready(self):
        """Waits until a paste would arrive, for programs whose window is there before."""

    def settle(self):
        """Does what the program needs before its content can be read."""

    def content(self):
        """The text that it holds."""
        with open(self.path, encoding="utf-8") as file:
            return file.read()

    def wait_for_keys(self, prepare=lambda: None):
        """A window is there long before what is typed reaches its text, and some move the focus once more at their start."""

        def holds_typed():
            self.settle()
            return "1," in (self.content() or "")

        def takes_keys():
            prepare()
            type_text("1,")
            try:
                return wait_until(holds_typed, "what was typed", 2)
            except Failure:
                return False

        wait_until(takes_keys, "typing to arrive in " + self.title)
