# SPDX-License-Identifier: GPL-3.0-or-later
"""GNOME without our extension: the program works among X11 programs, and says what is missing and what to do. Run inside
scripts/wayland-session gnome-plain."""

import os
import shutil
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import (HERE, PROGRAM, Window, copy, forgo_settings, picture, press, press_button, told, type_text,  # noqa: E402
                     wait_for_panel)
from questions import refuse_shortcuts  # noqa: E402

import desktop  # noqa: E402
from desktop import Vellumry, run, text_of, wait_for_clip, wait_until  # noqa: E402

X11 = dict(os.environ, GDK_BACKEND="x11")


def answer_the_question():
    """What GNOME asks about shortcuts would have the keyboard; the tests of the portals have them."""
    with Vellumry():
        refuse_shortcuts()


def open_panel(window):
    run(PROGRAM, "--action", "open-panel")
    wait_for_panel(window)


def test_says_what_is_missing():
    """One line of the log and of the status tells that the extension is off, and how it is switched on."""
    with Vellumry(stderr=subprocess.PIPE) as program:
        program.stop()
        log = program.handle.stderr.read().decode()
    lines = [line for line in log.split("\n") if "gnome-extensions enable clipboard@vellumry.com" in line]
    assert len(lines) == 1, log
    assert "gnome-extensions enable clipboard@vellumry.com" in told(PROGRAM, "--status").decode()


def test_x11_programs():
    """A copy of an X11 program is kept; the panel takes the keyboard from the program and gives it back, each time."""
    with Vellumry(), Window(env=X11) as window:
        type_text("typed under X11")
        window.wait_text("typed under X11")
        press("ctrl+a", "ctrl+c")
        wait_for_clip(lambda row: text_of(row) == "typed under X11", "the copy in the history")
        press("end")
        for number in range(20):
            open_panel(window)
            if number == 0:
                picture("panel")
            press("escape")
            wait_until(lambda: window.state["active"], "the keyboard back in the window")


def test_panel_over_a_wayland_window():
    """A Wayland window gives the keyboard to the panel, and has it back when the panel is gone."""
    with Vellumry(), Window() as window:
        for _ in range(5):
            open_panel(window)
            press("escape")
            wait_until(lambda: window.state["active"], "the keyboard back in the window")
        type_text("typed behind it")
        window.wait_text("typed behind it")


def test_wayland_copies():
    """What a Wayland program copies is kept as far as GNOME hands it on to X11 programs."""
    with Vellumry(), Window(env=X11):
        copy("of a Wayland program")
        wait_for_clip(lambda row: text_of(row) == "of a Wayland program", "the copy in the history")


def test_first_run_enters_the_extension():
    """An extension that was installed after the login is offered, and entered for the next one."""
    folder = os.path.expanduser("~/.local/share/gnome-shell/extensions/clipboard@vellumry.com")
    shutil.copytree(os.path.join(HERE, "../../packaging/gnome-shell/clipboard@vellumry.com"), folder)
    forgo_settings()
    try:
        with Vellumry(greeted=False):
            press_button("^Get Started$")
            press_button("^Switch On$")
            wait_until(lambda: desktop.accessible("vellumry", "label", "^The extension is on from your next login"), "the answer")
            picture("first-run-extension")
        assert told("gsettings", "get", "org.gnome.shell", "enabled-extensions").decode().strip() == "['clipboard@vellumry.com']"
    finally:
        told("gsettings", "reset", "org.gnome.shell", "enabled-extensions")
        shutil.rmtree(folder)


answer_the_question()
desktop.main(desktop.own_tests())
