# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program has in memory after use on X11, with the copies, showings of the panel and pastes that bench/wayland.py makes, so that its
figures can be set beside those. Run by bench/wayland inside scripts/headless-session, in the system of the Wayland sessions: other
libraries would be another comparison. Prints a table; nothing here passes or fails.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "tests", "e2e"))

from machine import process_tree, pss_megabytes  # noqa: E402
from one_liners import texts  # noqa: E402
from peers import Ours  # noqa: E402
from side_by_side import CLIPS, Owner, press_shortcut  # noqa: E402

from desktop import key, wait_until, windows  # noqa: E402

SHOWINGS = 31
PASTES = 15


def copy(tool, owner, text):
    """Once more where it was written over before it was read."""
    before = tool.count()
    owner.copy(text)
    while not owner.serve(5, until=lambda: tool.count() > before):
        owner.copy(text)


def show(owner):
    press_shortcut()
    wait_until(lambda: windows("^Vellumry$"), "the panel")
    owner.serve(0.1)


def paste(tool, owner, text):
    copy(tool, owner, text)
    show(owner)
    key("Return")
    wait_until(lambda: not windows("^Vellumry$"), "the panel to close")
    owner.serve(0.3)


def tell(name, value):
    print(f"{name:62} {value}", flush=True)


def main():
    tool, owner = Ours(), Owner()
    tool.start()
    tool.wait_ready()
    for text in texts(CLIPS):
        copy(tool, owner, text)
    for _ in range(SHOWINGS):
        show(owner)
        tool.hide()
    for number in range(PASTES):
        paste(tool, owner, f"pasted text {number}")
    tell("session, load", f"x11, {os.getloadavg()[0]:.1f}")
    owner.serve(1)
    tell("PSS 1 s after use, MB", f"{pss_megabytes(process_tree(tool.process.pid)):.1f}")
    owner.serve(19)
    tell("PSS 20 s after use, MB", f"{pss_megabytes(process_tree(tool.process.pid)):.1f}")
    tool.stop()


if __name__ == "__main__":
    main()
