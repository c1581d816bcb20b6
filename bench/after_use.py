# SPDX-License-Identifier: GPL-3.0-or-later
"""What use leaves in memory, with 5,000 clips: the panel opened, settings and menu once, and the newest 60 clips looked at one after the
other (pictures of 1920 x 1080, long texts and links, added on top). Each time while in use, as the window goes, a second later and 20 s later. PSS is
of the program and its helpers, anonymous memory is what the program itself has written to. Pages of libraries that other processes use
too count in part, so other sessions on the machine lower the PSS. Run inside scripts/headless-session. Prints a table; nothing here
passes or fails.
"""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from at_rest import CLIPS, Owner, OursAtRest  # noqa: E402

from machine import anonymous_megabytes, described, process_tree, pss_megabytes  # noqa: E402

from desktop import copy_bytes, copy_text, key, run, wait_until  # noqa: E402
from tray import Watcher  # noqa: E402

PICTURES = 12
LOOKED_AT = 60
LIMITS = {"panel, 1 s later": 40, "settings and menu, 20 s later": 30, "previews, 1 s later": 45}


def row(tool, what, most=None):
    pss = pss_megabytes(process_tree(tool.process.pid)) if most is None else most
    limit = LIMITS.get(what, "")
    print(f"{what:34} {pss:8.1f} {anonymous_megabytes(tool.process.pid):10.1f} {limit:>6}", flush=True)


def rows_behind(tool, owner, what):
    row(tool, f"{what}, at once")
    owner.serve(1.0)
    row(tool, f"{what}, 1 s later")
    owner.serve(19.0)
    row(tool, f"{what}, 20 s later")


def settle(tool):
    """Until no picture is being read any more."""
    asking = ["pgrep", "-P", str(tool.process.pid), "-f", "vellumry-reader"]
    reading = lambda: subprocess.run(asking, stdout=subprocess.DEVNULL).returncode == 0
    wait_until(lambda: not reading(), "the reader to leave", 300)


def add_large_clips(tool):
    def put(copy, *content):
        """One after the other: a copy that is overtaken is none."""
        before = tool.count()
        copy(*content)
        wait_until(lambda: tool.count() > before, "the copy")

    for number in range(PICTURES):
        colours = f"gradient:#{number * 7919 % 0xFFF:03x}-#{number * 104729 % 0xFFF:03x}"
        put(copy_bytes, run("convert", "-size", "1920x1080", colours, "png:-", timeout=60), "image/png")
        put(copy_text, f"https://example.org/page/{number}")
        put(copy_text, f"line of a longer text {number}\n" * 2_000)
    settle(tool)


def look_at_previews(tool, owner):
    tool.show_panel()
    most = 0.0
    for _ in range(LOOKED_AT):
        key("Down")
        time.sleep(0.05)
        most = max(most, pss_megabytes(process_tree(tool.process.pid)))
    row(tool, "previews, most in use", most)
    tool.hide()
    rows_behind(tool, owner, "previews")


def main():
    tool, owner = OursAtRest(), Owner()
    tool.start()
    tool.wait_ready()
    tool.fill(owner, CLIPS, True)
    print(f"{described()}; {tool.count()} clips")
    print(f"{'':34} {'PSS, MB':>8} {'anonymous':>10} {'limit':>6}")
    with Watcher() as watcher:
        owner.serve(20.0)
        row(tool, "20 s after the start")
        tool.show_panel()
        row(tool, "panel, in use")
        tool.hide()
        rows_behind(tool, owner, "panel")
        tool.show_panel()
        tool.hide()
        tool.use_settings()
        tool.use_menu(watcher)
        rows_behind(tool, owner, "settings and menu")
        add_large_clips(tool)
        for _ in range(2):
            look_at_previews(tool, owner)
    tool.stop()


if __name__ == "__main__":
    main()
