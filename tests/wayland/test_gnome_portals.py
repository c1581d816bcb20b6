# SPDX-License-Identifier: GPL-3.0-or-later
"""GNOME without our extension, by the desktop's portals: the user is asked for the shortcuts and for the paste key, once. Run inside
scripts/wayland-session gnome-plain."""

import contextlib
import os
import re
import signal
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import PROGRAM, Window, copy, open_panel, picture, press, told, wait_for_panel  # noqa: E402
from lock_screen import LockedScreen  # noqa: E402
from questions import choose, forget_refusal, is_open, refuse_shortcuts  # noqa: E402

import desktop  # noqa: E402
from desktop import Vellumry, run, text_of, unsealed, wait_for_clip, wait_until  # noqa: E402

DESKTOP_FILE = os.path.expanduser("~/.local/share/applications/com.vellumry.Vellumry.desktop")
PASTES = int(os.environ.get("VELLUMRY_PASTES", "10"))
KEYS = "found: hot keys (global shortcuts portal)"
PASTE = "found: paste key (remote desktop portal, allowed)"


def reports(line):
    return line in told(PROGRAM, "--status").decode()


def give_shortcuts(window):
    wait_until(lambda: is_open("Add Keyboard Shortcuts"), "the question about the shortcuts")
    picture("shortcuts")
    choose("^Add$")
    wait_until(lambda: reports(KEYS), "the shortcuts to be given")
    wait_until(lambda: window.state["active"], "the keyboard back in the window")


def allow_pasting(window):
    run(PROGRAM, "--action", "open-panel")
    wait_for_panel(window)
    choose("^Allow Vellumry to paste for you$", "vellumry")
    wait_until(lambda: is_open("Remote Desktop"), "the question about the paste key")
    picture("permission")
    press("tab", "space")
    choose("^Share$")
    wait_until(lambda: reports(PASTE), "the permission")
    wait_until(lambda: window.state["active"], "the keyboard back in the window")


def paste_first(window, words):
    copy(words)
    wait_for_clip(lambda row: text_of(row) == words, "the copy in the history")
    press("ctrl+a")
    open_panel(window)
    picture("panel")
    press("return")
    window.wait_text(words)


def test_refused_shortcuts():
    """What was refused is told in the status, and not asked for at the next start."""
    with Window() as window:
        with Vellumry():
            refuse_shortcuts()
            wait_until(lambda: reports("missing: hot keys (refused"), "the refusal in the status")
        with Vellumry():
            wait_until(lambda: reports("missing: hot keys (refused"), "the refusal in the status of the next run")
            assert not is_open("Add Keyboard Shortcuts")
            assert window.state["active"]
    forget_refusal()


def test_without_a_desktop_file():
    """A portal that finds no desktop file gives nothing; the status says so, and the next start with one is asked the question."""
    kept = DESKTOP_FILE + ".kept"
    os.rename(DESKTOP_FILE, kept)
    try:
        with Vellumry():
            wait_until(lambda: reports("missing: hot keys (the desktop's portal gives keys to programs with a desktop file"), "the reason")
            assert not is_open("Add Keyboard Shortcuts")
    finally:
        os.rename(kept, DESKTOP_FILE)
    with Vellumry():
        wait_until(lambda: is_open("Add Keyboard Shortcuts"), "the question about the shortcuts")
        choose("^Cancel$")
        wait_until(lambda: not is_open("Add Keyboard Shortcuts"), "the end of the question")
    forget_refusal()


def test_shortcuts_and_the_paste_key():
    """Both are asked for once, and work in the windows of Wayland programs: the next start has them without a question."""
    with Window() as window:
        with Vellumry():
            give_shortcuts(window)
            allow_pasting(window)
            paste_first(window, "by the portal")
        with Vellumry():
            wait_until(lambda: reports(KEYS), "the shortcuts of the last time")
            assert reports(PASTE)
            assert window.state["active"], "a second question"
            paste_first(window, "and once more")


def test_locked():
    """A lock screen ends the portal's session in the middle of its work: shortcuts and paste key work behind it, without a question."""
    with Window() as window, Vellumry():
        wait_until(lambda: reports(KEYS), "the shortcuts")
        paste_first(window, "before the lock")
        with LockedScreen():
            press("ctrl+super+v", "escape")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        assert [text_of(row) for row in unsealed()][:1] == ["before the lock"]
        paste_first(window, "behind the lock")


def portal():
    """The process of the desktop's portal; None while there is none."""
    number = re.search(r"\d+,", told("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/", "-m",
                                     "org.freedesktop.DBus.GetConnectionUnixProcessID", "org.freedesktop.portal.Desktop").decode())
    return int(number.group()[:-1]) if number else None


def test_a_portal_that_dies():
    """Shortcuts and paste key come back with the next portal, without a question: it is started when nothing else starts it."""
    with Window() as window, Vellumry():
        wait_until(lambda: reports(KEYS), "the shortcuts")
        paste_first(window, "before")
        first = portal()
        os.kill(first, signal.SIGKILL)
        wait_until(lambda: portal() not in (None, first), "another portal")
        wait_until(lambda: reports(KEYS), "the shortcuts of the other portal")
        paste_first(window, "behind it")
        assert window.state["active"], "a second question"


@contextlib.contextmanager
def busy_machine():
    """Programs that leave no core idle, as many as there are cores."""
    with contextlib.ExitStack() as stack:
        for _ in range(os.cpu_count()):
            stack.enter_context(desktop.Process("/bin/sh", "-c", "while :; do :; done"))
        yield


def test_pastes_on_a_busy_machine():
    """The portal hands keys on from many threads: no paste types a letter in the place of the clip."""
    with Window() as window, Vellumry(), busy_machine():
        wait_until(lambda: reports(KEYS), "the shortcuts")
        copy("word ")
        wait_for_clip(lambda row: text_of(row) == "word ", "the copy in the history")
        for count in range(1, PASTES + 1):
            wait_until(lambda: window.state["active"], "the keyboard back in the window")
            # Not by its keys: V may be down still from the paste before, and Mutter drops a key that is pressed a second time.
            run(PROGRAM, "--action", "open-panel")
            wait_for_panel(window)
            press("return")
            window.wait_text("word " * count)


desktop.main(desktop.own_tests())
