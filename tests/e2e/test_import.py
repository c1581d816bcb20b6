# SPDX-License-Identifier: GPL-3.0-or-later
"""The histories of other programs are taken over as they themselves wrote them, by the settings and by the first run; everything goes
into a folder and comes back."""

import json
import os
import re
import shutil
import stat
import subprocess

from desktop import (copy_text, DATA, PROGRAM, QUIET, Process, Vellumry, accessible, focus, key, main, own_tests, picture, remember,
                     run, same, text_of, unsealed, wait_for_clip, wait_same, wait_until, windows)
from settings_file import forget_settings

HOME = os.environ["HOME"]
COPYQ = os.path.join(os.environ["XDG_CONFIG_HOME"], "copyq")
GPASTE = os.path.join(os.environ["XDG_DATA_HOME"], "gpaste")
CLIPMAN = os.path.join(os.environ["XDG_CACHE_HOME"], "xfce4", "clipman")


def with_copyq(*texts):
    """CopyQ remembers these, the last one on top, and is closed."""
    forget_peers()
    with Process("copyq") as peer:
        wait_same(lambda: subprocess.run(["copyq", "size"], **QUIET).returncode, 0, "CopyQ")
        for text in texts:
            run("copyq", "add", text)
        run("copyq", "exit")
        wait_until(lambda: not peer.alive(), "CopyQ's end")


def with_gpaste(*texts):
    """The same for GPaste."""
    forget_peers()
    settings = dict(os.environ, GSETTINGS_BACKEND="keyfile")
    with Process("/usr/libexec/gpaste/gpaste-daemon", env=settings):
        # Its client would have the bus start another one, which would outlive this.
        wait_until(lambda: has_owner("org.gnome.GPaste"), "GPaste")
        for text in texts:
            run("gpaste-client", "add", text)
        wait_until(lambda: all(holds(os.path.join(GPASTE, "history.xml"), text) for text in texts), "GPaste's file")


def has_owner(name):
    asking = ("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/", "-m", "org.freedesktop.DBus.NameHasOwner", name)
    return b"true" in run(*asking)


def with_clipman(*texts):
    """The same for Xfce's clipman, which has no command to add a text: they are copied until it keeps them."""
    forget_peers()
    with Process("xfce4-clipman"):
        for text in texts:
            wait_until(lambda: copy_text(text) or holds(os.path.join(CLIPMAN, "textsrc"), text), "clipman's file")


def forget_peers():
    for folder in (COPYQ, GPASTE, CLIPMAN):
        shutil.rmtree(folder, ignore_errors=True)


def holds(path, text):
    if not os.path.exists(path):
        return False
    with open(path, encoding="utf-8") as file:
        return text in file.read()


def traces(of):
    """What is in another program's folder, and when it was written."""
    found = {}
    for folder, _, names in os.walk(of):
        for name in names:
            path = os.path.join(folder, name)
            with open(path, "rb") as file:
                found[path] = (os.stat(path).st_mtime_ns, file.read())
    return found


def open_history_pane():
    same(subprocess.run([PROGRAM, "--action", "open-settings"], timeout=60).returncode, 0, "open-settings")
    focus(wait_until(lambda: windows("^Vellumry Settings$"), "the settings")[0])
    press("History", "page tab")


def press(name, *roles):
    def find():
        for role in roles or ("push button", "button"):
            node = accessible("vellumry", role, f"^{re.escape(name)}$")
            if node is not None:
                return node
        return None

    wait_until(find, f"{name!r}").queryAction().doAction(0)


def says(text):
    wait_until(lambda: any(accessible("vellumry", role, re.escape(text)) for role in ("label", "static", "alert", "notification")), repr(text))


def taken_over(folder):
    """Imports what the folder's program remembers of three texts, one of them a card's number, and takes that back."""
    before = traces(folder)
    with Vellumry():
        remember("mine")
        open_history_pane()
        press("Import…")
        says("3 items")
        same(len(unsealed()), 1, "clips before the answer")
        picture("import-offered")
        press("Import")
        says("2 clips were imported. 1 password, code or key was left out.")
        picture("import-done")
        wait_same(lambda: len(unsealed()), 3, "the clips on the disk")
        theirs = sorted((row for row in unsealed() if "theirs" in text_of(row)), key=lambda row: -row["used"])
        same([text_of(row) for row in theirs], ["newest of theirs", "oldest of theirs"], "their order")
        same(traces(folder), before, "their folder")
        press("Undo Import")
        wait_same(lambda: len(unsealed()), 1, "the own clip alone")


THEIRS = ("oldest of theirs", "4111 1111 1111 1111", "newest of theirs")


def copyqs_history_is_taken_over_in_its_order():
    with_copyq(*THEIRS)
    taken_over(COPYQ)


def gpastes_history_is_taken_over_in_its_order():
    with_gpaste(*THEIRS)
    taken_over(GPASTE)


def clipmans_history_is_taken_over_in_its_order():
    with_clipman(*THEIRS)
    taken_over(CLIPMAN)


def the_first_run_offers_it():
    forget_settings()
    with_copyq("theirs")
    with Vellumry(greeted=False):
        focus(wait_until(lambda: windows("^Welcome to Vellumry$"), "the first run")[0])
        for name in ("Get Started", "Continue", "Continue"):
            press(name)
        says("1 item")
        picture("first-run-import")
        press("Import")
        wait_for_clip(lambda row: text_of(row) == "theirs", "the imported clip")
    forget_settings()


def everything_goes_into_a_folder_and_comes_back():
    target = os.path.join(HOME, "everything")
    shutil.rmtree(target, ignore_errors=True)
    with Vellumry():
        remember("first of ours", "second of ours")
        open_history_pane()
        press("Export…")
        key("ctrl+a")
        run("xdotool", "type", "--delay", "1", target)
        picture("export")
        press("Export")
        says(f"2 clips are in {target} now, and not encrypted there.")
        same(stat.S_IMODE(os.stat(target).st_mode), 0o700, "the folder's mode")
        with open(os.path.join(target, "index.json"), encoding="utf-8") as file:
            same([clip["title"] for clip in json.load(file)["clips"]], ["second of ours", "first of ours"], "the titles")
        with open(os.path.join(target, "000001.txt"), "rb") as file:
            same(file.read(), b"second of ours", "the first file")
    shutil.rmtree(DATA)
    with Vellumry():
        open_history_pane()
        press("Import…")
        wait_until(lambda: accessible("vellumry", "text", "Folder to import from"), "the field")
        key("Tab", "Tab")
        field = accessible("vellumry", "text", "Folder to import from")
        field.queryComponent().grabFocus()
        run("xdotool", "type", "--delay", "1", target)
        key("Return")
        says("2 clips were imported.")
        wait_same(lambda: len(unsealed()), 2, "the clips on the disk")


if __name__ == "__main__":
    main(own_tests())
