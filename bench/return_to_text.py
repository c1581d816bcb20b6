# SPDX-License-Identifier: GPL-3.0-or-later
"""Return in the panel until the text stands in a foreign GTK editor, beside CopyQ's own pasting, in one headless desktop.

Our settle delay of 70 ms is taken off in a column of its own. Run by bench/run inside scripts/headless-session.
"""

import os
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "tests", "e2e"))

from peers import CopyQ, Ours  # noqa: E402
from side_by_side import press_shortcut  # noqa: E402

from clients import Mousepad  # noqa: E402
from desktop import QUIET, Failure, accessible, active_window, copy_text, focus, wait_until, window_title, windows  # noqa: E402

SETTLE = 0.070
ROUNDS = 15


def press_return():
    from Xlib import X, display
    from Xlib.ext import xtest

    screen = display.Display()
    code = screen.keysym_to_keycode(0xFF0D)
    xtest.fake_input(screen, X.KeyPress, code)
    xtest.fake_input(screen, X.KeyRelease, code)
    screen.sync()
    screen.close()


def watch(tool, text):
    """Tells whether the text, which is about to be copied, is the newest of the history."""
    if isinstance(tool, CopyQ):
        return lambda: tool.ask("read", "0") == text
    return tool.watch_for(text)


def peer_is_open():
    window = active_window()
    return window != 0 and window_title(str(window)).endswith("CopyQ")


def opened(is_open):
    """A program that has just been told of its shortcut may not listen for it yet."""
    press_shortcut()
    try:
        return wait_until(is_open, "the window with the history", 2)
    except Failure:
        return False


def measure(tool, is_open):
    tool.start()
    tool.wait_ready()
    delays = []
    with Mousepad() as editor:
        field = accessible("mousepad", "text").queryText()
        for index in range(ROUNDS):
            text = f"pasted text {index}"
            kept = watch(tool, text)
            copy_text(text)
            try:
                wait_until(kept, "the copy", 5)
            except Failure:  # it did not notice the copy
                delays.append(float("nan"))
                continue
            focus(editor.window)
            editor.clear()
            wait_until(lambda: field.characterCount == 0, "an empty editor")
            wait_until(lambda: opened(is_open), "the window with the history")
            time.sleep(0.2)  # a user looks before they choose
            began = time.monotonic()
            press_return()
            while field.characterCount != len(text) and time.monotonic() < began + 5:
                time.sleep(0.0005)
            took = time.monotonic() - began
            delays.append(took if took < 5 else float("nan"))
            wait_until(lambda: not is_open(), "the window with the history to go")
    tool.stop()
    return delays


def main():
    rows = [("Vellumry", SETTLE, measure(Ours(), lambda: windows("^Vellumry$")))]
    if subprocess.run(["which", "copyq"], **QUIET).returncode == 0 and "--alone" not in sys.argv:
        rows.append(("CopyQ", 0.0, measure(CopyQ(), peer_is_open)))
    print(f"{'':10}{'arrived':>10}{'median ms':>12}{'most ms':>10}{'without settling':>18}")
    for name, settle, delays in rows:
        arrived = [delay for delay in delays if delay == delay]
        if not arrived:
            print(f"{name:10}{0:>7}/{ROUNDS}")
            continue
        middle = statistics.median(arrived)
        print(f"{name:10}{len(arrived):>7}/{ROUNDS}{middle * 1000:12.1f}{max(arrived) * 1000:10.1f}{(middle - settle) * 1000:18.1f}")


if __name__ == "__main__":
    main()
