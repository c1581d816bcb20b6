# SPDX-License-Identifier: GPL-3.0-or-later
"""What tests and benchmarks of a headless Wayland session have in common: keys, a foreign window, foreign copies. Run inside
scripts/wayland-session."""

import ast
import json
import os
import shlex
import socket
import subprocess
import sys
import threading
import time

HERE = os.path.dirname(os.path.abspath(__file__))
os.environ["VELLUMRY"] = os.environ["VELLUMRY_BINARY"]
sys.path.insert(0, os.path.join(HERE, "..", "e2e"))

import desktop  # noqa: E402
from desktop import Process, wait_same, wait_until  # noqa: E402

TYPIST = shlex.split(os.environ["VELLUMRY_TYPE"])[1]
SESSION = os.environ["VELLUMRY_SESSION"]
PROGRAM = os.environ["VELLUMRY_BINARY"]
HINT = "x-kde-passwordManagerHint"
QUIET = dict(stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def typed(*words):
    """As $VELLUMRY_TYPE does it, without a process of its own for each key."""
    with socket.socket(socket.AF_UNIX) as typist:
        typist.settimeout(desktop.LIMIT)
        typist.connect(TYPIST)
        typist.sendall("\0".join(words).encode())
        typist.shutdown(socket.SHUT_WR)
        if typist.recv(1) != b"y":
            raise desktop.Failure(f"these keys are not known: {words}")


def press(*chords):
    typed(*chords)


def type_text(text):
    typed("text", text)


def picture(name):
    """Leaves a picture of the screen."""
    subprocess.run([os.environ["VELLUMRY_SHOT"], f"{SESSION}-{name}.png"], check=False, timeout=desktop.LIMIT, **QUIET)


desktop.picture = picture


# wl-copy and wl-paste need a window with the keyboard where there is no data control.
CLIPBOARD = ["/usr/bin/python3", os.path.join(HERE, "mutter_clipboard.py")] if SESSION.startswith("gnome") else None
PLAIN = "text/plain;charset=utf-8"


def owner(data, kind=PLAIN):
    """A program that has the clipboard with this, and serves it until it ends."""
    command = [*CLIPBOARD, "copy", kind] if CLIPBOARD else ["wl-copy", "--foreground", "-t", kind]
    process = Process(*command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    process.handle.stdin.write(data if isinstance(data, bytes) else data.encode())
    process.handle.stdin.close()
    if CLIPBOARD and process.handle.stdout.readline() != b"ready\n":
        raise desktop.Failure("the clipboard could not be taken")
    return process


def copy(data, kind=PLAIN):
    """Returns once the clipboard has it; it is served in the background."""
    if CLIPBOARD:
        owner(data, kind)
        return
    subprocess.run(["wl-copy", "-t", kind], input=data if isinstance(data, bytes) else data.encode(), check=True, timeout=20, **QUIET)


def only_in(*sessions):
    """For a test that has no meaning in other sessions: it is none there, and is not counted."""
    return lambda test: test if SESSION in sessions else None


def told(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20, check=False).stdout


def clear():
    """A program empties the clipboard."""
    told(*([*CLIPBOARD, "clear"] if CLIPBOARD else ["wl-copy", "--clear"]))


def pasted(kind=PLAIN):
    return told(*CLIPBOARD, "paste", kind) if CLIPBOARD else told("wl-paste", "-n", "-t", kind)


def selected():
    """What stands on PRIMARY. GNOME tells it to no program that has not the keyboard."""
    return told("wl-paste", "--primary", "-n")


def offered():
    return told(*([*CLIPBOARD, "types"] if CLIPBOARD else ["wl-paste", "-l"])).decode().split("\n")


class Window(Process):
    """A window of another program, with the keyboard."""

    def __init__(self, **options):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "gtk_window.py"), stdout=subprocess.PIPE, text=True, **options)
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
            wait_same(lambda: self.text, text, f"the text {text!r} in the foreign window")
        except desktop.Failure as failure:
            picture("failed")
            raise desktop.Failure(f"{failure}, which has {self.state}") from None


def search_field_has_focus():
    """As the accessibility tree tells; the keyboard is the panel's a moment before."""
    import pyatspi

    field = desktop.accessible("vellumry", "text")
    return field is not None and field.getState().contains(pyatspi.STATE_FOCUSED)


def wait_for_panel(window):
    """Until the panel gets keys. Mutter hands them to an X11 window only a moment after that window has the focus, and drops
    those that come before: 5 of 150 with two busy cores. A letter is pressed until it shows, and taken away again."""
    wait_until(lambda: not window.state["active"], "the panel to take the keyboard")
    wait_until(search_field_has_focus, "the search field to have the focus")
    if SESSION == "gnome-plain":
        wait_until(lambda: shown_query() or type_text("q"), "a letter in the search field")
        press("escape")
        wait_same(shown_query, "", "the empty search field")


def open_panel(window):
    press("ctrl+super+v")
    wait_for_panel(window)


class Clipper(Process):
    """Another program that copies in the background, without a window, and answers at once."""

    def __init__(self):
        super().__init__(os.path.join(os.path.dirname(os.environ["VELLUMRY_BINARY"]), "clipper"), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                         text=True, bufsize=1)

    def ask(self, line, answer):
        """The words behind the first line that begins with `answer`."""
        self.handle.stdin.write(line + "\n")
        for told in self.handle.stdout:
            if told.startswith(answer):
                return told[len(answer):].strip()
        raise desktop.Failure("the other program has ended")

    def copy(self, words):
        """When the compositor had the copy, by time.monotonic()."""
        return float(self.ask("copy " + words, "copied"))


def settle():
    """Five keys a second, as a quick user presses them."""
    pace = time.monotonic() + 0.2
    wait_until(lambda: time.monotonic() >= pace, "the next key")


def stays(condition, what, seconds=1.5):
    """For what is not to come: longer than anything that would bring it takes."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            raise desktop.Failure(f"it did not stay so: {what}")
        time.sleep(0.02)


def press_button(name):
    node = wait_until(lambda: desktop.accessible("vellumry", "push button", name) or desktop.accessible("vellumry", "button", name),
                      f"the button {name!r}")
    node.queryAction().doAction(0)


def forgo_settings():
    """The next start is a first one."""
    if os.path.exists(desktop.SETTINGS):
        os.remove(desktop.SETTINGS)


def shown_query():
    return desktop.text_shown("vellumry", "text")


class Klipper(Process):
    """Plasma's clipboard manager, watching."""

    def __init__(self):
        super().__init__("plasmawindowed", "org.kde.plasma.clipboard")
        wait_until(lambda: self.newest() is not None, "Plasma's clipboard manager")
        # It answers before it watches.
        wait_until(lambda: copy("for Klipper") or self.newest() == "for Klipper", "Plasma's clipboard manager to watch")

    @staticmethod
    def newest():
        """What it holds on top; None while it does not answer."""
        done = subprocess.run(["gdbus", "call", "--session", "-d", "org.kde.klipper", "-o", "/klipper", "-m",
                               "org.kde.klipper.klipper.getClipboardHistoryItem", "0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              check=False, timeout=desktop.LIMIT)
        return None if done.returncode != 0 else ast.literal_eval(done.stdout.decode())[0]
