# SPDX-License-Identifier: GPL-3.0-or-later
"""Whole-process figures of the built program beside CopyQ's, by the same method, in the same headless desktop.

Run by bench/run inside scripts/headless-session. Prints a table; nothing here passes or fails.
"""

import os
import random
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "tests", "e2e"))

import sqlite3  # noqa: E402

from Xlib import X, Xatom, display  # noqa: E402
from Xlib.ext import xtest  # noqa: E402
from Xlib.protocol import event  # noqa: E402

from desktop import HISTORY, QUIET, SETTINGS, Process, Vellumry, focused_window, key, wait_until, window_of_class, windows  # noqa: E402

CLIPS = int(os.environ.get("VELLUMRY_BENCH_CLIPS", "5000"))
COPIES = int(os.environ.get("VELLUMRY_BENCH_COPIES", "500"))


class Owner:
    """A client that owns the clipboard with one text and answers at once; tells when its text was asked for."""

    def __init__(self):
        self.display = display.Display()
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.atoms = {name: self.display.intern_atom(name) for name in
                      ("CLIPBOARD", "TARGETS", "UTF8_STRING", "TEXT", "STRING", "text/plain", "TIMESTAMP")}
        self.text = b""
        self.read_at = None

    def copy(self, text):
        self.text = text.encode()
        self.read_at = None
        self.window.set_selection_owner(self.atoms["CLIPBOARD"], X.CurrentTime)
        self.display.flush()

    def serve(self, seconds=0.0, until=None):
        """Answers requests for some seconds, or until a condition holds."""
        end = time.monotonic() + seconds
        while True:
            while self.display.pending_events():
                happened = self.display.next_event()
                if happened.type == X.SelectionRequest:
                    self.answer(happened)
            if until is not None and until():
                return True
            if time.monotonic() >= end:
                return False
            time.sleep(0.0005)

    def answer(self, request):
        given = request.property
        if request.target == self.atoms["TARGETS"]:
            offered = [self.atoms[name] for name in ("TARGETS", "UTF8_STRING", "TEXT", "STRING", "text/plain")]
            request.requestor.change_property(given, Xatom.ATOM, 32, offered)
        elif request.target in (self.atoms["UTF8_STRING"], self.atoms["TEXT"], self.atoms["STRING"], self.atoms["text/plain"]):
            request.requestor.change_property(given, request.target, 8, self.text)
            self.read_at = time.monotonic()
        else:
            given = X.NONE
        request.requestor.send_event(event.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection, target=request.target, property=given))
        self.display.flush()


def read_or_nothing(path):
    """Processes and threads may end while they are looked at."""
    try:
        with open(path, encoding="ascii") as file:
            return file.read()
    except (FileNotFoundError, ProcessLookupError):
        return ""


def tasks(pids):
    """The folders of all threads."""
    for pid in pids:
        try:
            yield from (f"/proc/{pid}/task/{task}" for task in os.listdir(f"/proc/{pid}/task"))
        except FileNotFoundError:
            continue


def process_tree(pid):
    found = [pid]
    for process in found:
        for task in tasks([process]):
            found += [int(child) for child in read_or_nothing(f"{task}/children").split()]
    return found


def schedstat_seconds(pids):
    """Time on the processor of all threads, in the scheduler's nanoseconds."""
    return sum(int(line.split()[0]) for task in tasks(pids) if (line := read_or_nothing(f"{task}/schedstat"))) / 1e9


def pss_megabytes(pids):
    lines = [line for pid in pids for line in read_or_nothing(f"/proc/{pid}/smaps_rollup").splitlines()]
    return sum(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024


def switches(pids):
    """How often each thread has given up the processor by itself."""
    return {task: int(line.split()[1]) for task in tasks(pids) for line in read_or_nothing(f"{task}/status").splitlines()
            if line.startswith("voluntary_ctxt_switches")}


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


def changed_after(picture, region, action, timeout=5.0):
    """Seconds from `action` until the pixels of `region` differ from `picture`."""
    x, y, width, height = region
    screen = display.Display()
    root = screen.screen().root
    began = time.monotonic()
    action()
    while time.monotonic() - began < timeout:
        if root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF).data != picture:
            return time.monotonic() - began
    return float("nan")


def press_shortcut():
    screen = display.Display()
    codes = [screen.keysym_to_keycode(sym) for sym in (0xFFEB, 0xFFE3, 0x0076)]  # Super, Control, v
    for code in codes:
        xtest.fake_input(screen, X.KeyPress, code)
    for code in reversed(codes):
        xtest.fake_input(screen, X.KeyRelease, code)
    screen.sync()
    screen.close()


