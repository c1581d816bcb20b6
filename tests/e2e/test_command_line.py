# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program says without its panel: the command line, the status, the log, and how it ends when it is told to."""

import os
import re
import signal
import subprocess
import tempfile

from desktop import (DATA, HISTORY, PROGRAM, ROOT, Vellumry, accessible, copy_text, key, main, open_panel, own_tests, run, same, text_of,
                     wait_for_clip, wait_panel_closed, wait_until)

CANARY = "canary7319"


def vellumry(*arguments, environment=None):
    return subprocess.run([PROGRAM, *arguments], stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60, env=environment)


def status(environment=None):
    done = vellumry("--status", environment=environment)
    same(done.returncode, 0, "the status's exit code")
    return done.stdout.decode("utf-8").splitlines()


def without(*names, **others):
    """Our environment without some variables and with others."""
    environment = {name: value for name, value in os.environ.items() if name not in names}
    environment.update(others)
    return environment


def version_and_help_are_printed_without_a_display():
    bare = without("DISPLAY", "DBUS_SESSION_BUS_ADDRESS")
    done = vellumry("--version", environment=bare)
    same((done.returncode, done.stdout.startswith(b"Vellumry "), done.stderr), (0, True, b""), "--version")
    done = vellumry("--help", environment=bare)
    same((done.returncode, b"--status" in done.stdout, done.stdout[-1:], done.stderr), (0, True, b"\n", b""), "--help")


def the_manual_has_every_option_and_action():
    told = " ".join(vellumry("--help").stdout.decode().split())
    with open(os.path.join(ROOT, "packaging", "vellumry.1"), encoding="utf-8") as file:
        manual = file.read()
    options = re.findall(r" --([a-z]+)", told)
    actions = re.split(r",? or |, | to ", re.search(r"Ask the running program for (.+?)\.", told).group(1))
    same((len(options), len(actions)), (5, 10), "options and actions of the help")
    same([option for option in options if f"Fl -{option}" not in manual], [], "options that the manual lacks")
    same([action for action in actions if f".Cm {action}" not in manual], [], "actions that the manual lacks")


def what_is_not_understood_ends_with_the_usage():
    for argument in ("--nonsense", "file.txt"):
        done = vellumry(argument)
        same((done.returncode, done.stdout, b"Usage:" in done.stderr), (2, b"", True), argument)


def the_status_tells_of_the_session_when_nothing_runs():
    lines = status()
    same(lines[0].endswith(", not running"), True, lines[0])
    for line in ("found: XTest", "found: keyring (a Secret Service runs)", "history: no file"):
        same(line in lines, True, f"{line!r} in {lines}")


def the_status_needs_neither_display_nor_bus():
    lines = status(without("DISPLAY", DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere"))
    for line in ("missing: X11 display (DISPLAY is not set)", "missing: keyring (no session bus: the history is in memory only)"):
        same(line in lines, True, f"{line!r} in {lines}")


def the_status_of_the_running_program_counts_and_never_quotes():
    with Vellumry() as program:
        copy_text(CANARY)
        wait_for_clip(lambda row: text_of(row) == CANARY, "the copy")
        lines = status()
        same(lines[0].endswith(f", running as process {program.pid}"), True, lines[0])
        same("shortcuts: ours" in lines, True, str(lines))
        same("capture: on, screenshots are not saved" in lines, True, str(lines))
        same(any(line.startswith("session: ") and "desktop X-Generic, type x11" in line for line in lines), True, str(lines))
        same(len(set(line.split(" (")[0] for line in lines)), len(lines), f"no line twice: {lines}")
        same("displays: 1920x1080 at 100 %" in lines, True, str(lines))
        history = next(line for line in lines if line.startswith("history: "))
        same(history.startswith("history: clips 1, pinned 0, sensitive 0, kept in the encrypted file, bytes on disk "), True, history)
        same(CANARY in "\n".join(lines), False, "the copy in the status")


def only_problems_are_written_unless_more_is_asked_for():
    with tempfile.TemporaryFile() as log:
        with Vellumry(stderr=log):
            copy_text("a copy")
            wait_for_clip(lambda row: text_of(row) == "a copy", "the copy")
        log.seek(0)
        same([line for line in log.read().decode().splitlines() if "vellumry." in line], [], "the log of an ordinary run")


def a_signal_to_end_closes_the_history():
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        with Vellumry() as program:
            copy_text(f"before signal {number}")
            wait_for_clip(lambda row: text_of(row) == f"before signal {number}", "the copy")
            same(os.path.exists(HISTORY + "-wal"), True, "a log while it runs")
            os.kill(program.pid, number)
            program.handle.wait(60)
            same(program.handle.returncode, 0, "its status")
        same(sorted(os.listdir(DATA)), ["History.sqlite"], "the folder")
        same(run("sqlite3", HISTORY, "PRAGMA integrity_check").strip(), b"ok", "the file")


def without_a_display_the_user_is_told_and_nothing_is_touched():
    done = vellumry(environment=without("DISPLAY", WAYLAND_DISPLAY="wayland-0", XDG_SESSION_TYPE="wayland"))
    same(done.returncode, 1, "the status")
    same(b"Vellumry can't start in this session" in done.stderr, True, done.stderr.decode())
    same(b"Xwayland" in done.stderr, True, done.stderr.decode())
    same(os.path.exists(DATA), False, "a history folder")


def a_start_with_options_is_found_by_assistive_technology():
    """A session manager starts the program with an option of its own."""
    with Vellumry("--session", "1"):
        copy_text("a row")
        wait_for_clip(lambda row: text_of(row) == "a row", "the copy")
        open_panel()
        wait_until(lambda: accessible("vellumry", "list item", "^a row$"), "the row in the accessibility tree")
        key("Escape")
        wait_panel_closed()


def an_action_reaches_the_running_program_alone():
    done = vellumry("--action", "open-panel")
    same((done.returncode, b"does not run" in done.stderr), (1, True), "an action for nobody")
    with Vellumry():
        same(vellumry("--action", "open-panel").returncode, 0, "the action")
        wait_until(lambda: run("xdotool", "search", "--onlyvisible", "--name", "^Vellumry$"), "the panel")
        key("Escape")
        wait_panel_closed()


if __name__ == "__main__":
    main(own_tests())
