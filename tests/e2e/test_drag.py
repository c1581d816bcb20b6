# SPDX-License-Identifier: GPL-3.0-or-later
"""Clips dragged with the real pointer out of the panel into windows of other programs, and what these hold then."""

import glob
import os
import subprocess
import tempfile

from clients import FeatherPad, Mousepad, Pcmanfm
from clients.owners import Owner
from desktop import (HERE, Process, Vellumry, accessible, clipboard, copy_bytes, copy_text, key, main, open_panel, own_tests,
                     panel_is_open, picture, remember, run, same, text_of, wait_for_clip, wait_panel_closed, wait_same, wait_until,
                     windows)
from panel_rows import middle, row, texts_kept, wait_menu_closed

RUNTIME = os.environ["XDG_RUNTIME_DIR"]


def place(window, x=0, y=0, width=500, height=400):
    """Puts a window beside the panel; the middle of it."""
    run("xdotool", "windowmove", window, str(x), str(y), "windowsize", window, str(width), str(height))

    def stands():
        text = run("xdotool", "getwindowgeometry", "--shell", window).decode()
        values = dict(line.split("=") for line in text.split())
        return abs(int(values["WIDTH"]) - width) < 60 and abs(int(values["X"]) - x) < 60

    wait_until(stands, "the window in its place")
    return x + width // 2, y + height // 2


