# SPDX-License-Identifier: GPL-3.0-or-later
"""Starting, starting twice, being killed, and starting without what the program needs."""

import glob
import os
import random
import signal
import subprocess
import time

from desktop import (DATA, HISTORY, PROGRAM, QUIET, SETTINGS, Failure, Vellumry, accessible, copy_text, focus, key, main,
                     open_panel, own_tests, picture, run, same, text_of, unsealed, wait_for_clip, wait_until, windows)


def a_second_start_ends_silently():
    with Vellumry() as program:
        copy_text("kept by the first")
        wait_for_clip(lambda row: text_of(row) == "kept by the first", "the copy")
        second = subprocess.run([PROGRAM], stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=20)
        same(second.returncode, 0, "the second start's status")
        same(second.stdout + second.stderr, b"", "what the second start says")
        same(program.alive(), True, "the first runs on")
        same(len(unsealed()), 1, "clips")


def what_was_there_before_is_no_copy():
    copy_text("copied before the start")
    with Vellumry():
        copy_text("copied after the start")
        wait_for_clip(lambda row: text_of(row) == "copied after the start", "the copy")
        same(len(unsealed()), 1, "clips")


def a_random_file_is_put_aside():
    os.makedirs(DATA, exist_ok=True)
    damaged = random.Random(7).randbytes(20_000)
    with open(HISTORY, "wb") as file:
        file.write(damaged)
    with Vellumry():
        wait_until(lambda: windows("^Vellumry$"), "the alert")
        picture("fresh-history")
        aside = [path for path in glob.glob(DATA + "/History-unreadable-*.sqlite")]
        same(len(aside), 1, "files put aside")
        with open(aside[0], "rb") as file:
            same(file.read(), damaged, "the file put aside")
        copy_text("in the new history")
        wait_for_clip(lambda row: text_of(row) == "in the new history", "the copy")


def an_alert_that_nobody_answered_comes_again():
    os.makedirs(DATA, exist_ok=True)
    with open(HISTORY, "wb") as file:
        file.write(random.Random(8).randbytes(20_000))
    for how in (lambda program: program.stop(signal.SIGTERM), lambda program: run(PROGRAM, "--action", "quit")):
        with Vellumry() as program:
            wait_until(lambda: windows("^Vellumry$"), "the alert")
            how(program)
            wait_until(lambda: not program.alive(), "the program's end")
    with Vellumry():
        window = wait_until(lambda: windows("^Vellumry$"), "the alert once more")[0]
        focus(window)
        key("Return")
        wait_until(lambda: not windows("^Vellumry$"), "the alert to close")
    with open(SETTINGS, encoding="utf-8") as file:
        same("dismissedBackups=" in file.read(), True, "the answer is kept")


def a_history_of_another_key_is_put_aside():
    with Vellumry():
        copy_text("sealed with the first key")
        wait_for_clip(lambda row: text_of(row) == "sealed with the first key", "the copy")
    subprocess.run(["secret-tool", "clear", "service", "com.vellumry.Vellumry.history"], check=True, **QUIET)
    with Vellumry():
        same(len(glob.glob(DATA + "/History-unreadable-*.sqlite")), 1, "files put aside")
        copy_text("sealed with the second key")
        wait_for_clip(lambda row: text_of(row) == "sealed with the second key", "the copy")


def every_copy_ever_kept_survives_a_kill():
    chance = random.Random(11)
    kept = set()
    for life in range(6):
        program = Vellumry()
        known = {row["id"] for row in unsealed()}
        same(kept - known, set(), f"clips missing after kill {life}")
        for index in range(chance.randrange(2, 9)):
            copy_text(f"life {life} copy {index}")
            time.sleep(chance.random() * 0.04)  # the instant of the kill is to fall anywhere
            if chance.random() < 0.5:
                kept |= {row["id"] for row in unsealed()}
        kept |= {row["id"] for row in unsealed()}
        program.stop(signal.SIGKILL)
        same(run("sqlite3", HISTORY, "PRAGMA integrity_check").strip(), b"ok", "the file after a kill")
    with Vellumry():
        same(kept - {row["id"] for row in unsealed()}, set(), "clips missing at the end")
        if len(kept) < 10:
            raise Failure(f"only {len(kept)} clips were ever seen; the test proved little")


def a_folder_that_cannot_be_used_means_memory_only():
    os.makedirs(os.path.dirname(DATA), exist_ok=True)
    with open(DATA, "w", encoding="utf-8") as file:
        file.write("in the way")
    try:
        with Vellumry():
            wait_until(lambda: windows("^Vellumry$"), "the alert")
            picture("memory-only")
            run("xdotool", "key", "Return")
            wait_until(lambda: not windows("^Vellumry$"), "the alert to go")
            copy_text("held in memory")
            wait_until(lambda: shown("held in memory"), "the copy in the panel")
            key("Escape")
    finally:
        os.remove(DATA)


def shown(text):
    if not windows("^Vellumry$"):
        open_panel()
    return accessible("vellumry", "list item", text)


if __name__ == "__main__":
    main(own_tests())
