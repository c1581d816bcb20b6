# SPDX-License-Identifier: GPL-3.0-or-later
"""Each entry of the panel's menus through the real pointer and real keys: what it does to the history and to the editor below."""

import os
import stat

from clients import Mousepad
from desktop import (Vellumry, accessible, active_window, clipboard, key, main, open_panel, own_tests, panel_is_open, picture,
                     remember, run, same, text_of, text_shown, type_text, wait_for_clip, wait_panel_closed, wait_same, wait_until)
from panel_rows import choose, menu_entries, menu_entry, middle, open_row_menu, row, texts_kept, wait_menu_closed


def pastes_a_clip():
    """Paste."""
    with Vellumry(), Mousepad() as editor:
        remember("older", "newer")
        open_panel()
        open_row_menu("older")
        same(menu_entries(), ["Paste", "Paste as Plain Text", "Paste Transformed", "Copy", "Pin", "Add to Paste Stack", "Delete"],
             "the entries of a text")
        picture("row-menu")
        choose("Paste")
        wait_panel_closed()
        wait_same(editor.content, "older", "the paste")


def pastes_plain_and_transformed():
    """Paste as Plain Text, and an entry of the submenu, which opens where the pointer rests."""
    with Vellumry(), Mousepad() as editor:
        remember("Some Words")
        open_panel()
        open_row_menu("Some Words")
        choose("Paste as Plain Text")
        wait_panel_closed()
        wait_same(editor.content, "Some Words", "the plain paste")
        editor.clear()
        open_panel()
        open_row_menu("Some Words")
        x, y = middle(menu_entry("Paste Transformed"))
        run("xdotool", "mousemove", str(x), str(y), "mousemove", str(x + 2), str(y))
        menu_entry("UPPERCASE")
        picture("row-submenu")
        choose("UPPERCASE")
        wait_panel_closed()
        wait_same(editor.content, "SOME WORDS", "the transformed paste")


def copies_a_clip():
    """Copy puts the clip on the clipboard and presses nothing."""
    with Vellumry(), Mousepad() as editor:
        remember("older", "newer")
        open_panel()
        open_row_menu("older")
        choose("Copy")
        wait_same(clipboard, b"older", "the clip on the clipboard")
        key("Escape")
        wait_panel_closed()
        same(editor.content(), "", "what was typed into the editor")


def pins_unpins_and_deletes():
    """Pin, Unpin and Delete; the panel stays."""
    with Vellumry():
        remember("older", "newer")
        open_panel()
        open_row_menu("older")
        choose("Pin")
        wait_for_clip(lambda kept: text_of(kept) == "older" and kept["pinned"], "the pin")
        open_row_menu("older")
        choose("Unpin")
        wait_for_clip(lambda kept: text_of(kept) == "older" and not kept["pinned"], "no pin")
        open_row_menu("older")
        choose("Delete")
        wait_same(texts_kept, ["newer"], "the deletion")
        same(panel_is_open(), True, "the panel is open")


def adds_to_the_stack():
    """Add to Paste Stack starts a stack with the clip, which the next paste key gives."""
    with Vellumry(), Mousepad() as editor:
        remember("stacked", "newer")
        open_panel()
        open_row_menu("stacked")
        choose("Add to Paste Stack")
        key("Escape")
        wait_panel_closed()
        wait_same(active_window, int(editor.window), "the editor in front")
        key("ctrl+v")
        wait_same(editor.content, "stacked", "the stacked clip")


def works_on_several():
    """The menu of several clips merges, stacks, pins and deletes all of them."""
    with Vellumry(), Mousepad() as editor:
        remember("one", "two", "three")
        open_panel()
        key("shift+Down")
        open_row_menu("two")
        same(menu_entries(), ["Merge and Paste", "Merge into One Clip", "Paste One by One (Paste Stack)", "Pin 2 Clips",
                              "Delete 2 Clips"], "the entries for several")
        choose("Merge into One Clip")
        wait_for_clip(lambda kept: text_of(kept) == "two\nthree", "the merged clip")
        wait_same(lambda: len(texts_kept()), 4, "the merged clip in the list")
        key("Home", "shift+Down")
        open_row_menu("three")
        choose("Pin 2 Clips")
        wait_for_clip(lambda kept: text_of(kept) == "three" and kept["pinned"], "the pin of one")
        wait_for_clip(lambda kept: text_of(kept) == "two\nthree" and kept["pinned"], "the pin of the other")
        key("Home", "shift+Down")
        open_row_menu("three")
        choose("Delete 2 Clips")
        wait_same(lambda: sorted(texts_kept()), ["one", "two"], "the deletion of both")
        key("Home", "shift+Down")
        open_row_menu("one")
        choose("Merge and Paste")
        wait_panel_closed()
        wait_same(editor.content, "one\ntwo", "the merged paste")


