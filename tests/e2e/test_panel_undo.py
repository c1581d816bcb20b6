# SPDX-License-Identifier: GPL-3.0-or-later
"""Deleting clips by real keys, and taking it back: what the history file holds in between and afterwards."""

import os
import signal

from desktop import (HISTORY, Vellumry, accessible, key, main, open_panel, own_tests, panel_is_open, picture, remember, run, same,
                     text_of, text_shown, type_text, unsealed, wait_for_clip, wait_panel_closed, wait_same, wait_until)
from panel_rows import middle, row, texts_kept


def undo_button():
    return accessible("vellumry", "push button", "^Undo$")


def kept():
    """All that the file says of each clip."""
    return sorted(unsealed(), key=lambda entry: entry["id"])


def comes_back_by_key_as_it_was():
    """Ctrl+Delete and Ctrl+Z, right after each other: identity, dates, pin and place are what they were."""
    with Vellumry():
        remember("older", "pinned", "newer")
        open_panel()
        key("Down", "ctrl+p")
        wait_for_clip(lambda entry: text_of(entry) == "pinned" and entry["pinned"], "the pin")
        before = kept()
        key("Home", "shift+Down")
        key("ctrl+Delete", "ctrl+z")
        wait_same(kept, before, "the clips back")
        key("ctrl+Delete")
        wait_same(texts_kept, ["older"], "the deletion")
        key("ctrl+z")
        wait_same(kept, before, "the clips back once more")


def comes_back_by_the_button():
    """The footer offers "Undo"; a click on it brings the clip back, and the offer ends."""
    with Vellumry():
        remember("older", "newer")
        open_panel()
        same(undo_button(), None, "an offer before anything was deleted")
        key("Delete")
        wait_same(texts_kept, ["older"], "the deletion")
        button = wait_until(undo_button, "the offer")
        picture("undo")
        run("xdotool", "mousemove", *map(str, middle(button)), "click", "1")
        wait_same(texts_kept, ["newer", "older"], "the clip back")
        wait_until(lambda: undo_button() is None, "the offer to end")


def is_offered_for_a_while_only():
    """After eight seconds nothing comes back; the log of the file is empty."""
    with Vellumry():
        remember("older", "newer")
        open_panel()
        key("Delete")
        wait_until(undo_button, "the offer")
        wait_until(lambda: undo_button() is None, "the offer to end")
        wait_same(lambda: os.path.getsize(HISTORY + "-wal"), 0, "the log to be emptied")
        key("ctrl+z")
        row("older")
        same(texts_kept(), ["older"], "the clips kept")


def is_over_when_the_panel_closes():
    """A panel that was closed brings nothing back."""
    with Vellumry():
        remember("older", "newer")
        open_panel()
        key("Delete")
        wait_same(texts_kept, ["older"], "the deletion")
        key("Escape")
        wait_panel_closed()
        open_panel()
        row("older")
        same(undo_button(), None, "the offer")
        key("ctrl+z", "Escape")
        wait_panel_closed()
        same(texts_kept(), ["older"], "the clips kept")


def a_killed_program_has_deleted():
    """Killed while the offer stands, the program has the clip no more when it starts again."""
    with Vellumry() as program:
        remember("older", "newer")
        open_panel()
        key("Delete")
        wait_until(undo_button, "the offer")
        wait_same(texts_kept, ["older"], "the deletion in the file")
        program.stop(signal.SIGKILL)
    with Vellumry():
        open_panel()
        row("older")
        same(texts_kept(), ["older"], "the clips kept")


def a_secret_has_no_way_back():
    """What a password manager copied is deleted for good."""
    with Vellumry():
        remember("plain", "4111 1111 1111 1111")
        wait_for_clip(lambda entry: entry["expires"] is not None, "the card number, kept for a minute")
        open_panel()
        key("Up", "Home", "Delete")
        wait_same(texts_kept, ["plain"], "the deletion")
        row("plain")
        same(undo_button(), None, "the offer")
        key("ctrl+z", "Escape")
        wait_panel_closed()
        same(texts_kept(), ["plain"], "the clips kept")


def keys_that_rub_out_text_leave_the_clips_alone():
    """Ctrl+Backspace takes a word with its blank from the field; in the empty field it deletes. Ctrl+Z is the field's after typing."""
    with Vellumry():
        remember("alpha beta", "gamma")
        open_panel()
        key("Delete")
        wait_same(texts_kept, ["alpha beta"], "the deletion")
        type_text("alpha be")
        key("ctrl+BackSpace")
        wait_same(lambda: text_shown("vellumry"), "alpha", "the word rubbed out")
        key("ctrl+z")
        wait_same(lambda: text_shown("vellumry"), "alpha be", "the word back")
        same(texts_kept(), ["alpha beta"], "the clips kept")
        key("ctrl+BackSpace", "ctrl+BackSpace")
        wait_same(lambda: text_shown("vellumry"), "", "the field empty")
        same(texts_kept(), ["alpha beta"], "the clips kept")
        key("ctrl+BackSpace")
        wait_same(texts_kept, [], "the deletion")
        same(panel_is_open(), True, "the panel is open")


if __name__ == "__main__":
    main(own_tests())
