# SPDX-License-Identifier: GPL-3.0-or-later
"""How many of 300 quick copies are lost, at 20, 50 and 100 a second, from an owner that answers at once. Run inside
scripts/headless-session; VELLUMRY names the program."""

import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))

from desktop import Vellumry, key, open_panel, text_of, unsealed, wait_panel_closed, wait_until  # noqa: E402
from clients.owners import copy_in_a_row  # noqa: E402

COPIES = 300


def lost(rate):
    """Of copies made after the panel was opened once: what the program does once after its start is behind it then."""
    with Vellumry():
        open_panel()
        key("Escape")
        wait_panel_closed()
        texts = [f"{rate} a second, {index:03}" for index in range(COPIES)]
        copy_in_a_row(texts, 1 / rate)
        wait_until(lambda: any(text_of(row) == texts[-1] for row in unsealed()), "the last copy", 60)
        kept = {text_of(row) for row in unsealed()}
        return sum(text not in kept for text in texts)


if __name__ == "__main__":
    for speed in (20, 50, 100):
        print(f"lost of {COPIES} copies at {speed:>3} a second: {lost(speed)}", flush=True)