def pastes_one_by_one():
    """Paste One by One: the paste keys that follow give the clips in the order of their copying."""
    with Vellumry(), Mousepad() as editor:
        remember("first ", "second ")
        open_panel()
        key("shift+Down")
        open_row_menu("first")
        choose("Paste One by One (Paste Stack)")
        key("Escape")
        key("Escape")
        wait_panel_closed()
        wait_same(active_window, int(editor.window), "the editor in front")
        key("ctrl+v")
        wait_same(editor.content, "first ", "the first clip")
        key("ctrl+v")
        wait_same(editor.content, "first second ", "the second clip")


def opens_a_link():
    """Open Link hands the address to the user's program for it."""
    folder = os.path.join(os.environ["HOME"], "opener")
    os.makedirs(folder, exist_ok=True)
    opened = os.path.join(folder, "opened")
    with open(os.path.join(folder, "xdg-open"), "w", encoding="utf-8") as file:
        file.write(f'#!/bin/sh\nprintf %s "$1" > {opened}.part && mv {opened}.part {opened}\n')
        os.fchmod(file.fileno(), stat.S_IRWXU)
    with Vellumry(environment={"PATH": folder + ":" + os.environ["PATH"]}):
        remember("https://example.org/page?q=1")
        open_panel()
        key("Menu")
        wait_until(lambda: "Open Link" in menu_entries(), "the entry of a link")
        key("o", "Return")
        wait_panel_closed()
        wait_until(lambda: os.path.exists(opened), "the address to be opened")
        with open(opened, encoding="utf-8") as file:
            same(file.read(), "https://example.org/page?q=1", "the address")


def is_worked_by_keys_alone():
    """Menu key and Shift+F10 open it; arrows, a letter, Right and Return work it; typing reaches no field meanwhile."""
    with Vellumry(), Mousepad() as editor:
        remember("a clip")
        for opener in ("Menu", "shift+F10"):
            open_panel()
            key(opener)
            menu_entry("Paste Transformed")
            type_text("zz")
            same(text_shown("vellumry"), "", "the search field")
            key("Escape")
            wait_menu_closed()
            same(panel_is_open(), True, "the panel is open")
            key(opener)
            menu_entry("Paste Transformed")
            key("Down", "Down", "Right")
            menu_entry("UPPERCASE")
            key("Down", "Return")
            wait_panel_closed()
            wait_same(editor.content, "A CLIP", "the transformed paste")
            editor.clear()


def closes_for_what_lies_beside():
    """A press beside the menu closes it and chooses nothing; a right press on another row moves it there."""
    with Vellumry():
        remember("older", "newer")
        open_panel()
        open_row_menu("newer")
        x, y = middle(row("older"))
        run("xdotool", "mousemove", str(x - 120), str(y), "click", "1")
        wait_menu_closed()
        same(panel_is_open(), True, "the panel is open")
        open_row_menu("older")
        choose("Delete")
        wait_same(texts_kept, ["newer"], "the deletion")


def reaches_the_programs_menu_without_a_tray():
    """The button "Menu" in the footer, and F10: the program's own menu, worked like any other."""
    with Vellumry():
        remember("a clip")
        open_panel()
        button = wait_until(lambda: accessible("vellumry", "push button", "^Menu$"), "the button")
        run("xdotool", "mousemove", *map(str, middle(button)), "click", "1")
        wait_until(lambda: len(menu_entries()) > 3, "the program's menu")
        picture("program-menu")
        key("Escape")
        wait_menu_closed()
        key("F10")
        wait_until(lambda: len(menu_entries()) > 3, "the program's menu by key")
        key("Escape", "Escape")
        wait_panel_closed()


if __name__ == "__main__":
    main(own_tests())
