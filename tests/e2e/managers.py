# SPDX-License-Identifier: GPL-3.0-or-later
"""What must hold under every window manager; scripts/test-managers runs it under each of several."""

import os
import subprocess

from clients import Mousepad
from desktop import (remember, QUIET, Process, Vellumry, accessible, active_window, copy_text, focused_window, key, main, own_tests,
                     panel_is_open, run, same, text_of, wait_for_clip, wait_panel_closed, wait_same, wait_until, windows)

PANEL = "^Vellumry$"
MANAGER = os.environ.get("VELLUMRY_WM", "openbox")
TILES = MANAGER == "i3"


def geometry(window):
    lines = dict(line.split("=") for line in run("xdotool", "getwindowgeometry", "--shell", window).decode().split())
    return tuple(int(lines[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def listed(name):
    """The windows that the window manager lists for task bars and pagers."""
    done = subprocess.run(["xprop", "-root", name], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.decode()
    return {int(word.strip(","), 16) for word in done.split() if word.startswith("0x")}


class Terminal(Process):
    """Another window, beside the editor or over the half of it."""

    def __init__(self, *arguments):
        before = set(run_quietly("xdotool", "search", "--onlyvisible", "--class", "XTerm").split())
        super().__init__("xterm", "-geometry", "70x24+900+380", *arguments)
        shown = lambda: set(run_quietly("xdotool", "search", "--onlyvisible", "--class", "XTerm").split()) - before
        self.window = wait_until(shown, "the terminal").pop()


def run_quietly(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.decode()


def point(x, y):
    run("xdotool", "mousemove", str(x), str(y))


def places():
    """Where the pointer may lie while the panel is open: over the panel with the editor beneath, over the panel with the terminal
    beneath, and over the bare desktop, which a tiling manager leaves nothing of."""
    return ((700, 500), (1200, 500)) + (() if TILES else ((1915, 1075),))


def into(editor):
    """The keyboard is in the editor, and so is the pointer: some managers give the keyboard to what it lies on."""
    x, y, width, height = geometry(editor.window)
    point(x + width // 3, y + height // 2)

    def obeyed():
        subprocess.run(["xdotool", "windowactivate", editor.window], **QUIET)
        return active_window() == int(editor.window) and focused_window() > 1

    wait_until(obeyed, "the keyboard in the editor")


def open_over(editor, pointer):
    """Opens the panel while the keyboard is in the editor, then puts the pointer somewhere."""
    into(editor)
    before = focused_window()
    key("super+ctrl+v")
    wait_until(panel_is_open, "the panel")
    wait_until(lambda: accessible("vellumry", "text", "^Search clips$"), "the search field")
    point(*pointer)
    return before


def back_in(editor, before):
    wait_same(active_window, int(editor.window), "the editor active")
    wait_same(focused_window, before, "the keyboard in the editor")


def the_panel_floats_without_a_frame_and_is_in_no_task_bar():
    """As large as it is made, in the middle, above all; the editor below stays the active window and does not move."""
    with Vellumry(), Mousepad() as editor:
        remember("one")
        into(editor)
        below = geometry(editor.window)
        open_over(editor, (960, 700))
        window = wait_until(lambda: windows(PANEL), "the panel")[0]
        x, y, width, height = geometry(window)
        # Without a compositor the window is the panel; with one there is room for its shadow.
        same(width - 780, height - 500, "what lies around the panel is as wide on all sides")
        same(abs(2 * x + width - 1920) <= 1, True, "it is in the middle")
        frame = run_quietly("xprop", "-id", window, "_NET_FRAME_EXTENTS")
        same([word for word in frame.split("=")[-1].split(",") if word.strip().isdigit() and int(word) > 0], [], "its frame")
        for name in ("_NET_CLIENT_LIST", "_NET_CLIENT_LIST_STACKING"):
            same(int(window) in listed(name), False, "it is in " + name)
        # Some say that no window of theirs is active while one that they do not manage has the keyboard; Mutter says so or names that one.
        same(active_window() in (int(editor.window), int(window), 0), True, "the editor is active, or the panel, or none is")
        same(geometry(editor.window), below, "where the editor is")
        key("Escape")
        wait_panel_closed()


def a_paste_lands_in_the_editor_wherever_the_pointer_lies():
    """Over the editor, over another window beneath the panel, over the bare desktop."""
    with Vellumry(), Mousepad() as editor, Terminal():
        remember("pasted")
        expected = ""
        for pointer in places():
            before = open_over(editor, pointer)
            key("Return")
            wait_panel_closed()
            expected += "pasted"
            wait_same(editor.content, expected, f"the paste, the pointer at {pointer}")
            back_in(editor, before)


def escape_gives_the_keyboard_back_wherever_the_pointer_lies():
    """And what is typed next goes into the editor."""
    with Vellumry(), Mousepad() as editor, Terminal():
        remember("not pasted")
        expected = ""
        for pointer in places():
            before = open_over(editor, pointer)
            key("Escape")
            wait_panel_closed()
            back_in(editor, before)
            key("x")
            expected += "x"
            wait_same(editor.content, expected, f"the letter, the pointer at {pointer}")


def a_click_on_another_window_closes_the_panel_and_that_window_has_the_keyboard():
    """The user went elsewhere: nothing is given back."""
    with Vellumry(), Mousepad() as editor, Terminal("-geometry", "40x8-20-20") as other:
        remember("one")
        open_over(editor, (960, 500))
        x, y, width, height = geometry(other.window)
        panel = geometry(windows(PANEL)[0])
        place = (x + width // 2, y + height // 2)
        same(place[1] > panel[1] + panel[3] or place[0] > panel[0] + panel[2], True, "the place is beside the panel")
        run("xdotool", "mousemove", *map(str, place), "click", "1")
        wait_panel_closed()
        wait_same(active_window, int(other.window), "the other window active")


def bars_and_messages_take_no_keyboard():
    """The stack's bar and a message come and go, and the editor has the keyboard all the time; neither is in a task bar."""
    with Vellumry(), Mousepad() as editor:
        into(editor)
        before = active_window(), focused_window()
        key("super+ctrl+s")
        bar = wait_until(lambda: windows("^Paste Stack$"), "the bar")[0]
        same((active_window(), focused_window()), before, "who has the keyboard")
        same(int(bar) in listed("_NET_CLIENT_LIST"), False, "the bar is in a task bar")
        copy_text("stacked")
        wait_for_clip(lambda row: text_of(row) == "stacked", "the copy")
        key("ctrl+v")
        wait_same(editor.content, "stacked", "the paste of the stack")
        wait_until(lambda: not windows("^Paste Stack$"), "the bar to go")
        key("super+alt+3")
        wait_until(lambda: windows("^Vellumry message$"), "the message")
        same((active_window(), focused_window()), before, "who has the keyboard")


if __name__ == "__main__":
    main(own_tests())
