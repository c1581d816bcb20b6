# SPDX-License-Identifier: GPL-3.0-or-later
"""The program and the clipboard managers that it is measured against, each behind the same few words."""

import os
import random
import shutil
import sqlite3
import subprocess
import time

from gi.repository import Gio, GLib

from desktop import DATA, HISTORY, QUIET, SETTINGS, ROOT, Process, Vellumry, key, wait_until, windows


def texts(count, seed=5):
    """Made-up clips: median 18 characters, mean about 720, a few very long."""
    chance = random.Random(seed)
    words = ["".join(chance.choice("abcdefghijklmnopqrstuvwxyz") for _ in range(chance.randrange(2, 10))) for _ in range(4000)]
    for index in range(count):
        length = min(int(chance.lognormvariate(2.9, 2.7)) + 1, 100_000)  # what one word of a command line holds
        made = str(index)
        pieces = [made]
        size = len(made)
        while size < length:
            pieces.append(chance.choice(words))
            size += len(pieces[-1]) + 1
        yield " ".join(pieces)


def fill_history(made):
    """Into our history's file, while the program does not run."""
    program = os.path.join(ROOT, "build", "release", "bench", "bench_fill")
    subprocess.run([program, DATA], input="\0".join(made).encode(), check=True)


class Tool:
    """Started with `start`. Unless a tool says otherwise it has no panel that a test could open and no history that it tells."""

    name = ""
    program = ""
    has_panel = False
    has_history = False

    def __init__(self):
        self.process = None

    def is_there(self):
        return shutil.which(self.program) is not None

    def prepare(self):
        """Before the first start."""

    def start(self):
        self.process = Process(self.program, **QUIET)

    def wait_ready(self):
        time.sleep(2.0)

    def fill(self, owner, count, is_short=False):
        """Through the clipboard, the way a user does, as fast as it is taken. Returns how many clips there are then."""
        count = count // 5 if is_short else count
        for text in texts(count):
            owner.copy(text)
            owner.serve(0.5, until=lambda: owner.read_at is not None)
            owner.serve(0.015)
        owner.serve(1.0)
        return count

    def watch_for(self, text):
        """A question whose answer turns true once this copy is in the history."""
        raise NotImplementedError

    def stop_watching(self):
        pass

    def hide(self):
        pass

    def stop(self):
        self.process.stop()


class Ours(Tool):
    name = "Vellumry"
    has_panel = True
    has_history = True

    def __init__(self, most=10000):
        super().__init__()
        self.connection = None
        self.most = most

    def is_there(self):
        return True

    def start(self):
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "w", encoding="utf-8") as file:
            file.write(f"[General]\nkeepAtMost={self.most}\n")
        self.process = Vellumry(ready=False)

    def fill(self, owner, count, is_short=False):
        if not is_short:
            return super().fill(owner, count)
        self.stop()
        fill_history(texts(count))
        self.start()
        self.wait_ready()
        return count

    def wait_ready(self):
        self.process.wait_ready(60)

    def count(self):
        if self.connection is None:
            self.connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True)
        return self.connection.execute("SELECT count(*) FROM clips").fetchone()[0]

    def watch_for(self, text):
        """Durable: the row is committed."""
        before = self.count()
        return lambda: self.count() > before

    def hide(self):
        key("Escape")
        wait_until(lambda: not windows("^Vellumry$"), "the panel to close")


class CopyQ(Tool):
    name = "CopyQ"
    program = "copyq"
    has_panel = True
    has_history = True

    def __init__(self):
        super().__init__()
        self.waiting = None

    def ask(self, *words):
        done = subprocess.run(["copyq", *words], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
                              timeout=60)
        return done.stdout.decode().strip()

    def wait_ready(self):
        wait_until(lambda: self.ask("size").isdigit(), "CopyQ's server", 30)
        self.ask("config", "maxitems", "10000")
        self.ask("eval", "setCommands([{name: 'Show', cmd: 'copyq: toggle()', enable: true, isGlobalShortcut: true, "
                         "globalShortcuts: ['meta+ctrl+v']}])")

    def count(self):
        return int(self.ask("size"))

    def fill(self, owner, count, is_short=False):
        """By its own command: copies that follow each other faster than it looks at them it leaves out."""
        made = list(texts(count))
        for first in range(0, count, 20):
            self.ask("add", "--", *made[first:first + 20])
        return count

    def watch_for(self, text):
        # Backslashes of an argument are its own.
        script = (f"var end = String.fromCharCode(10); print('ready' + end); while (str(read(0)) != '{text}') sleep(1); "
                  "print('more' + end);")
        self.waiting = subprocess.Popen(["copyq", "eval", script], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                        stdin=subprocess.DEVNULL)
        self.waiting.stdout.readline()
        os.set_blocking(self.waiting.stdout.fileno(), False)
        return lambda: b"more" in (self.waiting.stdout.read() or b"")

    def stop_watching(self):
        self.waiting.kill()
        self.waiting.wait()

    def hide(self):
        self.ask("hide")
        time.sleep(0.3)

    def stop(self):
        self.ask("exit")
        self.process.stop()


class OnTheBus(Tool):
    """One that tells its newest entry over the session bus."""

    has_history = True
    place = ("", "", "")  # name, object, interface
    newest = ("", None)  # method and arguments that ask for the newest entry
    greeting = ""  # a method that answers as soon as the program runs

    def __init__(self):
        super().__init__()
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)

    def ask(self, method, arguments=None):
        try:
            answer = self.bus.call_sync(*self.place, method, arguments, None, Gio.DBusCallFlags.NO_AUTO_START, 5000)
        except GLib.Error:  # no answer, or no entry yet
            return None
        return str(answer.unpack())

    def wait_ready(self):
        wait_until(lambda: self.ask(self.greeting) is not None, f"{self.name} to answer", 30)

    def watch_for(self, text):
        return lambda: text in (self.ask(*self.newest) or "")


class GPaste(OnTheBus):
    name = "GPaste"
    program = "/usr/libexec/gpaste/gpaste-daemon"
    place = ("org.gnome.GPaste", "/org/gnome/GPaste", "org.gnome.GPaste2")
    newest = ("GetElementAtIndex", GLib.Variant("(t)", (0,)))
    greeting = "GetHistoryName"

    def prepare(self):
        os.environ["GSETTINGS_BACKEND"] = "keyfile"
        for setting, value in (("max-history-size", "10000"), ("max-memory-usage", "500")):
            subprocess.run(["gsettings", "set", "org.gnome.GPaste", setting, value], check=False, **QUIET)


class Clipman(Tool):
    """Tells nothing of its history; what it asked for counts as kept."""

    name = "clipman"
    program = "xfce4-clipman"


class Klipper(OnTheBus):
    name = "Klipper"
    program = "klipper"
    place = ("org.kde.klipper", "/klipper", "org.kde.klipper.klipper")
    newest = ("getClipboardContents", None)
    greeting = "getClipboardContents"


def tools(alone):
    return [Ours()] if alone else [tool for tool in (Ours(), CopyQ(), GPaste(), Clipman(), Klipper()) if tool.is_there()]
