# SPDX-License-Identifier: GPL-3.0-or-later
"""A day's use in minutes: 20,000 copies (some of them pictures), 2,000 pastes, 500 showings of the panel, 100 openings of the menu, in 24
parts. Behind each part memory, open files and threads are looked at, when the program has had time to give back what it used. Run
inside scripts/headless-session (VELLUMRY_BENCH_DAY=0.1: a tenth of it). Prints a table; nothing here passes or fails.
"""

import os
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

from side_by_side import Owner, press_shortcut  # noqa: E402

from machine import anonymous_megabytes, process_tree, pss_megabytes  # noqa: E402
from peers import texts  # noqa: E402
from Xlib import X, Xatom
from Xlib.protocol import event

from clients import KeyWindow  # noqa: E402
from desktop import Failure, Vellumry, key, windows  # noqa: E402
from tray import Watcher  # noqa: E402

SHARE = float(os.environ.get("VELLUMRY_BENCH_DAY", "1"))
HOURS = 24
COPIES, PASTES, SHOWINGS, MENUS = (round(count * SHARE / HOURS) for count in (20_000, 2_000, 500, 100))
PICTURE_EVERY = 50
REST_SECONDS = 8.0
# A machine that is busy otherwise takes its time; what has not come by then is counted as lost.
PATIENCE_SECONDS = 60.0
PASTE_KEY = 55


class Copier(Owner):
    """Copies texts, and now and then a picture."""

    def __init__(self):
        super().__init__()
        self.atoms["image/png"] = self.display.intern_atom("image/png")
        self.picture = None

    def copy_picture(self, number):
        drawn = subprocess.run(["convert", "-size", "200x120", f"xc:#{number * 7919 % 0xFFFFFF:06x}", "png:-"], stdout=subprocess.PIPE,
                               check=True)
        self.picture = drawn.stdout
        self.read_at = None
        self.window.set_selection_owner(self.atoms["CLIPBOARD"], X.CurrentTime)
        self.display.flush()

    def copy(self, text):
        self.picture = None
        super().copy(text)

    def answer(self, request):
        if self.picture is None:
            super().answer(request)
            return
        given = request.property
        if request.target == self.atoms["TARGETS"]:
            request.requestor.change_property(given, Xatom.ATOM, 32, [self.atoms["TARGETS"], self.atoms["image/png"]])
        elif request.target == self.atoms["image/png"]:
            request.requestor.change_property(given, request.target, 8, self.picture)
            self.read_at = time.monotonic()
        else:
            given = X.NONE
        request.requestor.send_event(event.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection, target=request.target, property=given))
        self.display.flush()


def handles(pids):
    return sum(len(os.listdir(f"/proc/{pid}/fd")) for pid in pids if os.path.exists(f"/proc/{pid}/fd"))


def threads(pids):
    return sum(len(os.listdir(f"/proc/{pid}/task")) for pid in pids if os.path.exists(f"/proc/{pid}/task"))


class Day:
    def __init__(self, program, watcher):
        self.program = program
        self.item = watcher.item()
        self.owner = Copier()
        self.made = texts(COPIES * HOURS, seed=11)
        self.window = KeyWindow()
        self.number = 0
        self.lost_copies = 0
        self.lost_pastes = 0

    def copy(self):
        self.number += 1
        if self.number % PICTURE_EVERY == 0:
            self.owner.copy_picture(self.number)
        else:
            self.owner.copy(next(self.made))
        if not self.owner.serve(PATIENCE_SECONDS, until=lambda: self.owner.read_at is not None):
            self.lost_copies += 1
        self.owner.serve(0.002)

    def until(self, condition, what):
        """Waits as an application that goes on answering for what it copied."""
        if not self.owner.serve(PATIENCE_SECONDS, until=condition):
            raise Failure(f"waited in vain for {what}")

    def show(self):
        press_shortcut()
        self.until(lambda: windows("^Vellumry$"), "the panel")

    def closed(self):
        self.until(lambda: not windows("^Vellumry$"), "the panel to close")

    def paste(self):
        """Return in the panel; the window asks for what it was told to paste."""
        self.window.forget_events()  # the key of a paste that came after it was given up is none of this one
        self.show()
        key("Return")
        self.closed()
        try:
            self.window.wait_for(X.KeyPress, lambda pressed: pressed.detail == PASTE_KEY, PATIENCE_SECONDS)
            self.window.paste()
        except Failure:
            self.lost_pastes += 1

    def hour(self):
        for copied in range(1, COPIES + 1):
            self.copy()
            for _ in range(copied * PASTES // COPIES - (copied - 1) * PASTES // COPIES):
                self.paste()
        for _ in range(SHOWINGS):
            self.show()
            key("Down", "Down", "Escape")
            self.closed()
        for _ in range(MENUS):
            self.item.open()
        self.owner.serve(REST_SECONDS)

    def look(self):
        pids = process_tree(self.program.pid)
        return anonymous_megabytes(self.program.pid), pss_megabytes(pids), handles([self.program.pid]), threads([self.program.pid])


def growth(values):
    """Of the last quarter over the second one, in which the history has reached its full size."""
    quarter = len(values) // 4
    return statistics.mean(values[-quarter:]) - statistics.mean(values[quarter:2 * quarter])


def main():
    names = ("own memory, MB", "PSS with helpers, MB", "open files", "threads")
    print(f"{COPIES * HOURS} copies, {PASTES * HOURS} pastes, {SHOWINGS * HOURS} showings, {MENUS * HOURS} menus; load {os.getloadavg()[0]:.1f}")
    print(f"{'hour':>4} {'seconds':>8}  " + "  ".join(f"{name:>20}" for name in names), flush=True)
    rows = []
    with Watcher() as watcher, Vellumry() as program:
        day = Day(program, watcher)
        began = time.monotonic()
        for hour in range(1, HOURS + 1):
            day.hour()
            rows.append(day.look())
            print(f"{hour:>4} {time.monotonic() - began:>8.0f}  " + "  ".join(f"{value:>20.1f}" for value in rows[-1]), flush=True)
    for name, values in zip(names, zip(*rows)):
        print(f"growth of {name}, hours 19 to 24 over 7 to 12: {growth(values):+.2f}")
    print(f"lost within {PATIENCE_SECONDS:.0f} s each: {day.lost_copies} copies, {day.lost_pastes} pastes; load {os.getloadavg()[0]:.1f}")


if __name__ == "__main__":
    main()
