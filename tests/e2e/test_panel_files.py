# SPDX-License-Identifier: GPL-3.0-or-later
"""What the panel offers for files and pictures, by its menus and its buttons through the real pointer."""

import os
import subprocess
import tempfile
import urllib.parse

from clients import Mousepad
from desktop import (HERE, Vellumry, accessible, clipboard, copy_bytes, copy_text, key, main, open_panel, own_tests, picture, run, same,
                     text_of, wait_for_clip, wait_panel_closed, wait_same, wait_until, windows)
from panel_rows import choose, menu_entries, middle, open_row_menu, row


def copied_files(*names):
    """Files of which the history has a copy; their paths, and the clip's title."""
    folder = tempfile.mkdtemp(prefix="files")
    paths = [os.path.join(folder, name) for name in names]
    for path in paths:
        with open(path, "w", encoding="utf-8") as file:
            file.write("of " + os.path.basename(path))
    copy_bytes("".join(address(path) + "\r\n" for path in paths).encode(), "text/uri-list")
    return paths, wait_for_clip(lambda kept: kept["kind"] == 4, "the copy of the files")["title"]


def address(path):
    return "file://" + urllib.parse.quote(path)


def press(name):
    """Presses a button of the preview."""
    node = wait_until(lambda: accessible("vellumry", "push button", name), f"the button {name}")
    run("xdotool", "mousemove", *map(str, middle(node)), "click", "1")


class FileManager:
    """Answers on the bus where the program asks for files to be shown."""

    def __init__(self):
        self.path = os.path.join(tempfile.mkdtemp(prefix="manager"), "shown")
        self.process = subprocess.Popen(["/usr/bin/python3", os.path.join(HERE, "file_manager.py"), self.path], stdout=subprocess.PIPE)
        same(self.process.stdout.readline(), b"ready\n", "the file manager")

    def shown(self):
        """What it was asked to show since the last time."""
        wait_until(lambda: os.path.exists(self.path), "files to be shown")
        with open(self.path, encoding="utf-8") as file:
            found = file.read().split("\n")
        os.remove(self.path)
        return found

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.process.stdout.close()


def copied_picture(words):
    """A picture of some words whose text has been read; its title."""
    copy_bytes(run("convert", "-background", "white", "-fill", "black", "-font", "DejaVu-Sans", "-pointsize", "20", "label:" + words,
                   "-bordercolor", "white", "-border", "30", "png:-"), "image/png")
    kept = wait_for_clip(lambda kept: words in (kept["imageText"] or ""), "the words of the picture", 60)
    return kept["title"]


def shows_files_where_they_lie():
    """By the entry of the menu and by the button: those that still exist, and the panel goes."""
    with FileManager() as manager, Vellumry():
        (here, gone), title = copied_files("here.txt", "gone.txt")
        os.remove(gone)
        open_panel()
        open_row_menu(title)
        same(menu_entries(), ["Paste", "Copy", "Pin", "Show in Files", "Add to Paste Stack", "Delete"], "the entries of files")
        choose("Show in Files")
        wait_panel_closed()
        same(manager.shown(), [address(here)], "what the menu shows")
        open_panel()
        press("^Show in Files$")
        wait_panel_closed()
        same(manager.shown(), [address(here)], "what the button shows")


def copies_files():
    """Copy puts the files themselves on the clipboard."""
    with Vellumry():
        (path,), title = copied_files("one.txt")
        copy_text("newer")
        wait_for_clip(lambda kept: text_of(kept) == "newer", "the newer copy")
        open_panel()
        open_row_menu(title)
        choose("Copy")
        wait_same(lambda: (clipboard("text/uri-list") or b"").strip(), address(path).encode(), "the file on the clipboard")


def copies_a_file_whose_name_is_not_utf8():
    """It is there, and goes out under the very bytes of its name."""
    with Vellumry():
        path = tempfile.mkdtemp(prefix="files").encode() + b"/caf\xe9.txt"
        with open(path, "wb") as file:
            file.write(b"of another encoding")
        copy_bytes(address(path).encode() + b"\r\n", "text/uri-list")
        title = wait_for_clip(lambda kept: kept["kind"] == 4, "the copy of the file")["title"]
        copy_text("newer")
        wait_for_clip(lambda kept: text_of(kept) == "newer", "the newer copy")
        open_panel()
        open_row_menu(title)
        choose("Copy")
        wait_same(lambda: (clipboard("text/uri-list") or b"").strip(), address(path).encode(), "the file on the clipboard")


def pastes_the_names_of_files_that_are_gone():
    """The menu then has that entry in place of Paste and Copy, and the preview that button in place of Paste."""
    with Vellumry(), Mousepad() as editor:
        paths, title = copied_files("one.txt", "two.txt")
        for path in paths:
            os.remove(path)
        open_panel()
        wait_until(lambda: "Deleted" in row(title).description, "the files to be missed")
        open_row_menu(title)
        same(menu_entries(), ["Paste File Name", "Pin", "Add to Paste Stack", "Delete"], "the entries of files that are gone")
        choose("Paste File Name")
        wait_panel_closed()
        wait_same(editor.content, "one.txt\ntwo.txt", "the names")
        editor.clear()
        open_panel()
        same(accessible("vellumry", "push button", "^Paste$"), None, "a button that could paste nothing")
        press("^Paste file name$")
        wait_panel_closed()
        wait_same(editor.content, "one.txt\ntwo.txt", "the names by the button")


def pastes_the_words_of_a_picture():
    """By the menu, by the button and by Shift+Return."""
    with Vellumry(), Mousepad() as editor:
        title = copied_picture("Quarterly")
        ways = (lambda: (open_row_menu(title), choose("Paste Text in Image")),
                lambda: press("^Pastes the text in this image$"),
                lambda: key("shift+Return"))
        for way in ways:
            open_panel()
            way()
            wait_panel_closed()
            wait_same(editor.content, "Quarterly", "the words")
            editor.clear()
        open_panel()
        open_row_menu(title)
        same(menu_entries(), ["Paste", "Paste Text in Image", "Copy", "Pin", "Add to Paste Stack", "Delete"], "the entries of a picture")
        picture("picture-menu")


def several_with_a_picture_are_not_merged():
    """The menu has no such entry, the keys say why, and the stack takes them one by one."""
    with Vellumry():
        copy_bytes(run("convert", "-size", "40x30", "xc:red", "png:-"), "image/png")
        wait_for_clip(lambda kept: kept["kind"] == 3, "the copy of the picture")
        copy_text("words")
        wait_for_clip(lambda kept: text_of(kept) == "words", "the words")
        open_panel()
        key("shift+Down")
        open_row_menu("words")
        same(menu_entries(), ["Paste One by One (Paste Stack)", "Pin 2 Clips", "Delete 2 Clips"], "the entries")
        key("Escape")
        key("Return")
        wait_until(lambda: accessible("vellumry", "notification", "^Images can't be merged. Drag them out instead$"), "the message")
        same(accessible("vellumry", "push button", "^Merge"), None, "a button that could merge nothing")
        press("^Paste one by one$")
        wait_until(lambda: windows("^Paste Stack$"), "the stack")


if __name__ == "__main__":
    main(own_tests())
