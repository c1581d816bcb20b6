# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel's search field and the clipboard: what was copied goes in, what is selected goes out, and an owner that keeps silent
holds up nobody."""

import os
import signal
import time

from desktop import (Failure, Vellumry, clipboard, copy_text, key, main, open_panel, own_tests, run, same, text_of, text_shown,
                     type_text, wait_for_clip, wait_panel_closed, wait_same, wait_until)
from clients.owners import HostileOwner, Silence

ANSWER_LIMIT = 0.5


def field():
    return text_shown("vellumry", "text", "^Search clips$") or ""


def field_becomes(text, timeout=10.0):
    wait_same(field, text, f"{text!r} in the search field", timeout)


def pastes_what_was_copied():
    """Ctrl+V and Shift+Insert bring in the first line of what was copied."""
    with Vellumry():
        copy_text("\n  first line \nsecond line")
        wait_for_clip(lambda row: "first line" in (text_of(row) or ""), "the copy")
        open_panel()
        key("ctrl+v")
        field_becomes("first line")
        key("shift+Insert")
        field_becomes("first linefirst line")
        key("ctrl+a")
        key("ctrl+v")
        field_becomes("first line")


def copies_what_is_selected():
    """Text copied out of the field is a copy like any other."""
    with Vellumry():
        copy_text("something else")
        wait_for_clip(lambda row: text_of(row) == "something else", "the copy")
        open_panel()
        type_text("some words")
        field_becomes("some words")
        key("ctrl+a", "ctrl+c")
        wait_same(clipboard, b"some words", "the words on the clipboard")
        wait_for_clip(lambda row: text_of(row) == "some words", "them in the history")
        key("ctrl+x")
        field_becomes("")
        same(clipboard(), b"some words", "the clipboard after cutting")


def does_not_wait_for_a_silent_owner():
    """An owner that never answers: the field goes on taking letters, the panel closes at once."""
    with Vellumry() as program, HostileOwner({"UTF8_STRING": Silence}) as owner:
        wait_until(lambda: owner.was_asked_for("UTF8_STRING"), "the owner to be asked")
        open_panel()
        key("ctrl+v", "ctrl+v", "ctrl+v")
        began = time.monotonic()
        type_text("abc")
        field_becomes("abc", ANSWER_LIMIT * 4)
        took = time.monotonic() - began
        if took > ANSWER_LIMIT:
            raise Failure(f"three letters took {took:.2f} s")
        began = time.monotonic()
        key("Escape", "Escape")
        wait_panel_closed()
        if time.monotonic() - began > ANSWER_LIMIT:
            raise Failure("the panel was slow to close")
        same(program.alive(), True, "the program runs")


def takes_dead_keys_and_compose_sequences():
    """An accent waits for its letter, and a compose sequence for its end; the list is searched for what came of them."""
    layout = ("setxkbmap", "-layout", "us", "-variant", "intl", "-option", "compose:menu")
    try:
        run(*layout)
        with Vellumry():
            for text in ("café", "plain"):
                copy_text(text)
                wait_for_clip(lambda row: text_of(row) == text, "the copy")
            open_panel()
            type_text("caf")
            key("dead_acute", "e")
            field_becomes("café")
            key("Return")
            wait_panel_closed()
            wait_until(lambda: clipboard() == "café".encode(), "the clip that was found")
            open_panel()
            key("Multi_key", "s", "s")
            field_becomes("ß")
            key("ctrl+BackSpace")
            field_becomes("")
    finally:
        run("setxkbmap", "-layout", "us", "-option", "")


def keys_typed_at_a_busy_program_keep_their_order():
    """Letters and accents that wait together are no other word."""
    layout = ("setxkbmap", "-layout", "us", "-variant", "intl")
    try:
        run(*layout)
        with Vellumry() as program:
            open_panel()
            type_text("n")
            field_becomes("n")
            os.kill(program.pid, signal.SIGSTOP)
            type_text("e")
            key("dead_acute", "e")
            type_text("s")
            os.kill(program.pid, signal.SIGCONT)
            field_becomes("neés")
    finally:
        run("setxkbmap", "-layout", "us", "-option", "")


if __name__ == "__main__":
    main(own_tests())
