# SPDX-License-Identifier: GPL-3.0-or-later
"""The preview through real keys and the real pointer: it shows what is chosen, and each of its buttons does what it says."""

import os

from clients import Mousepad
from desktop import (Vellumry, accessible, clipboard, copy_bytes, copy_text, fresh, key, main, open_panel, own_tests, panel_is_open,
                     remember, run, same, text_of, unsealed, wait_for_clip, wait_panel_closed, wait_same, wait_until)

TEN_MEGABYTES = "".join(f"line {number:07d} of a long text that nobody reads to its end\n" for number in range(180_000))


def shows(text, role="label"):
    return wait_until(lambda: accessible("vellumry", role, text), f"{role} {text} in the preview")


def press(name):
    """Presses a button with the real pointer."""
    button = wait_until(lambda: accessible("vellumry", "push button", name), f"the button {name}")
    box = button.queryComponent().getExtents(0)
    run("xdotool", "mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2), "click", "1")


def pastes_what_it_shows():
    """The chosen text is there in full with where it came from; its button pastes it."""
    with Vellumry(), Mousepad() as editor:
        remember("the first line\nand the second")
        open_panel()
        shows("^the first line\nand the second$")
        shows("29 characters")
        press("^Paste$")
        wait_panel_closed()
        wait_same(editor.content, "the first line\nand the second", "the paste")


def pins_and_deletes():
    """The buttons that are symbols: pin, its reverse, and delete, which shows the neighbour."""
    with Vellumry():
        remember("older", "newer")
        open_panel()
        press("^Pin ")
        wait_for_clip(lambda kept: text_of(kept) == "newer" and kept["pinned"], "the pin")
        press("^Unpin ")
        wait_until(lambda: not any(kept["pinned"] for kept in unsealed()), "no pin left")
        press("^Delete ")
        wait_same(lambda: [text_of(kept) for kept in unsealed()], ["older"], "the deletion")
        shows("^older$")
        same(panel_is_open(), True, "the panel is open")


def transforms_as_it_shows():
    """Ctrl+T opens the list, Down shows the next rewriting, the button pastes it."""
    with Vellumry(), Mousepad() as editor:
        remember("Some Words")
        open_panel()
        key("ctrl+t")
        shows("^some words$")
        key("Down")
        shows("^SOME WORDS$")
        press("^Paste transformed$")
        wait_panel_closed()
        wait_same(editor.content, "SOME WORDS", "the paste")


def several_are_merged():
    """Several chosen clips are counted, and merged by the button."""
    with Vellumry(), Mousepad() as editor:
        remember("first", "second")
        open_panel()
        key("shift+Down")
        shows("^2 clips selected$", "heading")
        press("^Merge & Paste$")
        wait_panel_closed()
        wait_same(editor.content, "first\nsecond", "the paste")


def a_picture_is_shown():
    """A picture is opened and shown, and its button puts it back on the clipboard."""
    with Vellumry(), Mousepad():
        picture = run("convert", "-size", "1600x900", "gradient:navy-orange", "png:-")
        copy_bytes(picture, "image/png")
        wait_for_clip(lambda row: row["kind"] == 3, "the picture")
        copy_text("something else")
        wait_for_clip(lambda row: text_of(row) == "something else", "the text")
        open_panel()
        key("Down")
        graphic = shows("^Image$", "image")
        box = graphic.queryComponent().getExtents(0)
        same(abs(box.width * 9 - box.height * 16) <= 32, True, f"the proportions of {box.width} × {box.height}")
        press("^Paste$")
        wait_panel_closed()
        wait_same(lambda: clipboard("image/png"), picture, "the picture on the clipboard")


def ten_megabytes_are_shown_and_pasted():
    """A text of ten megabytes is there, counted, and pasted whole."""
    with Vellumry():
        copy_text(TEN_MEGABYTES)
        wait_for_clip(lambda row: text_of(row) == TEN_MEGABYTES, "the long text", 60)
        copy_text("something else")
        wait_for_clip(lambda row: text_of(row) == "something else", "the short text")
        open_panel()
        key("Down")
        shows("^line 0000000 of a long text")
        shows(f"{len(TEN_MEGABYTES):,} characters")
        key("ctrl+c")
        wait_panel_closed()
        wait_same(clipboard, TEN_MEGABYTES.encode(), "the long text on the clipboard")


def a_link_is_opened_by_the_users_browser():
    """The button hands the address to the program that the desktop has for it, with nothing of what we chose for our own windows."""
    opened = os.path.join(os.environ["HOME"], "opened")
    folder = os.path.join(os.environ["HOME"], "programs")
    os.makedirs(folder)
    opener = os.path.join(folder, "xdg-open")
    with open(opener, "w", encoding="utf-8") as file:
        file.write(f'#!/bin/sh\nprintf "%s %s" "$1" "$QT_QPA_UPDATE_IDLE_TIME" >"{opened}.part" && mv "{opened}.part" "{opened}"\n')
    os.chmod(opener, 0o755)
    with Vellumry(environment={"PATH": folder + os.pathsep + os.environ["PATH"]}):
        remember("https://example.org/a?b=c")
        open_panel()
        shows("^example.org$", "heading")
        same(os.path.exists(opened), False, "nothing was opened")
        press("^Open Link$")
        wait_panel_closed()
        wait_until(lambda: os.path.exists(opened), "the browser")
        with open(opened, encoding="utf-8") as file:
            same(file.read(), "https://example.org/a?b=c ", "the address")


if __name__ == "__main__":
    main(own_tests(fresh))
