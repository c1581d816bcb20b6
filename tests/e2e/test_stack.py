# SPDX-License-Identifier: GPL-3.0-or-later
"""The Paste Stack: several things copied, then each paste key of the user pastes the next, in foreign applications."""

import os
import shutil

from clients import FeatherPad, Mousepad, XTerm
from desktop import (DATA, Vellumry, accessible, active_window, clipboard, copy_text, key, main, open_panel, own_tests,
                     panel_is_open, picture, remember, run, same, text_of, type_text, unsealed, wait_for_clip, wait_panel_closed,
                     wait_same, wait_until)
from history_probe import ids
from stack import TOGGLE, is_running, paste_each, start_stack, wait_ended


def copies_come_back_in_a_gtk_editor():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ", "three ")
        picture("stack")
        paste_each(client, "ctrl+v", ["one ", "two ", "three "])
        wait_ended()
        key("ctrl+v")
        wait_same(client.content, "one two three three ", "the last one again")


def copies_come_back_in_a_qt_editor():
    with Vellumry(), FeatherPad() as client:
        start_stack()
        remember("one ", "two ", "three ")
        paste_each(client, "ctrl+v", ["one ", "two ", "three "])
        wait_ended()


def what_is_copied_in_the_client_itself_is_taken():
    with Vellumry(), Mousepad() as client:
        start_stack()
        for word in ("red", "green", "blue"):
            client.type_and_copy(word)
            wait_for_clip(lambda row: text_of(row) == word, "the copy of " + word)
            client.clear()
        paste_each(client, "ctrl+v", ["red", "green", "blue"])
        wait_ended()


def a_terminal_pastes_with_its_own_keys():
    with Vellumry(), XTerm() as client:
        start_stack()
        remember("alpha\n", "beta\n", "gamma\n")
        paste_each(client, "shift+Insert", ["alpha\n", "beta\n", "gamma\n"])
        wait_ended()


def with_shift_held_it_pastes_too():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ")
        key("ctrl+shift+v")
        wait_same(clipboard, b"one ", "the first on the clipboard")
        key("shift+Insert")
        wait_until(lambda: (client.content() or "").endswith("two "), "the second in the editor")
        wait_ended()


def other_keys_do_not_advance_it():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ")
        key("super+ctrl+v")
        wait_until(panel_is_open, "the panel")
        key("ctrl+v")  # into the panel's own search field
        wait_until(lambda: accessible("vellumry", "text") is not None, "the search field")
        key("Escape")  # clears the search
        key("Escape")
        wait_panel_closed()
        type_text("v")
        wait_same(client.content, "v", "the letter alone")
        key("ctrl+v")
        wait_same(client.content, "vone ", "the first of the stack")
        key(TOGGLE)
        wait_ended()


def holding_the_keys_down_advances_once():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("a", "b", "c")
        try:
            run("xdotool", "keydown", "ctrl", "keydown", "v")
            wait_until(lambda: len(client.content()) > 4, "repeats", 20)
        finally:
            run("xdotool", "keyup", "v", "keyup", "ctrl")
        same(set(client.content()), {"a"}, "what the repeats pasted")
        count = len(client.content())
        key("ctrl+v")
        wait_same(client.content, "a" * count + "b", "the second item once")
        key(TOGGLE)
        wait_ended()


def an_empty_one_leaves_the_clipboard_alone():
    with Vellumry(), Mousepad() as client:
        remember("mine")
        start_stack()
        key("ctrl+v")
        wait_same(client.content, "mine", "the clipboard as it was")
        same(is_running(), True, "still running")
        key(TOGGLE)
        wait_ended()


def reversed_the_newest_goes_first():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ", "three ")
        key("ctrl+v")
        wait_same(client.content, "one ", "the oldest")
        button = wait_until(lambda: accessible("vellumry", "push button", "first"), "the button that turns it round")
        area = button.queryComponent().getExtents(0)
        run("xdotool", "mousemove", str(area.x + area.width // 2), str(area.y + area.height // 2), "click", "1")
        wait_until(lambda: accessible("vellumry", "push button", "^Newest first"), "the order turned round")
        same(active_window(), int(client.window), "the active window")
        key("ctrl+v")
        wait_same(client.content, "one three ", "the newest")
        key("ctrl+v")
        wait_same(client.content, "one three two ", "the one before it")
        wait_ended()


def stopped_by_hand_the_last_item_stays():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one", "two")
        key("ctrl+v")
        wait_same(client.content, "one", "the first")
        key(TOGGLE)
        wait_ended()
        same(clipboard(), b"one", "the clipboard")
        key("ctrl+v")
        wait_same(client.content, "oneone", "the same once more")


def a_copy_of_a_moment_ago_comes_first():
    with Vellumry(), Mousepad() as client:
        start_stack()
        for number in range(10):
            # Nothing is waited for between the copy and the key.
            copy_text(f"copy {number}.")
            run("xdotool", "key", "ctrl+v")
            wanted = "".join(f"copy {earlier}." for earlier in range(number + 1))
            wait_same(client.content, wanted, f"copy {number} in the editor")
            wait_ended()
            start_stack()
        same(len(unsealed()), 10, "all of them in the history")
        key(TOGGLE)
        wait_ended()


def selected_clips_are_pasted_oldest_first():
    with Vellumry(), Mousepad() as client:
        remember("one ", "two ", "three ")
        open_panel()
        key("shift+Down", "shift+Down")
        wait_until(lambda: accessible("vellumry", "list item", "^one"), "the rows")
        key(TOGGLE)
        wait_panel_closed()
        wait_until(is_running, "the stack's bar")
        paste_each(client, "ctrl+v", ["one ", "two ", "three "])
        wait_ended()


def ten_a_second_lose_and_double_nothing():
    rounds = int(os.environ.get("VELLUMRY_STACK_PASTES", "60"))
    for make in (Mousepad, FeatherPad):
        shutil.rmtree(DATA, ignore_errors=True)
        with Vellumry(), make() as client:
            start_stack()
            expected = ""
            for number in range(rounds):
                text = f"{number},"
                copy_text(text)
                wait_same(lambda: len(ids()), number + 1, f"copy {number} in the history, so in the stack")
                expected += text
            run("xdotool", "key", "--delay", "100", *["ctrl+v"] * rounds, timeout=60 + rounds)
            wait_same(client.content, expected, "all in order", 20)
            wait_ended()


main(own_tests())
