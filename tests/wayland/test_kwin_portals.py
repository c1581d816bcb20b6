# SPDX-License-Identifier: GPL-3.0-or-later
"""Plasma, to which the program is a stranger: its desktop file stands for another one, so that KWin grants it no keys, and the portal is
what presses them. Run inside scripts/wayland-session kwin."""

import os
import shutil
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import PROGRAM, Window, copy, open_panel, picture, press, told  # noqa: E402

from questions import choose  # noqa: E402

import desktop  # noqa: E402
from desktop import Vellumry, text_of, wait_for_clip, wait_until  # noqa: E402

STRANGER = os.path.expanduser("~/stranger")
STORE = "org.freedesktop.impl.portal.PermissionStore"


def stranger():
    """The program in a place that no desktop file names."""
    shutil.copytree(os.path.dirname(PROGRAM), STRANGER, ignore=lambda folder, names: [
        name for name in names if name not in ("vellumry", "vellumry-reader")], dirs_exist_ok=True)
    return os.path.join(STRANGER, "vellumry")


def permit():
    """As the user does it in the desktop's settings."""
    subprocess.run(["gdbus", "call", "--session", "-d", STORE, "-o", "/org/freedesktop/impl/portal/PermissionStore", "-m",
                    STORE + ".SetPermission", "kde-authorized", "true", "remote-desktop", "com.vellumry.Vellumry", "['yes']"],
                   check=True, timeout=desktop.LIMIT, stdout=subprocess.DEVNULL)


def test_paste_key():
    """A permission that stands is asked for by the button, and pastes from then on."""
    permit()
    with Vellumry(program=stranger()), Window() as window:
        copy("by the portal")
        wait_for_clip(lambda row: text_of(row) == "by the portal", "the copy in the history")
        assert "missing: paste key" in told(PROGRAM, "--status").decode()
        open_panel(window)
        picture("stranger")
        choose("^Allow Vellumry to paste for you$", "vellumry")
        wait_until(lambda: "found: paste key (remote desktop portal" in told(PROGRAM, "--status").decode(), "the permission")
        press("escape")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        open_panel(window)
        press("return")
        window.wait_text("by the portal")


desktop.main(desktop.own_tests())
