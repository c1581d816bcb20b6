# SPDX-License-Identifier: GPL-3.0-or-later
"""The pinned clips' own shortcuts, in foreign applications: each its clip, whatever the layout, the window manager and the stack."""

from Xlib import X, display

from clients import Mousepad
from desktop import (Failure, Process, Vellumry, accessible, copy_text, focus_under_new_manager, key, main, open_panel, own_tests,
                     run, same, text_of, type_text, wait_for_clip, wait_panel_closed, wait_same, wait_until, windows)

KEYCODE_OF_3 = 12
ALT, SUPER = 0x8, 0x40


def pin(*texts):
    """Copies and pins them in this order; the last one pinned stands first or last, as the program has it."""
    for text in texts:
        copy_text(text)
        wait_for_clip(lambda row: text_of(row) == text, "the copy of " + text)
        open_panel()
        wait_until(lambda: accessible("vellumry", "list item", "^" + text), "the row of " + text)
        type_text(text)
        key("ctrl+p")
        wait_for_clip(lambda row: text_of(row) == text and row["pinned"], "the pin of " + text)
        key("Escape", "Escape")
        wait_panel_closed()


def pastes(client, number, expected):
    before = client.content() or ""
    key(f"super+alt+{number}")
    wait_same(client.content, before + expected, f"the pinned clip {number} in the editor")


def numbers_of(client, texts):
    """Which digit pastes which text."""
    found = {}
    for number in range(1, len(texts) + 1):
        client.clear()
        key(f"super+alt+{number}")
        wait_until(lambda: client.content() in texts, f"some pinned clip for {number}")
        found[number] = client.content()
    client.clear()
    same(sorted(found.values()), sorted(texts), "each digit its own clip")
    return found


def each_digit_pastes_its_pinned_clip():
    with Vellumry(), Mousepad() as client:
        texts = ["alpha", "beta", "gamma"]
        pin(*texts)
        numbers_of(client, texts)


def paste_under_new_layout(client, text, layout):
    """A key pressed before the program has heard of the layout goes elsewhere; each is given its time, so that none comes late."""
    for _ in range(5):
        key("super+alt+1")
        try:
            wait_same(client.content, text, f"the paste under {layout}")
            return
        except Failure:
            continue
    raise Failure(f"no paste under {layout}; the editor holds {client.content()!r}")


def they_follow_the_layout():
    with Vellumry(), Mousepad() as client:
        pin("alpha")
        try:
            for layout in ("de", "us -variant dvorak", "ru,us", "us"):
                run("setxkbmap", *layout.split())

                paste_under_new_layout(client, "alpha", layout)
                client.clear()
                wait_same(client.content, "", "an empty editor")
        finally:
            run("setxkbmap", "us")


def what_another_program_holds_is_left_to_it():
    other = display.Display()
    for locks in (0, X.LockMask, X.Mod2Mask, X.LockMask | X.Mod2Mask):
        other.screen().root.grab_key(KEYCODE_OF_3, ALT | SUPER | locks, True, X.GrabModeAsync, X.GrabModeAsync)
    other.sync()
    try:
        with Vellumry(), Mousepad() as client:
            texts = ["alpha", "beta", "gamma", "delta"]
            pin(*texts)
            found = {}
            for number in (1, 2, 4):
                client.clear()
                key(f"super+alt+{number}")
                wait_until(lambda: client.content() in texts, f"some pinned clip for {number}")
                found[number] = client.content()
            same(len(set(found.values())), 3, "each digit its own clip")
            client.clear()
            key("super+alt+3")
            wait_until(lambda: other.pending_events(), "the key at the other program")
            same(client.content(), "", "the editor")
            same(windows("^Vellumry message$"), [], "no word about it")
    finally:
        other.close()


def a_pinned_clip_does_not_advance_a_running_stack():
    with Vellumry(), Mousepad() as client:
        pin("pinned")
        key("super+ctrl+s")
        wait_until(lambda: windows("^Paste Stack$"), "the stack")
        for text in ("one ", "two "):
            copy_text(text)
            wait_for_clip(lambda row: text_of(row) == text, "the copy of " + text)
        key("super+alt+1")
        wait_same(client.content, "pinned", "the pinned clip")
        key("ctrl+v")
        wait_same(client.content, "pinnedone ", "the first of the stack")
        key("super+alt+1")
        wait_same(client.content, "pinnedone pinned", "the pinned clip again")
        key("ctrl+v")
        wait_same(client.content, "pinnedone pinnedtwo ", "the second of the stack")


# The last one: it takes the desktop's window manager away.
def they_outlive_the_window_manager():
    with Vellumry(), Mousepad() as client:
        pin("alpha")
        before = run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        with Process("openbox", "--replace"):
            wait_until(lambda: run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK") not in (before, b""), "the new window manager")
            focus_under_new_manager(client.window)
            pastes(client, 1, "alpha")


main(own_tests())
