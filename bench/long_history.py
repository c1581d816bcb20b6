# SPDX-License-Identifier: GPL-3.0-or-later
"""The built program with a long history: its start, the first letter that is searched for, and its memory, with 5,000 and 100,000 clips
(the same texts that the other tools get; VELLUMRY_BENCH_LONG sets another number). Run inside scripts/headless-session. Prints a table;
nothing here passes or fails.
"""

import os
import shutil
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

from side_by_side import SHORT, Owner, changed_after, press_shortcut, print_rows, time_to_watching  # noqa: E402

from Xlib import X, display  # noqa: E402
from Xlib.ext import xtest  # noqa: E402

from machine import described, process_tree, pss_megabytes  # noqa: E402
from peers import Ours, fill_history, texts  # noqa: E402

from desktop import DATA, key  # noqa: E402

LONG = int(os.environ.get("VELLUMRY_BENCH_LONG", "100000"))
STARTS = 4 if SHORT else 7
SEARCHES = 2 if SHORT else 3
LIST = (420, 330, 300, 400)  # rows of the panel, without the field that one types into
PANEL = (760, 300, 60, 60)
LETTERS = "qxz"

ROWS = (
    ("start", "start to watching, ms", 80),
    ("complete", "start to the whole history, checked, ms", ""),
    ("letter", "first letter, typed as soon as the history is there, ms", 20),
    ("rest", "memory 20 s after the start (PSS), MB", ""),
    ("searched", "memory once searched (PSS), MB", 160),
)


def picture(region):
    root = display.Display().screen().root
    return root.get_image(*region, X.ZPixmap, 0xFFFFFFFF).data


class Tap:
    """Types a letter. The connection to the server is made beforehand: it takes some milliseconds of their own."""

    def __init__(self, letter):
        self.screen = display.Display()
        self.code = self.screen.keysym_to_keycode(ord(letter))

    def __call__(self):
        xtest.fake_input(self.screen, X.KeyPress, self.code)
        xtest.fake_input(self.screen, X.KeyRelease, self.code)
        self.screen.sync()


def first_letter(tool, letter):
    """Seconds from the key to other rows, in a program that has just started."""
    blank = picture(PANEL)
    tool.start()
    tool.wait_ready()
    changed_after(blank, PANEL, press_shortcut)
    time.sleep(0.3)  # all of the panel is painted: what changes now is the letter's doing
    return changed_after(picture(LIST), LIST, Tap(letter), 20.0)


def measure(count):
    figures = {}
    owner = Owner()
    tool = Ours(count + 1000)
    shutil.rmtree(DATA, ignore_errors=True)
    fill_history(texts(count))
    figures["letter"] = []
    for letter in LETTERS[:SEARCHES]:
        figures["letter"].append(first_letter(tool, letter) * 1000)
        key("Escape")  # what was typed goes first, then the panel
        tool.hide()
        if letter == LETTERS[0]:
            owner.serve(20.0)
            figures["searched"] = [pss_megabytes(process_tree(tool.process.pid))]
        tool.stop()
    figures["complete"] = []
    for _ in range(STARTS):
        tool.start()
        tool.wait_ready()
        figures["complete"].append(tool.process.ready_after * 1000)
        tool.stop()
    tool.start()
    tool.wait_ready()
    owner.serve(20.0)
    figures["rest"] = [pss_megabytes(process_tree(tool.process.pid))]
    tool.stop()
    figures["start"] = [time_to_watching(tool, owner) * 1000 for _ in range(STARTS)]
    owner.close()
    return figures


def main():
    counts = (5000, LONG)
    texts_size = [sum(len(text) for text in texts(count)) / 1e6 for count in counts]
    print(f"{described()}; " + ", ".join(f"{count} clips with {size:.1f} MB of text" for count, size in zip(counts, texts_size)))
    print_rows(ROWS, [f"{count} clips" for count in counts], [measure(count) for count in counts], marks=False)
    print(described(), flush=True)


if __name__ == "__main__":
    main()
