# SPDX-License-Identifier: GPL-3.0-or-later
"""GNOME's shell extension: it may go and come back while the program runs, as the lock screen has it, and serves no other program. Run
inside scripts/wayland-session gnome."""

import os
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import (HINT, PROGRAM, Window, copy, forgo_settings, offered, open_panel, pasted, picture, press, press_button, settle, told,  # noqa: E402
                     type_text)  # noqa: E402
from lock_screen import LockedScreen  # noqa: E402

import desktop  # noqa: E402
from desktop import Vellumry, run, text_of, unsealed, wait_for_clip, wait_same, wait_until  # noqa: E402

EXTENSION = "clipboard@vellumry.com"
NAME = "com.vellumry.GnomeShell"


def called(destination, path, method, *arguments):
    return subprocess.run(["gdbus", "call", "--session", "-d", destination, "-o", path, "-m", method, *arguments], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, timeout=desktop.LIMIT, check=False).stdout.decode()


def is_there():
    return "true" in called("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner", NAME)


def switch_off():
    called("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell.Extensions.DisableExtension", EXTENSION)
    wait_until(lambda: not is_there(), "the extension to go")


def switch_on():
    called("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell.Extensions.EnableExtension", EXTENSION)
    wait_until(is_there, "the extension to come back")


class LockedShell(LockedScreen):
    """The extension comes back a while behind the unlocked screen."""

    def __enter__(self):
        super().__enter__()
        wait_until(lambda: not is_there(), "the extension to go")

    def __exit__(self, *_):
        super().__exit__()
        wait_until(is_there, "the extension to come back")


def test_extension_goes_and_comes():
    """After the extension was away, what we had on the clipboard is there again in all its types, and copies and keys reach us."""
    with Vellumry(), Window() as window:
        copy("before it went")
        wait_for_clip(lambda row: text_of(row) == "before it went", "the copy in the history")
        open_panel(window)
        press("return")
        window.wait_text("before it went")
        types = offered()
        switch_off()
        switch_on()
        wait_same(offered, types, "what was pasted, on the clipboard as before")
        assert pasted() == b"before it went"
        copy("after it came")
        wait_for_clip(lambda row: text_of(row) == "after it came", "the next copy in the history")
        press("ctrl+a")
        open_panel(window)
        type_text("after")
        press("return")
        window.wait_text("after it came")


def test_copies_while_it_is_away():
    """What is copied while the extension is away stands when it is back, and is kept then."""
    with Vellumry():
        copy("before it went")
        wait_for_clip(lambda row: text_of(row) == "before it went", "the copy in the history")
        switch_off()
        copy("https://example.org/ copied meanwhile", "text/plain")
        switch_on()
        wait_for_clip(lambda row: "copied meanwhile" in (text_of(row) or ""), "the copy that was made meanwhile")
        assert pasted("text/plain") == b"https://example.org/ copied meanwhile"


def test_locked():
    """A lock screen, for which GNOME empties the clipboard, is no copy; what stood there comes back behind it; copies, keys and pastes go on."""
    with Vellumry(), Window() as window:
        copy("before the lock")
        wait_for_clip(lambda row: text_of(row) == "before the lock", "the copy in the history")
        with LockedShell():
            press("ctrl+super+v", "escape")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        assert [text_of(row) for row in unsealed()] == ["before the lock"]
        wait_same(pasted, b"before the lock", "the copy of another program on the clipboard")
        open_panel(window)
        press("return")
        window.wait_text("before the lock")
        with LockedShell():
            press("escape")
        wait_same(pasted, b"before the lock", "what we had on the clipboard")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        copy("after the lock")
        wait_for_clip(lambda row: text_of(row) == "after the lock", "the copy in the history")


def test_stack_behind_a_lock():
    """A stack goes on where it stood before the screen was locked; keys pressed there are the lock screen's."""
    with Vellumry(), Window() as window:
        run(PROGRAM, "--action", "toggle-stack")
        for word in ("one ", "two ", "three "):
            copy(word)
            wait_for_clip(lambda row, word=word: text_of(row) == word, f"the copy {word!r}")
        wait_until(lambda: HINT in offered(), "the stack on the clipboard")
        settle()
        press("ctrl+v")
        window.wait_text("one ")
        settle()
        with LockedShell():
            press("ctrl+v", "ctrl+v")
        wait_until(lambda: HINT in offered(), "the stack on the clipboard again")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        settle()
        press("ctrl+v")
        window.wait_text("one two ")
        settle()
        press("ctrl+v")
        window.wait_text("one two three ")


def test_nobody_else_is_answered():
    """Other programs of the session get no word out of the extension, whether the program runs or not."""
    def refused():
        for method in ("Clipboard.Follow", "Clipboard.Disown", "Desktop.Watch", "Desktop.PointerPlace"):
            answer = called(NAME, "/com/vellumry/GnomeShell", f"{NAME}.{method}")
            assert "Error" in answer, (method, answer)
        answer = called(NAME, "/com/vellumry/GnomeShell", f"{NAME}.Desktop.PressKeys", "[30]")
        assert "Error" in answer, answer

    with Window() as window:
        refused()
        with Vellumry():
            refused()
        assert window.text == "", "a key was pressed"


def test_first_run_switches_it_on():
    """The first run offers the extension that is switched off; the program starts again with it, in the same process."""
    switch_off()
    forgo_settings()
    try:
        with Vellumry(greeted=False) as program:
            assert "found: GNOME extension" not in told(PROGRAM, "--status").decode()
            press_button("^Get Started$")
            wait_until(lambda: desktop.accessible("vellumry", "button", "^Switch On$") or
                       desktop.accessible("vellumry", "push button", "^Switch On$"), "the offer")
            picture("first-run-extension")
            press_button("^Switch On$")
            wait_until(is_there, "the extension")
            program.wait_ready(desktop.LIMIT)  # once more: what is copied before it watches is no copy to it
            wait_until(lambda: "found: GNOME extension" in told(PROGRAM, "--status").decode(), "the program with the extension")
            assert program.alive()
            copy("seen by the extension")
            wait_for_clip(lambda row: text_of(row) == "seen by the extension", "the copy in the history")
    finally:
        switch_on()


def test_status():
    """The status of the program that does not run tells of the extension, and of what to do without it."""
    assert "found: GNOME extension" in told(PROGRAM, "--status").decode()
    switch_off()
    try:
        assert f"gnome-extensions enable {EXTENSION}" in told(PROGRAM, "--status").decode()
    finally:
        switch_on()


desktop.main(desktop.own_tests())
