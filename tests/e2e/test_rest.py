# SPDX-License-Identifier: GPL-3.0-or-later
"""At rest the program sleeps: no timer runs but the maintenance every fifteen seconds, and nothing of it has the disk or a display at work."""

import os
import time

from desktop import PROGRAM, Failure, Vellumry, key, main, open_panel, own_tests, remember, run, wait_panel_closed
from tray import Watcher

SPAN = 31.0  # seconds; two runs of the maintenance, three at most
MOST = 15  # wake-ups: a run has a few, each of which may wake another thread; a timer of a second would have 31
SPANS = 6  # what was used is given back within the first


def sleeps(process):
    """How often each thread has gone to sleep so far, by its name and number."""
    found = {}
    for task in os.listdir(f"/proc/{process}/task"):
        with open(f"/proc/{process}/task/{task}/status", encoding="utf-8") as file:
            fields = dict(line.rstrip("\n").split(":\t", 1) for line in file if ":\t" in line)
        found[f"{fields['Name']} {task}"] = int(fields["voluntary_ctxt_switches"])
    return found


def woken_in_a_span(process):
    before = sleeps(process)
    time.sleep(SPAN)  # the time that is measured
    after = sleeps(process)
    return {name: count - before.get(name, 0) for name, count in after.items() if count != before.get(name, 0)}


def falls_asleep(program, what):
    seen = []
    for _ in range(SPANS):
        woken = woken_in_a_span(program.pid)
        seen.append(woken)
        if sum(woken.values()) <= MOST:
            print(f"{what}: {sum(woken.values())} wake-ups in {SPAN:g} s, {woken}", flush=True)
            return
    raise Failure(f"{what}: never at rest, wake-ups in {SPAN:g} s each: {seen}")


def with_an_icon_and_after_use_it_sleeps():
    with Watcher() as watcher, Vellumry() as program:
        remember("one", "two", "three")
        open_panel()
        key("Escape")
        wait_panel_closed()
        watcher.item().open()
        falls_asleep(program, "with an icon, after the panel and the menu")


def without_an_icon_and_paused_it_sleeps():
    with Vellumry() as program:
        remember("one")
        run(PROGRAM, "--action", "pause")
        falls_asleep(program, "without an icon, paused")


if __name__ == "__main__":
    main(own_tests())
