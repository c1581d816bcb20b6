# SPDX-License-Identifier: GPL-3.0-or-later
"""Whole-process figures of the built program beside those of other clipboard managers, by the same method, in the same headless
desktop and the same call. `--alone` leaves the others out; `--short` measures less often, and fills tools that take clips only through
the clipboard with a fifth of them. Run by bench/run inside scripts/headless-session.

Each row: our figure, that of each tool ("-" where it has none), what ours must reach, and "<<" where ours is not first. Figures are
medians, with the least and the most of them where there are several. Nothing here passes or fails.
"""

import os
import statistics
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "tests", "e2e"))

from Xlib import X, Xatom, display  # noqa: E402
from Xlib.ext import xtest  # noqa: E402
from Xlib.protocol import event  # noqa: E402

import peers  # noqa: E402
from machine import described, process_tree, pss_megabytes, schedstat_seconds, switches, written_bytes  # noqa: E402

SHORT = "--short" in sys.argv
CLIPS = int(os.environ.get("VELLUMRY_BENCH_CLIPS", "5000"))
BURST = 100 if SHORT else 300
QUIET_COPIES = 40 if SHORT else 120  # at four a second
SINGLE_COPIES = 10 if SHORT else 20
SHOWINGS = 6 if SHORT else 8
STARTS = 5 if SHORT else 9
REST = 20.0


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

    def close(self):
        """An owner that does not answer would keep the next tool waiting."""
        self.display.close()

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

    def copies(self, made, rate):
        """Copies them at that pace; returns how many were replaced before anybody had asked for their text."""
        missed = 0
        next_copy = time.monotonic()
        for text in made:
            self.copy(text)
            next_copy += 1 / rate
            self.serve(max(0.0, next_copy - time.monotonic()))
            missed += self.read_at is None
        return missed


def changed_after(picture, region, action, timeout=5.0):
    """Seconds from `action` until the pixels of `region` differ from `picture`."""
    x, y, width, height = region
    root = display.Display().screen().root
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


def time_to_watching(tool, owner):
    """Seconds from starting the program until the first copy was made that it noticed, to 5 ms."""
    began = time.monotonic()
    tool.start()
    copied = {}
    for attempt in range(6000):
        text = f"start {began} {attempt}"
        copied[text] = time.monotonic()
        owner.copy(text)
        if owner.serve(0.005, until=lambda: owner.read_at is not None):
            break
    tool.wait_ready()
    tool.stop()
    return copied[owner.text.decode()] - began


def measure_copies(tool, owner, figures):
    if tool.has_history:
        delays = []
        for index in range(SINGLE_COPIES):
            text = f"one measured copy {index}"
            kept = tool.watch_for(text)
            began = time.monotonic()
            owner.copy(text)
            if owner.serve(3.0, until=kept):
                delays.append((time.monotonic() - began) * 1000)
            tool.stop_watching()
            owner.serve(0.2)
        figures["copy"] = delays
    for rate in (20, 50, 100):
        figures[f"lost {rate}"] = [owner.copies([f"{rate} a second {index}" for index in range(BURST)], rate)]
        owner.serve(1.0)
    owner.serve(3.0)
    pids = process_tree(tool.process.pid)
    cpu, written = schedstat_seconds(pids), written_bytes(pids)
    owner.copies([f"quiet copy {index} ".ljust(190, "x") for index in range(QUIET_COPIES)], 4)
    owner.serve(1.0)
    figures["cpu"] = [(schedstat_seconds(pids) - cpu) / QUIET_COPIES * 1000]
    figures["written"] = [(written_bytes(pids) - written) / QUIET_COPIES / 1000]


def measure_panel(tool, owner, figures):
    region = (760, 300, 60, 60)
    blank = display.Display().screen().root.get_image(*region, X.ZPixmap, 0xFFFFFFFF).data
    shown = []
    for _ in range(SHOWINGS):
        shown.append(changed_after(blank, region, press_shortcut) * 1000)
        owner.serve(0.3)
        tool.hide()
        owner.serve(0.2)
    figures["first"] = shown[:1]
    figures["panel"] = shown[1:]


def memory(tool):
    """In MB; nothing of a tool that has ended."""
    return pss_megabytes(process_tree(tool.process.pid)) or float("nan")


def measure(tool, figures):
    owner = Owner()
    tool.prepare()
    tool.start()
    tool.wait_ready()
    figures["clips"] = [tool.fill(owner, CLIPS, SHORT)]
    measure_copies(tool, owner, figures)
    if tool.has_panel:
        measure_panel(tool, owner, figures)
    owner.serve(1.0)
    figures["used"] = [memory(tool)]
    owner.serve(2.0)
    before = switches(process_tree(tool.process.pid))
    owner.serve(REST)
    pids = process_tree(tool.process.pid)
    figures["wake-ups"] = [sum(count - before.get(task, 0) for task, count in switches(pids).items())]
    figures["rested"] = [memory(tool)]
    tool.stop()
    figures["start"] = [time_to_watching(tool, owner) * 1000 for _ in range(STARTS)]
    owner.close()


def measured(tool):
    """What is left out when another tool fails on the way, as some do on a busy machine, is a "-" in the table."""
    print(f"measuring {tool.name}", file=sys.stderr, flush=True)
    figures = {}
    try:
        measure(tool, figures)
    except Exception as failure:  # whatever it was
        if isinstance(tool, peers.Ours):
            raise
        print(f"{tool.name} was not measured to the end: {failure}", flush=True)
        tool.process.stop()
    return figures


# What, and our limit ("" for none). Where our time goes stands in docs/performance.md.
ROWS = (
    ("clips", "clips at the beginning", ""),
    ("copy", "copy to the history, ms (ours durable)", 8),
    ("lost 20", f"lost of {BURST} at 20 a second", 0),
    ("lost 50", f"lost of {BURST} at 50 a second", 0),
    ("lost 100", f"lost of {BURST} at 100 a second", 0),
    ("cpu", "processor a copy, panel hidden, 4 a second, ms", 1.5),
    ("written", "written a copy of 190 characters, kB", 12),
    ("first", "first showing of the panel, ms", ""),
    ("panel", "shortcut to painted panel, ms", 10),
    ("used", "memory 1 s after use (PSS), MB", 40),
    ("rested", f"memory {REST:.0f} s later, MB", 40),
    ("wake-ups", f"wake-ups in {REST:.0f} s of rest", ""),
    ("start", "start to watching, ms", 80),
)


def shown(values):
    values = [value for value in values or [] if value == value]
    if not values:
        return "-"
    middle = f"{statistics.median(values):.1f}"
    return middle if len(values) == 1 else f"{middle} ({min(values):.0f} to {max(values):.0f})"


def is_first(name, results):
    medians = [statistics.median(result[name]) for result in results if shown(result.get(name)) != "-"]
    return medians[0] <= min(medians)


def print_rows(rows, names, results, marks=True):
    cells = [["n", "what", *names, "limit", ""]]
    for name, label, limit in rows:
        if not results[0].get(name):
            continue
        mark = "" if not marks or name == "clips" or is_first(name, results) else "<<"
        cells.append([str(len(results[0][name])), label, *(shown(result.get(name)) for result in results), str(limit), mark])
    widths = [max(len(row[column]) for row in cells) for column in range(len(cells[0]))]
    for row in cells:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


def main():
    print(f"{described()}; {CLIPS} clips; n is the number of measurements")
    tools = peers.tools("--alone" in sys.argv)
    print_rows(ROWS, [tool.name for tool in tools], [measured(tool) for tool in tools])
    print(described(), flush=True)


if __name__ == "__main__":
    main()
