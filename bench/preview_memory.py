# SPDX-License-Identifier: GPL-3.0-or-later
"""What previews leave in memory: 5,000 clips, and on top of them pictures of 1920 x 1080, long texts, code and links. The panel is opened, the
newest clips are looked at one after the other, and it is closed. Run inside scripts/headless-session. Prints figures; nothing here
passes or fails.
"""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from at_rest import CLIPS, Owner, OursAtRest, name_of  # noqa: E402

from machine import process_tree, pss_megabytes  # noqa: E402

from desktop import copy_bytes, copy_text, key, run, wait_until  # noqa: E402

PICTURES = 12
LOOKED_AT = 60
LIMIT = 45


def settle(tool):
    """Until no picture is being read any more."""
    asking = ["pgrep", "-P", str(tool.process.pid), "-f", "vellumry-reader"]
    reading = lambda: subprocess.run(asking, stdout=subprocess.DEVNULL).returncode == 0
    wait_until(lambda: not reading(), "the reader to leave", 300)


def fill(tool, owner):
    tool.fill(owner, CLIPS)

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


def main():
    tool, owner = OursAtRest(), Owner()
    tool.start()
    tool.wait_ready()
    fill(tool, owner)
    settle(tool)
    memory = lambda: pss_megabytes(process_tree(tool.process.pid))
    print(f"clips: {tool.count()}, load {os.getloadavg()[0]:.1f}")
    print(f"before, MB: {memory():.1f}")
    parts = lambda: ", ".join(f"{name_of(f'/proc/{pid}')} {pss_megabytes([pid]):.1f}" for pid in process_tree(tool.process.pid))
    for round_ in range(3):
        tool.show_panel()
        most = 0.0
        for _ in range(LOOKED_AT):
            key("Down")
            time.sleep(0.05)
            most = max(most, memory())
        tool.hide()
        used = f"{memory():.1f} ({parts()})"
        owner.serve(20.0)
        print(f"use {round_ + 1}: while {LOOKED_AT} clips were looked at at most {most:.1f} MB, just after {used} (limit {LIMIT}), "
              f"20 s later {memory():.1f}")
    tool.stop()


if __name__ == "__main__":
    main()
