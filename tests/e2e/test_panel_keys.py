# SPDX-License-Identifier: GPL-3.0-or-later
"""Each key of the panel through the real keyboard: what is chosen, what is pasted, what closes."""

from clients import Mousepad
from clients.owners import Owner
from desktop import (Vellumry, accessible, clipboard, copy_text, key, main, open_panel, own_tests, panel_is_open, remember, same, text_of,
                     text_shown, type_text, unsealed, wait_for_clip, wait_panel_closed, wait_same, wait_until)
from panel_rows import choose, open_row_menu, texts_kept

TEXTS = [f"clip {number:02}" for number in range(1, 21)]


def chosen():
    """The titles of the rows that are chosen, from the top."""
    import pyatspi

    rows = accessible("vellumry", "list", "^Clips$")
    found = [] if rows is None else [rows.getChildAtIndex(index) for index in range(rows.childCount)]
    return [node.name for node in found if node.getState().contains(pyatspi.STATE_SELECTED)]


def wait_chosen(*titles):
    wait_same(chosen, list(titles), f"{titles} chosen; it is {chosen()}")


def filter_shown():
    import pyatspi

    tabs = accessible("vellumry", "page tab list", "^Filters$")
    return [tab.name for tab in tabs if tab.getState().contains(pyatspi.STATE_SELECTED)]


def arrows_pages_and_ends_choose():
    """One row, eight rows, the first and the last; with Shift the choice grows and shrinks."""
    with Vellumry():
        remember(*TEXTS)
        open_panel()
        wait_chosen("clip 20")
        for pressed, title in (("Down", "clip 19"), ("Up", "clip 20"), ("Page_Down", "clip 12"), ("Page_Up", "clip 20"), ("End", "clip 01"),
                               ("Down", "clip 01"), ("Home", "clip 20"), ("Up", "clip 20"), ("ctrl+Down", "clip 01"), ("ctrl+Up", "clip 20"),
                               ("ctrl+End", "clip 01"), ("ctrl+Home", "clip 20")):
            key(pressed)
            wait_chosen(title)
        key("shift+Down", "shift+Down")
        wait_chosen("clip 20", "clip 19", "clip 18")
        key("shift+Up")
        wait_chosen("clip 20", "clip 19")
        key("Escape")
        wait_chosen("clip 19")
        same(panel_is_open(), True, "the panel is open")


def tab_and_sideways_arrows_change_the_filter():
    """Around both ends; in a field with text the arrows are the text's."""
    with Vellumry():
        remember("words", "https://example.org/")
        open_panel()
        for pressed, name in (("Tab", "Text"), ("Tab", "Links"), ("shift+Tab", "Text"), ("Right", "Links"), ("Left", "Text"), ("Left", "All"),
                              ("Left", "Pinned"), ("Tab", "All")):
            key(pressed)
            wait_same(filter_shown, [name], f"the filter {name} behind {pressed}")
        type_text("wd")
        key("Left")
        type_text("or")
        wait_same(lambda: text_shown("vellumry", "text", "^Search clips$"), "word", "letters where the caret was put")
        same(filter_shown(), ["All"], "the filter")


def digits_paste_and_those_without_a_row_are_swallowed():
    """Ctrl+2 pastes the second row; Ctrl+7 does nothing, and nothing of it reaches the field."""
    with Vellumry(), Mousepad() as editor:
        remember("one", "two", "three")
        open_panel()
        key("ctrl+7")
        key("ctrl+2")
        wait_panel_closed()
        wait_same(editor.content, "two", "the second row")


def plain_text_by_shift_and_by_alt():
    """Both leave the styles out."""
    with Vellumry(), Mousepad() as editor:
        for pressed in ("shift+Return", "alt+Return"):
            Owner({"UTF8_STRING": b"styled", "text/html": b"<b>styled</b>"})
            wait_for_clip(lambda kept: text_of(kept) == "styled", "the styled copy")
            open_panel()
            key(pressed)
            wait_panel_closed()
            wait_same(editor.content, "styled", f"the words by {pressed}")
            wait_until(lambda: clipboard("text/html") is None, "no style on the clipboard")
            editor.clear()


def q_and_w_close():
    """Ctrl+W and Ctrl+Q close the panel and nothing else."""
    with Vellumry() as program:
        remember("one")
        for pressed in ("ctrl+w", "ctrl+q"):
            open_panel()
            key(pressed)
            wait_panel_closed()
            same(program.alive(), True, "the program runs")


def escape_goes_back_a_step_at_a_time():
    """The choice of several, then the search, then the panel."""
    with Vellumry():
        remember("word one", "word two", "other")
        open_panel()
        type_text("word")
        wait_chosen("word two")
        key("shift+Down")
        wait_chosen("word two", "word one")
        key("Escape")
        wait_chosen("word one")
        key("Escape")
        wait_same(lambda: text_shown("vellumry", "text", "^Search clips$"), "", "an empty field")
        same(panel_is_open(), True, "the panel is open")
        key("Escape")
        wait_panel_closed()


def several_are_pinned_and_unpinned():
    """Ctrl+P pins all that are chosen; the entry of the menu takes them all back."""
    with Vellumry():
        remember("one", "two", "three")
        open_panel()
        key("shift+Down", "ctrl+p")
        pinned = lambda: sorted(text_of(kept) for kept in unsealed() if kept["pinned"])
        wait_same(pinned, ["three", "two"], "two pins")
        open_row_menu("two")
        choose("Unpin 2 Clips")
        wait_same(pinned, [], "no pins")


def deletes_several_at_once():
    """Ctrl+Delete deletes all that are chosen, and the next row is chosen."""
    with Vellumry():
        remember("one", "two", "three", "four")
        open_panel()
        key("Down", "shift+Down", "ctrl+Delete")
        wait_same(lambda: sorted(texts_kept()), ["four", "one"], "the deletion")
        wait_chosen("one")


def transforms_go_by_keys():
    """Ctrl+T opens the list, arrows move in it, Escape leaves it, Return pastes."""
    with Vellumry(), Mousepad() as editor:
        remember("Some Words")
        copy_text("https://example.org/")
        wait_for_clip(lambda kept: text_of(kept) == "https://example.org/", "the link")
        open_panel()
        key("ctrl+t")
        wait_until(lambda: accessible("vellumry", "notification", "^Transforms work on text clips$"), "why nothing opens")
        key("Down", "ctrl+t")
        wait_until(lambda: accessible("vellumry", "push button", "^Paste transformed$"), "the list")
        key("Escape")
        wait_until(lambda: accessible("vellumry", "push button", "^Paste transformed$") is None, "the list to close")
        key("ctrl+t", "End", "Up", "Up", "Up", "Up", "Return")
        wait_panel_closed()
        wait_same(editor.content, "SOME WORDS", "the transformed paste")


if __name__ == "__main__":
    main(own_tests())
