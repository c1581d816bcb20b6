# SPDX-License-Identifier: GPL-3.0-or-later
"""Pastes into many kinds of applications in a headless Wayland session: by Return in the panel, and by the application's own paste key
while a Paste Stack runs. With VELLUMRY_TABLE=file what was seen is appended there, a line of JSON. Run inside scripts/wayland-session."""

import glob
import json
import os
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import (HERE, HINT, PROGRAM, SESSION, Clipper, picture, press, search_field_has_focus, settle, type_text)  # noqa: E402

import desktop  # noqa: E402
from desktop import Failure, Process, Vellumry, fresh, main, run, text_of, wait_for_clip, wait_until  # noqa: E402

CHOSEN = "chosen words 漢字"
STACKED = ("first öne;", "second twö")
PAGE = "<!DOCTYPE html><meta charset=utf-8><title>page</title><textarea autofocus style='width:90vw;height:80vh'></textarea>"
# What a new profile would show in front of the page.
PROFILE = ''.join(f'user_pref("{name}", false);\n' for name in (
    "datareporting.policy.dataSubmissionEnabled", "browser.aboutwelcome.enabled", "browser.shell.checkDefaultBrowser",
    "app.normandy.enabled", "browser.preonboarding.enabled"))


class Target(Process):
    """An application that is pasted into. What it holds it tells by a copy of everything."""

    title, toolkit, command, environment = "", "", (), {}
    paste_key = "ctrl+v"

    def __init__(self):
        self.folder = tempfile.mkdtemp()
        for name, text in (("page.html", PAGE), ("user.js", PROFILE)):
            with open(os.path.join(self.folder, name), "w", encoding="utf-8") as file:
                file.write(text)
        command = [word.format(folder=self.folder, page=f"file://{self.folder}/page.html", here=HERE) for word in self.command]
        super().__init__(*command, env=dict(os.environ, **self.environment))
        wait_until(self.has_keyboard, f"{self.title} to have the keyboard")

    def has_keyboard(self):
        """A window may be there for seconds before it takes keys."""
        type_text("x")
        return "x" in self.content()

    def content(self):
        """Without a trace in what the test has copied: the program knows the mark of a password manager no better than a user's copy."""
        with Clipper() as clipper:
            press("ctrl+a")
            press("ctrl+c")
            text = clipper.ask("paste", "pasted")
        press("end")
        return text

    def empty(self):
        press("ctrl+a", "delete")


class Gtk4(Target):
    title, toolkit, command = "text view", "GTK 4", ("/usr/bin/python3", "{here}/gtk_window.py")


class Gtk3(Target):
    title, toolkit, command = "text view", "GTK 3", ("/usr/bin/python3", "{here}/gtk3_window.py")


class Xwayland(Target):
    title, toolkit, command = "text view of X11", "Xwayland", ("/usr/bin/python3", "{here}/gtk3_window.py")
    environment = {"GDK_BACKEND": "x11"}

    def __init__(self):
        self.environment = dict(self.environment, DISPLAY=display())
        super().__init__()


class Featherpad(Target):
    title, toolkit, command = "FeatherPad", "Qt 6", ("featherpad", "--standalone")


class Firefox(Target):
    title, toolkit = "Firefox", "Gecko"
    command = ("firefox-esr", "--new-instance", "--profile", "{folder}", "{page}")
    environment = {"MOZ_ENABLE_WAYLAND": "1"}


class Chromium(Target):
    title, toolkit = "Chromium", "Blink"
    command = ("chromium", "--ozone-platform=wayland", "--no-sandbox", "--no-first-run", "--disable-gpu", "--password-store=basic",
               "--user-data-dir={folder}", "{page}")


class Terminal(Target):
    paste_key = "ctrl+shift+v"

    def content(self):
        press("return")
        with open(os.path.join(self.folder, "typed"), encoding="utf-8") as file:
            return file.read()

    def has_keyboard(self):
        if not os.path.exists(os.path.join(self.folder, "typed")):
            return False
        type_text("x")
        return "x" in self.content()

    def empty(self):
        pass


class Foot(Terminal):
    title, toolkit, command = "foot", "terminal", ("foot", "sh", "-c", "exec cat > {folder}/typed")


class Konsole(Terminal):
    title, toolkit = "Konsole", "terminal"
    command = ("konsole", "--separate", "-e", "sh", "-c", "exec cat > {folder}/typed")


KINDS = (Gtk4, Gtk3, Featherpad, Firefox, Chromium, Xwayland, Foot, Konsole)


def display():
    """The display of Xwayland, which starts with its first client."""
    return ":" + sorted(glob.glob("/tmp/.X11-unix/X*"))[0].removeprefix("/tmp/.X11-unix/X")


def shows(target, text):
    for _ in range(6):
        try:
            return wait_until(lambda: text in target.content().replace("\n", ""), text, 3)
        except Failure:
            continue
    picture("failed-" + type(target).__name__.lower())
    raise Failure(f"waited in vain for {text!r} in {target.title}; it holds {target.content()!r:.200}")


def remember(clipper, text):
    clipper.copy(text)
    wait_for_clip(lambda row: text_of(row) == text, "the copy of " + text)


def by_return(target, clipper):
    remember(clipper, CHOSEN)
    press("ctrl+super+v")
    wait_until(search_field_has_focus, "the search field to have the focus")
    type_text("chosen")
    press("return")
    wait_until(lambda: not search_field_has_focus(), "the panel to go")
    shows(target, CHOSEN)


def by_stack(target, clipper):
    run(PROGRAM, "--action", "toggle-stack")
    for text in STACKED:
        remember(clipper, text)
    wait_until(lambda: HINT in offered_types(), "the stack on the clipboard")
    for text in STACKED:
        settle()
        press(target.paste_key)
    settle()
    shows(target, "".join(STACKED))


def offered_types():
    return run("wl-paste", "-l").decode().split("\n")


def pastes_into(kind):
    def test():
        with Vellumry(), Clipper() as clipper, kind() as target:
            target.empty()
            results = []
            for way in (by_return, by_stack):
                try:
                    way(target, clipper)
                    results.append("✓")
                except Failure as failure:
                    results.append("✗")
                    print(failure)
            path = os.environ.get("VELLUMRY_TABLE")
            if path:
                with open(path, "a", encoding="utf-8") as file:
                    print(json.dumps([SESSION, target.title, target.toolkit, *results]), file=file)
            if "✗" in results:
                raise Failure(f"{target.title}: {results}")

    test.__name__ = "into_" + kind.__name__.lower()
    return fresh(test)


if __name__ == "__main__":
    main([pastes_into(kind) for kind in KINDS])
