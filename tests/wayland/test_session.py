# SPDX-License-Identifier: GPL-3.0-or-later
"""The program's main jobs in a headless Wayland session, from outside, as a user would. Run inside scripts/wayland-session."""

import json
import os
import shlex
import subprocess
import sys
import tempfile
import threading
import time

HERE = os.path.dirname(os.path.abspath(__file__))
os.environ["VELLUMRY"] = os.environ["VELLUMRY_BINARY"]
sys.path.insert(0, os.path.join(HERE, "..", "e2e"))

import signal  # noqa: E402

import desktop  # noqa: E402
from desktop import (Process, Vellumry, representation, run, same, text_of, unsealed, wait_for_clip, wait_until)  # noqa: E402

TYPE = shlex.split(os.environ["VELLUMRY_TYPE"])
SESSION = os.environ["VELLUMRY_SESSION"]
QUIET = dict(stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def press(*chords):
    run(*TYPE, *chords)


def type_text(text):
    run(*TYPE, "text", text)


def picture(name):
    """Leaves a picture of the screen where the compositor gives any."""
    if SESSION != "kwin":
        run(*shlex.split(os.environ["VELLUMRY_SHOT"]), f"{SESSION}-{name}.png")


desktop.picture = lambda name: subprocess.run([os.environ["VELLUMRY_SHOT"], f"{SESSION}-{name}.png"], **QUIET)


def copy(data, kind="text/plain;charset=utf-8"):
    """wl-copy answers once it owns the clipboard, and serves it in the background."""
    subprocess.run(["wl-copy", "-t", kind], input=data if isinstance(data, bytes) else data.encode(), check=True, timeout=20, **QUIET)


def pasted(kind="text/plain;charset=utf-8"):
    return subprocess.run(["wl-paste", "-n", "-t", kind], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20).stdout


def offered():
    return subprocess.run(["wl-paste", "-l"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20).stdout.decode().split("\n")


class Window(Process):
    """A window of another program, with the keyboard."""

    def __init__(self):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "gtk_window.py"), stdout=subprocess.PIPE, text=True)
        self.state = {"text": "", "active": False}
        threading.Thread(target=self.follow, daemon=True).start()
        wait_until(lambda: self.state["active"], "the foreign window to have the keyboard")

    def follow(self):
        for line in self.handle.stdout:
            self.state = json.loads(line)

    @property
    def text(self):
        return self.state["text"]

    def wait_text(self, text):
        try:
            wait_until(lambda: self.text == text, f"the text {text!r} in the foreign window")
        except desktop.Failure as failure:
            picture("failed")
            raise desktop.Failure(f"{failure}, which has {self.state}") from None


def search_field_has_focus():
    """As the accessibility tree tells; the keyboard is the panel's a moment before."""
    import pyatspi

    field = desktop.accessible("vellumry", "text")
    return field is not None and field.getState().contains(pyatspi.STATE_FOCUSED)


def open_panel(window):
    press("ctrl+super+v")
    wait_until(lambda: not window.state["active"], "the panel to take the keyboard")
    wait_until(search_field_has_focus, "the search field to have the focus")


def test_copy_find_paste():
    """What another program copied is found by typing and pasted into a third one."""
    with Vellumry(), Window() as window:
        for text in ("first copied words", "second copied words", "something else"):
            copy(text)
            wait_for_clip(lambda row, text=text: text_of(row) == text, f"the copy {text!r} in the history")
        open_panel(window)
        type_text("second")
        picture("panel")
        press("return")
        window.wait_text("second copied words")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        type_text("!")
        window.wait_text("second copied words!")


def test_copy_in_a_window():
    """A copy made with the keys of a GTK window is kept with the application it came from."""
    with Vellumry(), Window() as window:
        type_text("typed and copied")
        window.wait_text("typed and copied")
        press("ctrl+a")
        press("ctrl+c")
        row = wait_for_clip(lambda row: text_of(row) == "typed and copied", "the copy in the history")
        assert "org.example.Foreign" in repr(row), row


def test_escape_gives_the_keyboard_back():
    """A panel that is closed again leaves nothing behind."""
    with Vellumry(), Window() as window:
        copy("words")
        wait_for_clip(lambda row: text_of(row) == "words", "the copy in the history")
        for _ in range(5):
            open_panel(window)
            press("escape")
            wait_until(lambda: window.state["active"], "the keyboard back in the window")
        type_text("typed")
        window.wait_text("typed")


