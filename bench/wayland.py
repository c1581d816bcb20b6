# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program costs in a Wayland session: copies until they are durable, the panel, a paste, memory, and a Paste Stack of 300; and CopyQ's way to its window.

Run by bench/wayland inside scripts/wayland-session. Prints a table; exits with 1 when a stack's paste was lost or doubled, or a copy
of the burst. VELLUMRY_BENCH_CLIPS, VELLUMRY_BENCH_COPIES and VELLUMRY_BENCH_STACK are how many clips, copies of the burst and
stack pastes there are.
"""

import itertools
import os
import shutil
import sqlite3
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "tests", "wayland"))

from gi.repository import Gio, GLib  # noqa: E402
from one_liners import texts  # noqa: E402
from session import (HINT, PROGRAM, SESSION, Clipper, Klipper, Window, offered, press, search_field_has_focus,
                     settle, wait_for_panel)  # noqa: E402

import desktop  # noqa: E402
from desktop import HISTORY, Process, Vellumry, run, wait_until  # noqa: E402

CLIPS = int(os.environ.get("VELLUMRY_BENCH_CLIPS", "5000"))
COPIES = int(os.environ.get("VELLUMRY_BENCH_COPIES", "500"))
ROUNDS = 15
STACKED = int(os.environ.get("VELLUMRY_BENCH_STACK", "300"))
RUNS = itertools.count(1)
BUS = Gio.bus_get_sync(Gio.BusType.SESSION)


class History:
    """The rows of the file, as another process sees them."""

    def __init__(self):
        self.connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True)

    def count(self):
        return self.connection.execute("SELECT count(*) FROM clips").fetchone()[0]

    def settled(self):
        """How many there are once no more are under way."""
        count, since = self.count(), time.monotonic()
        while time.monotonic() - since < 0.2:
            time.sleep(0.01)
            if self.count() != count:
                count, since = self.count(), time.monotonic()
        return count

    def keep(self, clipper, text):
        """Copies until it is there: on a busy machine a copy may be written over before it was read."""
        before = self.settled()
        while True:
            clipper.copy(text)
            try:
                return self.wait(before + 1, 5)
            except desktop.Failure:
                continue

    def wait(self, count, timeout=60.0):
        """When there were so many, by time.monotonic(); looked at every half millisecond."""
        end = time.monotonic() + timeout
        while self.count() < count:
            if time.monotonic() > end:
                raise desktop.Failure(f"{self.count()} rows in place of {count}")
            time.sleep(0.0005)
        return time.monotonic()


def pss_megabytes(pid):
    """Of the program and what it has started."""
    pids = [pid]
    for process in pids:
        try:
            with open(f"/proc/{process}/task/{process}/children", encoding="ascii") as file:
                pids += [int(child) for child in file.read().split()]
        except FileNotFoundError:
            continue
    total = 0
    for process in pids:
        try:
            with open(f"/proc/{process}/smaps_rollup", encoding="ascii") as file:
                total += sum(int(line.split()[1]) for line in file if line.startswith("Pss:"))
        except (FileNotFoundError, PermissionError):
            continue
    return total / 1024


def copies(clipper, history):
    delays = []
    for index in range(20):
        before = history.settled()
        delays.append(-clipper.copy(f"one measured copy {index}") + history.wait(before + 1))
    before = history.settled()
    following = time.monotonic()
    for index in range(COPIES):
        clipper.copy(f"copy {index} of a burst")
        following += 0.05
        time.sleep(max(0.0, following - time.monotonic()))
    return statistics.median(delays) * 1000, COPIES - (history.settled() - before)


def open_by_action():
    BUS.call_sync("com.vellumry.Vellumry", "/com/vellumry/Vellumry", "org.freedesktop.Application", "ActivateAction",
                  GLib.Variant("(sava{sv})", ("open-panel", [], {})), None, 0, 20000, None)


def seconds_to_panel(window, action):
    """Until the panel has the keyboard, which the compositor gives it with its first picture."""
    began = time.monotonic()
    action()
    wait_until(lambda: not window.state["active"], "the panel to take the keyboard")
    took = window.state["at"] - began
    wait_until(search_field_has_focus, "the search field to have the focus")
    press("escape")
    wait_until(lambda: window.state["active"], "the keyboard back in the window")
    return took


def return_to_text(window, clipper, history):
    delays = []
    for index in range(ROUNDS):
        text = f"pasted text {index}"
        history.keep(clipper, text)
        press("ctrl+a", "delete")
        window.wait_text("")
        press("ctrl+super+v")
        # The search field may seem to have the focus from the last time on.
        wait_for_panel(window)
        began = time.monotonic()
        press("return")
        window.wait_text(text)
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        delays.append(window.state["at"] - began)
    return delays


class CopyQ(Process):
    """The peer, with as many clips, shown by its own command: a user binds that to a key on Wayland."""

    def __init__(self):
        super().__init__("copyq")
        wait_until(lambda: self.ask("size").isdigit(), "CopyQ's server")
        self.ask("config", "maxitems", "10000")
        # Else it is minimised, which sway does not know, where there is no tray.
        self.ask("config", "hide_main_window", "true")
        made = list(texts(CLIPS))
        for first in range(0, CLIPS, 20):
            self.ask("add", "--", *made[first:first + 20])

    @staticmethod
    def ask(*words):
        return subprocess.run(["copyq", *words], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False, timeout=60).stdout.decode().strip()

    def seconds_to_window(self, window):
        began = time.monotonic()
        with Process("copyq", "show"):
            wait_until(lambda: not window.state["active"], "CopyQ's window to take the keyboard", 10)
        took = window.state["at"] - began
        press("escape")
        wait_until(lambda: window.state["active"], "the keyboard back in the window", 10)
        return took


def beside_copyq(window):
    name = "CopyQ: command to window with the keyboard, median (most) ms"
    if shutil.which("copyq") is None:
        tell(name, "not installed")
        return
    with CopyQ() as peer:
        try:
            peer.seconds_to_window(window)
            tell(name, middle([peer.seconds_to_window(window) for _ in range(ROUNDS)]))
        except desktop.Failure as failure:
            tell(name, f"does not work here: {failure}")


def stack(window, clipper, history, count):
    """Pastes five a second, without a look at what has arrived; the items that are lost, doubled or out of their order."""
    press("ctrl+a", "delete")
    window.wait_text("")
    run(PROGRAM, "--action", "toggle-stack")
    run_number = next(RUNS)  # what the history has already would not be one clip more
    items = [f"{run_number}.{index};" for index in range(count)]
    for item in items:
        # Not into the same few milliseconds in which the stack puts its first item back, behind the copy before: whichever comes last
        # stays, and no user is as quick.
        settle()
        before = history.count()
        clipper.copy(item)
        try:
            history.wait(before + 1, 5)
        except desktop.Failure:
            continue  # it is missing among the pastes
    wait_until(lambda: HINT in offered(), "the stack on the clipboard")
    following = time.monotonic() + 0.2
    for _ in items:
        time.sleep(max(0.0, following - time.monotonic()))
        following += 0.2
        press("ctrl+v")
    try:
        wait_until(lambda: window.text.count(";") >= count, "the last item", 10)
    except desktop.Failure:
        pass
    arrived = [item + ";" for item in window.text.split(";")[:-1]]
    lost = len(set(items) - set(arrived))
    return lost, len(arrived) - len(set(arrived)), arrived == sorted(arrived, key=items.index)


def middle(delays):
    return f"{statistics.median(delays) * 1000:.1f} ({max(delays) * 1000:.1f})"


def tell(name, value):
    print(f"{name:62} {value}", flush=True)


def stack_is_whole(name, window, clipper, history):
    lost, doubled, in_order = stack(window, clipper, history, STACKED)
    tell(f"{name}, lost, doubled", f"{lost}, {doubled}{'' if in_order else ', out of order'}")
    return lost == 0 and doubled == 0 and in_order


def settings():
    os.makedirs(os.path.dirname(desktop.SETTINGS), exist_ok=True)
    with open(desktop.SETTINGS, "w", encoding="utf-8") as file:
        file.write("[General]\nkeepAtMost=10000\nonboardingDone=true\n")


def main():
    settings()
    tell("session, load at the start", f"{SESSION}, {os.getloadavg()[0]:.1f}")
    with Vellumry() as program, Clipper() as clipper, Window() as window:
        clipper.copy("the first of them")
        desktop.wait_for_clip(lambda row: desktop.text_of(row) == "the first of them", "the first copy")
        history = History()
        for index, text in enumerate(texts(CLIPS - 1)):
            clipper.copy(text)
            history.wait(index + 2)
        delay, lost = copies(clipper, history)
        tell("copy to the durable row, median ms", f"{delay:.1f}")
        tell(f"lost of {COPIES} copies at 20 a second", lost)
        seconds_to_panel(window, open_by_action)
        tell("D-Bus action to painted panel, median (most) ms",
             middle([seconds_to_panel(window, open_by_action) for _ in range(ROUNDS)]))
        tell("key to painted panel, median (most) ms",
             middle([seconds_to_panel(window, lambda: press("ctrl+super+v")) for _ in range(ROUNDS)]))
        tell("Return to text in a GTK editor, median (most) ms", middle(return_to_text(window, clipper, history)))
        time.sleep(1)
        tell("PSS 1 s after use, MB", f"{pss_megabytes(program.pid):.1f}")
        time.sleep(19)
        tell("PSS 20 s after use, MB", f"{pss_megabytes(program.pid):.1f}")
        is_whole = stack_is_whole(f"{STACKED} stack pastes at 5 a second", window, clipper, history)
        if SESSION == "kwin":
            with Klipper(), Window() as second:
                is_whole = stack_is_whole("the same with Klipper running", second, clipper, history) and is_whole
    with Window() as window:
        beside_copyq(window)
    tell("load at the end", f"{os.getloadavg()[0]:.1f}")
    sys.exit(0 if is_whole and lost == 0 else 1)


if __name__ == "__main__":
    main()
