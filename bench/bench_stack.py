# SPDX-License-Identifier: GPL-3.0-or-later
"""What the running Paste Stack adds to a paste key: from the key going down to the program in front getting it, with the
stack and without. Run inside scripts/headless-session; VELLUMRY names the program. Prints milliseconds."""

import os
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))

from desktop import Vellumry, copy_text, key, wait_until, windows  # noqa: E402
from history_probe import ids  # noqa: E402
from clients import KeyWindow  # noqa: E402

PRESSES = int(os.environ.get("VELLUMRY_STACK_PRESSES", "200"))


def figures(name, values):
    values = sorted(values)
    rank = min(len(values) - 1, int(len(values) * 0.99))
    print(f"{name:<28} median {statistics.median(values):6.2f}  p99 {values[rank]:6.2f}  max {values[-1]:6.2f}", flush=True)
    return statistics.median(values), values[rank]


def main():
    with Vellumry():
        target = KeyWindow()
        copy_text("plain")
        wait_until(lambda: len(ids()) == 1, "the first copy in the history")
        without = []
        for _ in range(PRESSES):
            without.append(target.press())
            target.paste()
        key("super+ctrl+s")
        wait_until(lambda: windows("^Paste Stack$"), "the stack")
        for number in range(PRESSES):
            copy_text(f"item {number}")
            wait_until(lambda: len(ids()) == number + 2, f"{number + 1} items")
        wait_until(target.has_focus, "the keyboard")
        with_stack = []
        wrong = 0
        for number in range(PRESSES):
            with_stack.append(target.press())
            wrong += target.paste() != f"item {number}".encode()
            time.sleep(0.02)
        print(f"{PRESSES} presses, milliseconds from the press to its event in the window")
        before = figures("without the stack", without)
        after = figures("with the stack", with_stack)
        print(f"added by the stack           median {after[0] - before[0]:6.2f}  p99 {after[1] - before[1]:6.2f}")
        print(f"wrong or missing items       {wrong}")


main()
