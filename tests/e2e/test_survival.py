# SPDX-License-Identifier: GPL-3.0-or-later
"""Killed, stopped, without its window manager for a moment, under other keyboard layouts: nothing is lost and all goes on."""

import os
import random
import signal
import sqlite3
import time

from clients import FeatherPad, Mousepad
from desktop import (HISTORY, Failure, Vellumry, accessible, clipboard, copy_text, key, main, open_panel, own_tests, panel_is_open,
                     run, same, wait_panel_closed, wait_same, wait_until)
from history_probe import HistoryProbe, ids, integrity
from physical_keys import PhysicalKeys
from settings_file import forget_settings, write_settings

CARD = "4111 1111 1111 1111"
LIVES = 25


def nothing_seen_in_the_file_is_lost_by_a_kill():
    chance = random.Random(23)
    seen = set()
    for life in range(LIVES):
        program = Vellumry()
        try:
            same(seen - set(ids()), set(), f"clips missing in life {life}")
            for index in range(chance.randrange(1, 6)):
                copy_text(f"life {life} copy {index}")
                seen |= set(ids())
                time.sleep(chance.random() * 0.2)  # the instant of the kill is to fall anywhere
            seen |= set(ids())
        finally:
            program.stop(signal.SIGKILL)
        same(integrity(), "ok", f"the file after life {life}")
    with Vellumry():
        probe = HistoryProbe()
        same(seen - set(ids()), set(), "clips missing at the end")
        same([row for row in probe.rows() if "error" in row], [], "rows that do not open")
        if len(seen) < LIVES:
            raise Failure(f"only {len(seen)} clips were ever seen; the test proved little")
        probe.copy_is_prompt("after all lives")


def stopped_and_continued():
    with Vellumry() as program:
        probe = HistoryProbe()
        probe.copy_is_prompt("before the stop")
        os.kill(program.pid, signal.SIGSTOP)
        for text in ("during the stop, replaced", "during the stop"):
            copy_text(text)
            same(clipboard(), text.encode(), "the clipboard of a desktop that goes on")
        os.kill(program.pid, signal.SIGCONT)
        probe.wait_for("during the stop")
        probe.copy_is_prompt("after the stop")
        same(probe.texts(), ["after the stop", "during the stop", "before the stop"], "the history")


def with_ten_seconds_for_secrets():
    write_settings("sensitiveSeconds=10")


def sealed_marks():
    """What of the newest row can be recognised in the bytes of the file."""
    connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True)
    try:
        row = connection.execute("SELECT id, fingerprint, meta, payload FROM clips ORDER BY used DESC LIMIT 1").fetchone()
        return [value.encode() if isinstance(value, str) else value for value in row]
    finally:
        connection.close()


def marks_on_disk(marks):
    found = []
    for suffix in ("", "-wal"):
        if os.path.exists(HISTORY + suffix):
            with open(HISTORY + suffix, "rb") as file:
                content = file.read()
            found += [mark for mark in marks if mark in content]
    return found


def rows_in_panel():
    if not panel_is_open():
        open_panel()
    return accessible("vellumry", "list item")


def copy_a_card(probe):
    """The instant before the copy, and what it left in the file."""
    began = time.monotonic()
    copy_text(CARD)
    row = probe.wait_for(CARD)
    if row["expires"] is None or not 9.5 < row["expires"] - row["created"] < 10.5:
        raise Failure(f"the card is to live ten seconds, not from {row['created']} to {row['expires']}")
    marks = sealed_marks()
    same(len(marks_on_disk(marks)) >= len(marks), True, "its sealed record is in the file")
    return began, marks


def gone_from_everywhere(marks):
    wait_until(lambda: not ids(), "the row to go", 3)
    wait_until(lambda: not marks_on_disk(marks), "its bytes to leave the file and its log", 3)
    wait_until(lambda: not rows_in_panel(), "the panel without it", 3)


def a_card_number_deletes_itself():
    with_ten_seconds_for_secrets()
    try:
        with Vellumry():
            probe = HistoryProbe()
            began, marks = copy_a_card(probe)
            wait_until(rows_in_panel, "the card in the panel")
            wait_until(lambda: time.monotonic() > began + 9, "nine seconds", 12)
            same(len(ids()), 1, "it lives for nine seconds")
            wait_until(lambda: time.monotonic() > began + 10.5, "its time", 12)
            gone_from_everywhere(marks)
    finally:
        forget_settings()


def a_card_number_deletes_itself_after_a_stop_past_its_time():
    with_ten_seconds_for_secrets()
    try:
        with Vellumry() as program:
            began, marks = copy_a_card(HistoryProbe())
            os.kill(program.pid, signal.SIGSTOP)
            wait_until(lambda: time.monotonic() > began + 11, "its time to pass", 13)
            same(len(ids()), 1, "a stopped program deletes nothing")
            os.kill(program.pid, signal.SIGCONT)
            gone_from_everywhere(marks)
    finally:
        forget_settings()


def a_card_number_is_gone_after_a_kill_past_its_time():
    with_ten_seconds_for_secrets()
    try:
        with Vellumry() as program:
            began, marks = copy_a_card(HistoryProbe())
            program.stop(signal.SIGKILL)
        wait_until(lambda: time.monotonic() > began + 10.5, "its time to pass", 13)
        with Vellumry():
            gone_from_everywhere(marks)
    finally:
        forget_settings()


def restart_the_window_manager():
    run("xprop", "-root", "-remove", "_NET_SUPPORTING_WM_CHECK")
    run("openbox", "--restart")
    wait_until(lambda: b"window id" in run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager again")


def the_shortcut_outlives_the_window_manager():
    with Vellumry(), Mousepad() as editor:
        probe = HistoryProbe()
        probe.copy_is_prompt("pasted after the restart")
        restart_the_window_manager()
        probe.copy_is_prompt("copied after the restart")
        paste_second_row(editor, "pasted after the restart")


def paste_second_row(editor, text):
    open_panel()
    key("Down")
    key("Return")
    wait_panel_closed()
    wait_same(editor.content, text, "the paste in the editor")


def press_until_open(keys):
    """The layout is news to the program for a moment, in which it may miss the keys; then it has to obey."""
    for _ in range(3):
        keys.press("super", "control", "v")
        try:
            return wait_until(panel_is_open, "the panel", 1)
        except Failure:
            continue
    raise Failure("the shortcut is dead")


def the_shortcut_and_the_paste_follow_the_layout():
    with Vellumry(), FeatherPad() as editor:
        probe = HistoryProbe()
        try:
            for layout in ("de", "us -variant dvorak", "ru,us", "us"):
                run("setxkbmap", *layout.split())
                key("ctrl+a")
                key("Delete")
                wait_until(lambda: not editor.content(), "an empty editor")
                probe.copy_is_prompt("pasted under " + layout)
                keys = PhysicalKeys()
                press_until_open(keys)
                keys.press("return")
                wait_panel_closed()
                wait_same(editor.content, "pasted under " + layout, "the paste under " + layout)
                keys.close()
        finally:
            run("setxkbmap", "us")


if __name__ == "__main__":
    main(own_tests())
