# SPDX-License-Identifier: GPL-3.0-or-later
"""What the built program costs at rest, beside CopyQ, with 5,000 clips and an icon in a tray: processor time and wake-ups in
60 s, and the memory 20 s after panel, settings and menu were used once. Run inside scripts/headless-session. Prints a table; nothing
here passes or fails.
"""

import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

from side_by_side import CLIPS, Owner, press_shortcut  # noqa: E402

from machine import process_tree, pss_megabytes, schedstat_seconds, switches, tasks  # noqa: E402
from peers import CopyQ, Ours  # noqa: E402

from desktop import QUIET, key, run, wait_until, windows  # noqa: E402
from tray import Watcher  # noqa: E402

IDLE_SECONDS = int(os.environ.get("VELLUMRY_BENCH_IDLE", "60"))
SETTLING_SECONDS = 30


class OursAtRest(Ours):
    def show_panel(self):
        press_shortcut()
        wait_until(lambda: windows("^Vellumry$"), "the panel")

    def use_settings(self):
        run(os.environ.get("VELLUMRY", self.process.handle.args[0]), "--action", "open-settings")
        window = wait_until(lambda: windows("^Vellumry Settings$"), "the settings")[0]
        run("wmctrl", "-i", "-c", str(int(window)))
        wait_until(lambda: not windows("^Vellumry Settings$"), "the settings to close")

    def use_menu(self, watcher):
        watcher.item().open()


class CopyQAtRest(CopyQ):
    def show_panel(self):
        press_shortcut()
        wait_until(lambda: self.ask("visible") == "true", "its window")

    def use_settings(self):
        self.show_panel()
        key("ctrl+p")
        wait_until(lambda: windows("Preferences"), "its settings")
        key("Escape")
        wait_until(lambda: not windows("Preferences"), "its settings to close")
        self.hide()

    def use_menu(self, _watcher):
        self.ask("menu")
        key("Escape")


def name_of(task):
    with open(f"{task}/comm", encoding="utf-8") as file:
        return file.read().strip()


def rest(tool, owner, figures):
    pids = process_tree(tool.process.pid)
    before, cpu = switches(pids), schedstat_seconds(pids)
    owner.serve(IDLE_SECONDS)
    pids = process_tree(tool.process.pid)
    woken = {task: count - before.get(task, 0) for task, count in switches(pids).items()}
    figures[f"processor time in {IDLE_SECONDS} s of rest, ms"] = (schedstat_seconds(pids) - cpu) * 1000
    figures[f"wake-ups in {IDLE_SECONDS} s of rest"] = sum(woken.values())
    figures["threads"] = len(list(tasks(pids)))
    return ", ".join(f"{name_of(task)} {count}" for task, count in sorted(woken.items(), key=lambda each: -each[1]) if count > 0)


def measure(tool):
    figures = {}
    owner = Owner()
    with Watcher() as watcher:
        tool.start()
        tool.wait_ready()
        tool.fill(owner, CLIPS)
        figures["clips"] = tool.count()
        tool.show_panel()
        tool.hide()
        owner.serve(SETTLING_SECONDS)
        threads = rest(tool, owner, figures)
        tool.show_panel()
        tool.hide()
        tool.use_settings()
        tool.use_menu(watcher)
        figures["memory just after use (PSS), MB"] = pss_megabytes(process_tree(tool.process.pid))
        owner.serve(20.0)
        figures["memory 20 s later (PSS), MB"] = pss_megabytes(process_tree(tool.process.pid))
        tool.stop()
    return figures, threads


def main():
    tools = [OursAtRest()]
    if subprocess.run(["which", "copyq"], **QUIET).returncode == 0 and "--alone" not in sys.argv:
        tools.append(CopyQAtRest())
    results = [measure(tool) for tool in tools]
    width = max(len(name) for name in results[0][0])
    print(f"{'':{width}}  " + "  ".join(f"{tool.name:>10}" for tool in tools))
    for name in results[0][0]:
        print(f"{name:{width}}  " + "  ".join(f"{figures.get(name, float('nan')):10.1f}" for figures, _ in results))
    for tool, (_, threads) in zip(tools, results):
        print(f"woken in {tool.name}: {threads or 'nothing'}")
    print(f"load: {os.getloadavg()[0]:.1f}")


if __name__ == "__main__":
    main()
