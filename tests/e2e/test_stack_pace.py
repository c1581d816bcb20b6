# SPDX-License-Identifier: GPL-3.0-or-later
"""Quick paste keys: each item once and in its order, however slow the program and whatever else reads the clipboard."""

import os

from clients import ClipboardReader, Mousepad, SlowWindow
from desktop import Vellumry, main, own_tests, remember, run, same, wait_until
from stack import start_stack, wait_ended

HERE = os.path.dirname(os.path.abspath(__file__))
WORDS = [f"item {number}" for number in range(1, 7)]
ROUNDS = 3


def press_paste(milliseconds):
    run("xdotool", "key", "--delay", str(milliseconds), *["ctrl+v"] * len(WORDS))


def keys_150_milliseconds_apart_into_a_slow_program():
    with Vellumry():
        for _ in range(ROUNDS):
            start_stack()
            remember(*WORDS)
            with SlowWindow(0.2) as window:
                press_paste(150)
                same(window.pasted(len(WORDS)), WORDS, "what the slow program pasted")
            wait_ended()


def quick_keys_beside_a_program_that_reads_everything():
    with Vellumry(), ClipboardReader():
        for _ in range(ROUNDS):
            start_stack()
            remember(*[word + " " for word in WORDS])
            with Mousepad() as editor:
                press_paste(12)
                wait_until(lambda: editor.content() == "".join(word + " " for word in WORDS), "each item once, in its order")
            wait_ended()


if __name__ == "__main__":
    main(own_tests())
