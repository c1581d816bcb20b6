# SPDX-License-Identifier: GPL-3.0-or-later
"""What a very large copy costs: how long behind its owner's last byte it is durable, how long our main thread was busy with it
in all, and what of our memory it leaves occupied.

    scripts/headless-session /usr/bin/python3 bench/big_copies.py

Prints a table; nothing here passes or fails. The time of the main thread is what the scheduler counted for it from the copy to
the end of all work, an upper bound of any single time for which it could not answer the user.
"""

import os
import random
import sqlite3
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "tests", "e2e"))

from Xlib import X, Xatom, display  # noqa: E402
from Xlib.protocol import event  # noqa: E402

from desktop import HISTORY, Vellumry, copy_text, wait_until  # noqa: E402

CHUNK = 200_000
ROUNDS = int(os.environ.get("VELLUMRY_BENCH_ROUNDS", "5"))


class Owner:
    """Owns the clipboard with one representation, gives it in increments, notes when the last byte was taken."""

    def __init__(self, target, data):
        self.display = display.Display()
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.atoms = {name: self.display.intern_atom(name) for name in ("CLIPBOARD", "TARGETS", "INCR", target)}
        self.target = self.atoms[target]
        self.data = data
        self.offset = None
        self.done = None
        self.window.set_selection_owner(self.atoms["CLIPBOARD"], X.CurrentTime)
        self.display.flush()
        self.began = time.monotonic()

    def serve(self, until, timeout=30.0):
        end = time.monotonic() + timeout
        while not until():
            if time.monotonic() > end:
                raise SystemExit("the copy did not arrive")
            while self.display.pending_events():
                happened = self.display.next_event()
                if happened.type == X.SelectionRequest:
                    self.answer(happened)
                elif happened.type == X.PropertyNotify and happened.state == X.PropertyDelete:
                    self.go_on(happened.window, happened.atom)
            time.sleep(0.0005)

    def answer(self, request):
        given = request.property
        if request.target == self.atoms["TARGETS"]:
            request.requestor.change_property(given, Xatom.ATOM, 32, [self.atoms["TARGETS"], self.target])
        elif request.target == self.target:
            request.requestor.change_attributes(event_mask=X.PropertyChangeMask)
            request.requestor.change_property(given, self.atoms["INCR"], 32, [len(self.data)])
            self.offset = 0
        else:
            given = X.NONE
        request.requestor.send_event(event.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection, target=request.target, property=given))
        self.display.flush()

    def go_on(self, window, atom):
        if self.offset is None:
            return
        piece = self.data[self.offset:self.offset + CHUNK]
        window.change_property(atom, self.target, 8, piece)
        self.display.flush()
        self.offset += len(piece)
        if not piece:
            self.offset = None
            self.done = time.monotonic()


def main_thread_seconds(pid):
    with open(f"/proc/{pid}/task/{pid}/schedstat", encoding="ascii") as file:
        return int(file.read().split()[0]) / 1e9


def occupied_megabytes(pid):
    """What we have written to: our share of the pages of libraries changes with what other processes use them at the moment."""
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as file:
        return sum(int(line.split()[1]) for line in file if line.startswith(("Anonymous:", "Swap:"))) / 1024


def noise(seed):
    made = subprocess.run(["convert", "-seed", str(seed), "-size", "3840x2160", "plasma:", "-depth", "8", "png:-"],
                          stdout=subprocess.PIPE, check=True)
    return made.stdout


def screen(seed):
    """Windows full of text, and a photograph."""
    command = ["convert", "-seed", str(seed), "-size", "3840x2160", "xc:rgb(32,74,135)"]
    for window in range(11):
        words = text(seed * 100 + window, 3000).decode()
        lines = "\n".join(words[at:at + 100] for at in range(0, len(words), 100))
        command += ["(", "-size", "920x680", "xc:white", "-pointsize", "17", "-annotate", "+10+20", lines, ")",
                    "-geometry", f"+{window % 4 * 950 + 20}+{window // 4 * 710 + 20}", "-composite"]
    command += ["(", "-size", "920x680", "plasma:", ")", "-geometry", "+2870+1440", "-composite", "-depth", "8", "png:-"]
    return subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout


def text(seed, size=50_000_000):
    chance = random.Random(seed)
    words = ["".join(chance.choice("abcdefghijklmnopqrstuvwxyzäß") for _ in range(chance.randrange(2, 10))) for _ in range(5000)]
    line = " ".join(chance.choice(words) for _ in range(200_000)) + "\n"
    data = (f"copy {seed}\n" + line * (size // len(line.encode()) + 1)).encode()
    return data[:size].decode("utf-8", "ignore").encode()


def quiet(pid):
    """Waits until the program has had nothing to do for a second."""
    still = 0
    before = main_thread_seconds(pid)
    while still < 10:
        time.sleep(0.1)  # the program is left alone while it is watched
        now = main_thread_seconds(pid)
        still = still + 1 if now == before else 0
        before = now


def measure(process, name, target, make):
    connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True)
    count = lambda: connection.execute("SELECT count(*) FROM clips").fetchone()[0]  # noqa: E731
    behind, busy, memory = [], [], []
    for index in range(ROUNDS + 1):
        data = make(index)
        quiet(process.pid)
        before, used = count(), main_thread_seconds(process.pid)
        owner = Owner(target, data)
        owner.serve(lambda: owner.done is not None and count() > before)
        arrived = time.monotonic()
        quiet(process.pid)
        behind.append((arrived - owner.done) * 1000)
        busy.append((main_thread_seconds(process.pid) - used) * 1000)
        memory.append(occupied_megabytes(process.pid))
        size = len(data) / 1e6
    print(f"{name:<28} {size:6.1f} {statistics.median(behind[1:]):9.0f} {max(behind[1:]):7.0f} {statistics.median(busy[1:]):9.1f}"
          f" {max(busy[1:]):7.1f} {memory[0]:9.1f} {memory[-1]:7.1f}", flush=True)


def main():
    with Vellumry() as process:
        copy_text("warm")
        wait_until(lambda: os.path.exists(HISTORY), "the history")
        time.sleep(3)  # what the program does after its start is done
        print(f"memory before: {occupied_megabytes(process.pid):.1f} MB of our own, {ROUNDS} copies of each kind after a first one")
        print(f"{'':<28} {'MB':>6} {'durable behind its':^17} {'main thread busy':^17} {'our MB after the':^17}")
        print(f"{'':<28} {'':>6} {'owner, ms':>9} {'worst':>7} {'ms':>9} {'worst':>7} {'first':>9} {'last':>7}")
        measure(process, "text, UTF8_STRING", "UTF8_STRING", text)
        measure(process, "text, text/plain", "text/plain", lambda seed: text(100 + seed))
        # Behind the texts: pictures are still being read, and held for it, long after they are copied.
        measure(process, "screen 3840 x 2160, PNG", "image/png", screen)
        measure(process, "noise 3840 x 2160, PNG", "image/png", noise)


main()
