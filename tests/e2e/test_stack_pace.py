# SPDX-License-Identifier: GPL-3.0-or-later
"""Quick paste keys: each item once and in its order, however slow the program and whoever else reads the clipboard."""

import os
import subprocess

from clients import GtkEditor
from desktop import Process, Vellumry, focus, main, own_tests, run, same, wait_until, window_of_class
from stack import remember, start_stack, wait_ended

HERE = os.path.dirname(os.path.abspath(__file__))
WORDS = [f"item {number}" for number in range(1, 7)]
ROUNDS = 3


class SlowWindow(Process):
    def __init__(self, delay):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "slow_window.py"), str(delay), stdout=subprocess.PIPE)
        focus(window_of_class("Slow"))

    def pasted(self, count):
        return [self.handle.stdout.readline().decode().rstrip("\n") for _ in range(count)]


class Reader(Process):
    def __init__(self):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "clipboard_reader.py"), stdout=subprocess.PIPE)
        self.handle.stdout.readline()


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
    with Vellumry(), Reader():
        for _ in range(ROUNDS):
            start_stack()
            remember(*[word + " " for word in WORDS])
            with GtkEditor() as editor:
                press_paste(12)
                wait_until(lambda: editor.content() == "".join(word + " " for word in WORDS), "each item once, in its order")
            wait_ended()


if __name__ == "__main__":
    main(own_tests())