class Ours:
    name = "Vellumry"

    def start(self):
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "w", encoding="utf-8") as file:
            file.write("[General]\nkeepAtMost=10000\n")
        self.process = Vellumry(ready=False)
        return self.process

    def wait_ready(self):
        self.process.wait_ready(60)

    def count(self):
        if not hasattr(self, "connection"):
            self.connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True)
        return self.connection.execute("SELECT count(*) FROM clips").fetchone()[0]

    def watch_for(self, text):
        """A question whose answer turns true once this copy is durable."""
        before = self.count()
        return lambda: self.count() > before

    def stop_watching(self):
        pass

    def fill(self, owner, count):
        """Through the clipboard, the way a user does, as fast as it is taken."""
        for text in texts(count):
            owner.copy(text)
            owner.serve(0.5, until=lambda: owner.read_at is not None)
            owner.serve(0.015)
        owner.serve(1.0)

    def hide(self):
        key("Escape")
        wait_until(lambda: not windows("^Vellumry$"), "the panel to close")

    def stop(self):
        self.process.stop()


class CopyQ:
    name = "CopyQ"

    def start(self):
        self.process = Process("copyq")
        return self.process

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

    def fill(self, owner, count):
        """By its own command: copies that follow each other faster than it looks at them it leaves out."""
        made = list(texts(count))
        for first in range(0, count, 20):
            self.ask("add", "--", *made[first:first + 20])

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


def time_to_watching(tool, owner):
    """Seconds from starting the program until the first copy was made that it noticed."""
    began = time.monotonic()
    tool.start()
    copied = {}
    for attempt in range(1000):
        text = f"start {began} {attempt}"
        copied[text] = time.monotonic()
        owner.copy(text)
        # Longer than the pause after which a burst of copies counts as over.
        if owner.serve(0.03, until=lambda: owner.read_at is not None):
            break
    tool.wait_ready()
    tool.stop()
    return copied[owner.text.decode()] - began


def measure(tool):
    figures = {}
    owner = Owner()
    tool.start()
    tool.wait_ready()
    tool.fill(owner, CLIPS)
    figures["clips after filling"] = tool.count()

    delays = []
    for index in range(20):
        text = f"one measured copy {index}"
        kept = tool.watch_for(text)
        began = time.monotonic()
        owner.copy(text)
        if owner.serve(3.0, until=kept):
            delays.append(time.monotonic() - began)
        tool.stop_watching()
    figures["copy to history, median ms"] = statistics.median(delays) * 1000 if delays else float("nan")

    pids = process_tree(tool.process.pid)
    before, cpu = tool.count(), schedstat_seconds(pids)
    next_copy = time.monotonic()
    for index in range(COPIES):
        owner.copy(f"copy {index} of a burst")
        next_copy += 0.05
        owner.serve(max(0.0, next_copy - time.monotonic()))
    owner.serve(1.0)
    figures[f"lost of {COPIES} at 20 a second"] = COPIES - (tool.count() - before)
    figures["CPU ms a copy"] = (schedstat_seconds(pids) - cpu) / COPIES * 1000

    region = (760, 300, 60, 60)
    root = display.Display().screen().root
    blank = root.get_image(*region, X.ZPixmap, 0xFFFFFFFF).data
    shown = []
    for _ in range(8):
        shown.append(changed_after(blank, region, press_shortcut))
        owner.serve(0.3)
        tool.hide()
        owner.serve(0.2)
    figures["first showing, ms"] = shown[0] * 1000
    figures["key to painted panel, median ms"] = statistics.median(shown[1:]) * 1000

    pids = process_tree(tool.process.pid)
    figures["PSS just after use, MB"] = pss_megabytes(pids)
    owner.serve(2.0)
    before = switches(pids)
    owner.serve(20.0)
    after = switches(process_tree(tool.process.pid))
    figures["PSS 20 s later, MB"] = pss_megabytes(process_tree(tool.process.pid))
    figures["wake-ups in 20 s idle"] = sum(count - before.get(task, 0) for task, count in after.items())
    tool.stop()

    figures["start to watching, median ms"] = statistics.median(time_to_watching(tool, owner) for _ in range(9)) * 1000
    return figures


def main():
    tools = [Ours()]
    if subprocess.run(["which", "copyq"], **QUIET).returncode == 0 and "--alone" not in sys.argv:
        tools.append(CopyQ())
    results = [measure(tool) for tool in tools]
    width = max(len(name) for name in results[0])
    print(f"{'':{width}}  " + "  ".join(f"{tool.name:>10}" for tool in tools))
    for name in results[0]:
        print(f"{name:{width}}  " + "  ".join(f"{result.get(name, float('nan')):10.1f}" for result in results), flush=True)


if __name__ == "__main__":
    main()