def test_files():
    """A list of files is kept as files and comes back as it was."""
    folder = tempfile.mkdtemp()
    path = os.path.join(folder, "a file.txt")
    with open(path, "w", encoding="utf-8") as file:
        file.write("content")
    uri = "file://" + path.replace(" ", "%20")
    with Vellumry(), Window() as window:
        copy(uri + "\r\n", "text/uri-list")
        row = wait_for_clip(lambda row: representation(row, "public.file-url"), "the file in the history")
        same(representation(row, "public.file-url"), uri.encode(), "the address of the file")
        copy("something after it")
        wait_for_clip(lambda row: text_of(row) == "something after it", "the next copy")
        open_panel(window)
        type_text("a file")
        press("return")
        window.wait_text(uri + "\r\n")  # GTK's text views take the list itself
        same(pasted("text/uri-list").strip(), uri.encode(), "the list of files that is served")


def test_picture():
    """A picture comes back byte for byte."""
    with open(os.path.join(HERE, "..", "..", "docs", "pictures", "1-copy.png"), "rb") as file:
        png = file.read()
    with Vellumry(), Window() as window:
        copy(png, "image/png")
        wait_for_clip(lambda row: representation(row, "public.png") == png, "the picture in the history")
        copy("something after it")
        wait_for_clip(lambda row: text_of(row) == "something after it", "the next copy")
        open_panel(window)
        press("down")
        press("return")
        wait_until(lambda: "image/png" in offered(), "the picture on the clipboard")
        assert pasted("image/png") == png, "the picture came back changed"


def test_concealed():
    """What a password manager marks is never read, and never kept."""
    with Vellumry(), Window() as window:
        type_text("hunter2hunter2")
        window.wait_text("hunter2hunter2")
        press("ctrl+k")
        wait_until(lambda: pasted() == b"hunter2hunter2", "the secret on the clipboard")
        copy("what is copied next")
        wait_for_clip(lambda row: text_of(row) == "what is copied next", "the next copy")
        assert not [row for row in unsealed() if "hunter2" in (text_of(row) or "")], "the secret is in the history"


def test_killed():
    """What was copied is there after the program was killed."""
    with Vellumry() as program, Window():
        copy("kept before the end")
        wait_for_clip(lambda row: text_of(row) == "kept before the end", "the copy in the history")
        program.stop(signal.SIGKILL)
    with Vellumry():
        copy("kept after it")
        wait_for_clip(lambda row: text_of(row) == "kept after it", "the copy in the history")
        assert [row for row in unsealed() if text_of(row) == "kept before the end"]


def test_survives_its_program():
    """A copy outlives the program that made it."""
    with Vellumry():
        owner = Process("wl-copy", "--foreground", "outlives its program")
        wait_for_clip(lambda row: text_of(row) == "outlives its program", "the copy in the history")
        owner.stop(signal.SIGKILL)
        wait_until(lambda: pasted() == b"outlives its program", "the copy on the clipboard, its program gone")


def test_terminal():
    """A terminal gets its own paste key."""
    folder = tempfile.mkdtemp()
    typed = os.path.join(folder, "typed")
    with Vellumry():
        copy("echo for a terminal")
        wait_for_clip(lambda row: text_of(row) == "echo for a terminal", "the copy in the history")
        with Process("foot", "sh", "-c", f"touch {folder}/ready; exec cat > {typed}"):
            wait_until(lambda: os.path.exists(os.path.join(folder, "ready")), "the terminal")

            def has_keyboard():
                press("x", "return")
                return os.path.getsize(typed) > 0

            wait_until(has_keyboard, "the terminal to have the keyboard")
            press("ctrl+super+v")
            wait_until(search_field_has_focus, "the search field to have the focus")
            press("return")

            def content():
                press("return")
                with open(typed, encoding="utf-8") as file:
                    return "echo for a terminal" in file.read()

            wait_until(content, "the text in the terminal")


def test_stack():
    """Five copies are pasted in their order, each once, by the user's own paste key."""
    words = ["alpha", "beta", "gamma", "delta", "epsilon"]
    with Vellumry(), Window() as window:
        run(os.environ["VELLUMRY_BINARY"], "--action", "toggle-stack")
        for word in words:
            copy(word + " ")
            wait_for_clip(lambda row, word=word: text_of(row) == word + " ", f"the copy {word!r}")
        picture("stack")
        wait_until(lambda: "x-kde-passwordManagerHint" in offered(), "the stack on the clipboard")
        expected = ""
        for word in words:
            expected += word + " "
            pace = time.monotonic() + 0.2  # five a second, as a quick user
            wait_until(lambda pace=pace: time.monotonic() >= pace, "the next key")
            press("ctrl+v")
            window.wait_text(expected)
        pace = time.monotonic() + 0.2
        wait_until(lambda: time.monotonic() >= pace, "the next key")
        press("ctrl+v")
        window.wait_text(expected + "epsilon ")


desktop.main(desktop.own_tests())