def carry(title, where, drop=True):
    """Presses a row, carries it there and, once the drag is seen there, lets go."""
    x, y = middle(row(title))
    run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
    steps = 12
    for step in range(1, steps + 1):
        run("xdotool", "mousemove", str(x + (where[0] - x) * step // steps), str(y + (where[1] - y) * step // steps))
    wait_until(lambda: windows("^Vellumry drag$"), "the picture at the pointer")
    if drop:
        let_go()


def let_go():
    """Releases the button and waits for the end of the drag."""
    run("xdotool", "mouseup", "1")
    wait_until(lambda: not windows("^Vellumry drag$"), "the end of the drag")


class DropWindow(Process):
    """A window that takes drops as the first of these targets that is offered."""

    def __init__(self, *targets):
        self.path = os.path.join(tempfile.mkdtemp(prefix="drop"), "dropped")
        super().__init__("/usr/bin/python3", os.path.join(HERE, "drop_window.py"), self.path, *targets)
        self.window = wait_until(lambda: windows("^drop window$"), "the window to drop on")[0]

    def dropped(self):
        """The target that was asked for and its bytes."""
        wait_until(lambda: os.path.exists(self.path), "the drop")
        with open(self.path, "rb") as file:
            name, data = file.read().split(b"\n", 1)
        return name.decode(), data


def dropped_as(title, *targets):
    """What a window gets that takes these targets when the row is carried there."""
    with DropWindow(*targets) as window:
        where = place(window.window)
        open_panel()
        carry(title, where)
        wait_panel_closed()
        return window.dropped()


def leftovers():
    return glob.glob(os.path.join(RUNTIME, "vellumry-drag-*"))


def png():
    return subprocess.run(["convert", "-size", "60x40", "gradient:red-blue", "png:-"], stdout=subprocess.PIPE, check=True).stdout


def a_text_into_a_gtk_editor():
    """The text stands in the editor, the panel has gone, and the clipboard holds what it held."""
    with Vellumry(), Mousepad() as editor:
        remember("dragged", "newer")
        target = place(editor.window)
        open_panel()
        carry("dragged", target, drop=False)
        picture("drag")
        run("xdotool", "mouseup", "1")
        wait_panel_closed()
        wait_same(editor.content, "dragged", "the text in the editor")
        same(clipboard(), b"newer", "the clipboard")


def a_text_into_a_qt_editor():
    """The same into an editor of the other toolkit."""
    with Vellumry(), FeatherPad() as editor:
        remember("dragged", "newer")
        target = place(editor.window)
        open_panel()
        carry("dragged", target)
        wait_panel_closed()
        wait_same(editor.content, "dragged", "the text in the editor")


def a_quick_hand_drags_too():
    """The pointer is far from the panel before anybody has heard of the press."""
    with Vellumry(), Mousepad() as editor:
        remember("dragged", "newer")
        x, y = place(editor.window)
        open_panel()
        for _ in range(3):
            row_x, row_y = middle(row("dragged"))
            run("xdotool", "mousemove", str(row_x), str(row_y))
            run("xdotool", "mousedown", "1", "mousemove", str(x), str(y))
            wait_until(lambda: windows("^Vellumry drag$"), "the picture at the pointer")
            run("xdotool", "key", "Escape")
            run("xdotool", "mouseup", "1")
            wait_until(lambda: not windows("^Vellumry drag$"), "the end of the drag")
            same(panel_is_open(), True, "the panel is open")
        run("xdotool", "mousemove", str(row_x), str(row_y))
        run("xdotool", "mousedown", "1", "mousemove", str(x), str(y))
        wait_until(lambda: windows("^Vellumry drag$"), "the picture at the pointer")
        run("xdotool", "mouseup", "1")
        wait_panel_closed()
        wait_same(editor.content, "dragged", "the text in the editor")


def several_texts_are_joined():
    """Three chosen texts, pressed on one of them, come in the order of their copying."""
    with Vellumry(), Mousepad() as editor:
        remember("one", "two", "three")
        target = place(editor.window)
        open_panel()
        key("shift+Down", "shift+Down")
        carry("two", target)
        wait_panel_closed()
        wait_same(editor.content, "one\ntwo\nthree", "the texts in the editor")


def files_into_a_file_manager():
    """The file is copied into the folder on which it was dropped, and stays where it was."""
    with Vellumry(), Pcmanfm() as manager:
        source = os.path.join(os.environ["HOME"], "a file.txt")
        with open(source, "w", encoding="utf-8") as file:
            file.write("of the file")
        copy_bytes(("file://" + source.replace(" ", "%20") + "\r\n").encode(), "text/uri-list")
        wait_for_clip(lambda entry: entry["title"] == "a file.txt", "the copy of the file")
        target = place(manager.window)
        open_panel()
        carry("a file.txt", target)
        wait_panel_closed()
        copied = os.path.join(manager.folder, "a file.txt")
        wait_until(lambda: os.path.exists(copied) and os.path.getsize(copied) == 11, "the file in the folder")
        same(os.path.exists(source), True, "the file where it was")


def a_picture_into_a_file_manager():
    """A copied picture becomes a file in the folder."""
    with Vellumry(), Pcmanfm() as manager:
        data = png()
        copy_bytes(data, "image/png")
        title = wait_for_clip(lambda entry: entry["kind"] == 3, "the copy of the picture")["title"]
        target = place(manager.window)
        open_panel()
        carry(title, target)
        wait_panel_closed()
        wait_until(lambda: glob.glob(os.path.join(manager.folder, "*.png")), "a file in the folder")
        saved = glob.glob(os.path.join(manager.folder, "*.png"))[0]
        wait_same(lambda: open(saved, "rb").read(), data, "the picture whole")
    same(leftovers(), [], "files left behind")


def a_link_goes_as_an_address_and_as_text():
    """Programs that take addresses get one; editors get its text."""
    with Vellumry():
        address = "https://example.org/a?b=c"
        copy_text(address)
        wait_for_clip(lambda entry: text_of(entry) == address, "the copy of the link")
        same(dropped_as(address, "text/uri-list", "UTF8_STRING")[1].strip().decode(), address, "as an address or a text")
        same(dropped_as(address, "UTF8_STRING"), ("UTF8_STRING", address.encode()), "as a text")


def a_colour_goes_as_its_text():
    """As it was copied."""
    with Vellumry():
        copy_text("#3f7fd9")
        wait_for_clip(lambda entry: text_of(entry) == "#3f7fd9", "the copy of the colour")
        same(dropped_as("#3f7fd9", "UTF8_STRING"), ("UTF8_STRING", b"#3f7fd9"), "as a text")


def styled_text_keeps_its_styles():
    """A window that takes HTML gets what was copied; one that takes plain text gets the words."""
    with Vellumry():
        html = b"<b>bold</b> words"
        Owner({"text/html": html, "UTF8_STRING": b"bold words"})
        title = wait_for_clip(lambda entry: text_of(entry) == "bold words", "the copy")["title"]
        same(dropped_as(title, "text/html", "UTF8_STRING"), ("text/html", html), "as HTML")
        same(dropped_as(title, "UTF8_STRING"), ("UTF8_STRING", b"bold words"), "as a text")


def a_picture_goes_in_its_own_format():
    """A JPEG is dropped as a JPEG, into a folder and into a program that takes pictures."""
    with Vellumry():
        data = subprocess.run(["convert", "-size", "60x40", "gradient:red-blue", "jpeg:-"], stdout=subprocess.PIPE, check=True).stdout
        copy_bytes(data, "image/jpeg")
        title = wait_for_clip(lambda entry: entry["kind"] == 3, "the copy of the picture")["title"]
        same(dropped_as(title, "image/jpeg"), ("image/jpeg", data), "the picture")
        with Pcmanfm() as manager:
            target = place(manager.window)
            open_panel()
            carry(title, target)
            wait_panel_closed()
            saved = wait_until(lambda: glob.glob(os.path.join(manager.folder, "*.jpg")), "a file in the folder")[0]
            wait_same(lambda: open(saved, "rb").read(), data, "the picture whole")


def what_nobody_takes_comes_back():
    """Dropped on the bare desktop, or ended by Escape, nothing happens: the panel is there and hears keys."""
    with Vellumry():
        data = png()
        copy_bytes(data, "image/png")
        title = wait_for_clip(lambda entry: entry["kind"] == 3, "the copy of the picture")["title"]
        open_panel()
        carry(title, (60, 1000))
        wait_until(lambda: not leftovers(), "the picture's file to be gone")
        wait_until(panel_is_open, "the panel to be back")
        carry(title, (60, 1000), drop=False)
        run("xdotool", "key", "Escape")  # to clear modifiers would let go of the button as well
        let_go()
        wait_until(lambda: not leftovers(), "the picture's file to be gone")
        wait_until(panel_is_open, "the panel to be back")
        key("Menu")
        wait_until(lambda: accessible("vellumry", "popup menu"), "the row's menu")
        key("Escape")
        wait_menu_closed()
        key("ctrl+Delete")
        wait_same(texts_kept, [], "the panel to hear keys")


if __name__ == "__main__":
    main(own_tests())
