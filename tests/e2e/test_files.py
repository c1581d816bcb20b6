# SPDX-License-Identifier: GPL-3.0-or-later
"""Damaged, foreign and unwritable history files, a disk that is full for a while, and a home that cannot be written at all."""

import ctypes
import glob
import os
import sqlite3
import subprocess

from desktop import (DATA, HISTORY, PROGRAM, QUIET, SETTINGS, Vellumry, accessible, copy_text, focus, forgo_greeting, key, main,
                     open_panel, own_tests, panel_is_open, picture, run, same, wait_panel_closed, wait_same, wait_until, windows)
from history_probe import HistoryProbe, integrity

NEW_MOUNT_NAMESPACE = 0x00020000
NEW_USER_NAMESPACE = 0x10000000
HOME = os.environ["HOME"]
DISK_SIZE = 8 * 1024 * 1024


def keep_a_history(count):
    with Vellumry():
        probe = HistoryProbe()
        for index in range(count):
            probe.copy_is_prompt(f"kept before {index}")
    # What is in the log only would be lost with the log; the damage is meant to be done to the whole.
    sqlite3.connect(HISTORY).execute("PRAGMA wal_checkpoint(TRUNCATE)").close()


def put_aside():
    return glob.glob(DATA + "/History-unreadable-*.sqlite")


def read(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, content):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(content)


def starts_afresh(damaged):
    """The damaged file is a backup now, the user is told, and a new history is kept."""
    # A backup's name has seconds: one of the test before, dismissed in this very second, would be the same.
    if os.path.exists(SETTINGS):
        os.remove(SETTINGS)
    with Vellumry() as program:
        wait_until(lambda: windows("^Vellumry$"), "the alert")
        same([read(path) for path in put_aside()] == [damaged], True, "the damaged file is put aside as it was")
        HistoryProbe().copy_is_prompt("in the new history")
        same((program.alive(), integrity()), (True, "ok"), "the new history")


def starts_quietly():
    with Vellumry() as program:
        probe = HistoryProbe()
        probe.copy_is_prompt("in the history")
        same(put_aside(), [], "files put aside")
        same(windows("^Vellumry$"), [], "alerts")
        same((program.alive(), integrity()), (True, "ok"), "the history")


def a_file_cut_in_half():
    keep_a_history(12)
    whole = read(HISTORY)
    write(HISTORY, whole[:len(whole) // 2])
    starts_afresh(whole[:len(whole) // 2])


def a_file_with_a_page_of_noise():
    keep_a_history(12)
    whole = bytearray(read(HISTORY))
    whole[4096:8192] = bytes(range(256)) * 16
    write(HISTORY, bytes(whole))
    starts_afresh(bytes(whole))


def a_foreign_file_with_a_table_of_that_name():
    os.makedirs(DATA, exist_ok=True)
    connection = sqlite3.connect(HISTORY)
    connection.execute("CREATE TABLE clips (name TEXT)")
    connection.execute("INSERT INTO clips VALUES ('of another program')")
    connection.commit()
    connection.close()
    starts_afresh(read(HISTORY))


def a_foreign_file_without_such_a_table():
    os.makedirs(DATA, exist_ok=True)
    connection = sqlite3.connect(HISTORY)
    connection.execute("CREATE TABLE notes (name TEXT)")
    connection.execute("INSERT INTO notes VALUES ('of another program')")
    connection.commit()
    connection.close()
    starts_quietly()
    connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True)
    same(connection.execute("SELECT name FROM notes").fetchall(), [("of another program",)], "the foreign table")
    connection.close()


def an_empty_file():
    write(HISTORY, b"")
    starts_quietly()


def a_log_of_noise():
    keep_a_history(3)
    write(HISTORY + "-wal", bytes(range(256)) * 64)
    with Vellumry():
        probe = HistoryProbe()
        same(probe.texts(), [f"kept before {index}" for index in (2, 1, 0)], "the history")
        probe.copy_is_prompt("after it")


def in_a_mount_namespace():
    """Mounts made from here on are this process's and its children's alone."""
    wanted = NEW_MOUNT_NAMESPACE
    user, group = os.getuid(), os.getgid()
    if user != 0:
        wanted |= NEW_USER_NAMESPACE
    if ctypes.CDLL(None, use_errno=True).unshare(wanted) != 0:
        raise OSError(ctypes.get_errno(), "no mount namespace of its own")
    if user != 0:
        for name, content in (("setgroups", "deny"), ("uid_map", f"0 {user} 1"), ("gid_map", f"0 {group} 1")):
            with open("/proc/self/" + name, "w", encoding="ascii") as file:
                file.write(content)
    run("mount", "--make-rprivate", "/")


class SmallDisk:
    """A disk of a few megabytes where the history lies, or elsewhere."""

    def __init__(self, folder=DATA):
        self.folder = folder

    def __enter__(self):
        os.makedirs(self.folder, exist_ok=True)
        run("mount", "-t", "tmpfs", "-o", f"size={DISK_SIZE}", "none", self.folder)
        return self

    def __exit__(self, *_):
        run("umount", "--lazy", self.folder)

    def fill(self):
        with open(os.path.join(self.folder, "ballast"), "ab", buffering=0) as file:
            try:
                while True:
                    file.write(bytes(4096))
            except OSError:
                pass
        same(os.statvfs(self.folder).f_bavail, 0, "blocks left")

    def empty(self):
        os.remove(os.path.join(self.folder, "ballast"))


class ReadOnly:
    """A folder, and all in it, that nobody can write for a while."""

    def __init__(self, folder):
        self.folder = folder

    def __enter__(self):
        run("mount", "--bind", self.folder, self.folder)
        run("mount", "-o", "remount,bind,ro", self.folder)

    def __exit__(self, *_):
        run("umount", "--lazy", self.folder)


def shown(text):
    if not panel_is_open():
        open_panel()
    return accessible("vellumry", "list item", text)


def close_panel():
    key("Escape")
    wait_panel_closed()


def a_full_disk():
    with SmallDisk() as disk, Vellumry() as program:
        probe = HistoryProbe()
        older = ["older first", "older second"]
        for text in older:
            probe.copy_is_prompt(text)
        disk.fill()
        late = "copied for want of space " * 20_000
        copy_text(late)
        wait_until(lambda: shown("copied for want"), "the copy in the panel")
        close_panel()
        same(probe.texts(), older[::-1], "the history on a full disk")
        disk.empty()
        everything = [late] + older[::-1]
        wait_same(probe.texts, everything, "the copy in the file once there is room", 60)
        same((program.alive(), integrity()), (True, "ok"), "the history")
        program.stop()
        with Vellumry():
            same(HistoryProbe().texts(), everything, "the history after a restart")


def a_disk_full_from_the_start():
    with SmallDisk() as disk:
        disk.fill()
        with Vellumry():
            memory_only("full-disk")
            same(os.path.exists(HISTORY) and os.path.getsize(HISTORY) > 0, False, "a history on a full disk")
        disk.empty()
        starts_quietly()


def a_history_on_a_disk_that_is_full_at_the_next_start():
    with SmallDisk() as disk:
        with Vellumry():
            HistoryProbe().copy_is_prompt("kept before")
        disk.fill()
        with Vellumry():
            memory_only("full-disk-later")
            same(glob.glob(DATA + "/History-unreadable-*"), [], "what was put aside")
            disk.empty()
            wait_same(lambda: HistoryProbe().texts(), ["held in memory", "kept before"], "both in the file", 120)
        with Vellumry():
            same(HistoryProbe().texts(), ["held in memory", "kept before"], "the history after a restart")


def memory_only(name):
    wait_until(lambda: windows("^Vellumry$"), "the alert")
    picture(name)
    subprocess.run(["xdotool", "windowactivate", "--sync", windows("^Vellumry$")[0]], **QUIET)
    key("Return")
    wait_until(lambda: not windows("^Vellumry$"), "the alert to go")
    copy_text("held in memory")
    wait_until(lambda: shown("held in memory"), "the copy in the panel")
    close_panel()


def a_folder_that_cannot_be_written():
    keep_a_history(2)
    before = {path: read(path) for path in glob.glob(DATA + "/*")}
    with ReadOnly(DATA):
        with Vellumry():
            memory_only("read-only")
        same({path: read(path) for path in glob.glob(DATA + "/*")} == before, True, "the files are as they were")
    with Vellumry():
        same(HistoryProbe().texts(), ["kept before 1", "kept before 0"], "the history when it can be written again")


def shown_in(window, role, name):
    focus(wait_until(lambda: windows(window), window)[0])
    return wait_until(lambda: accessible("vellumry", role, name), f"{role} {name!r}")


def turns_a_switch():
    """A setting counts until the program ends, whether it can be written or not."""
    import pyatspi

    def is_on():
        node = accessible("vellumry", "check box", name)
        return node is not None and node.getState().contains(pyatspi.STATE_CHECKED)

    name = "Sound when pasting"
    run(PROGRAM, "--action", "open-settings")
    switch = shown_in("^Vellumry Settings$", "check box", name)
    same(is_on(), False, "the switch at first")
    switch.queryAction().doAction(0)
    wait_until(is_on, "the switch")
    key("Escape")
    wait_until(lambda: not windows("^Vellumry Settings$"), "the settings to close")


def kept_now():
    """The texts of a file that may be being made."""
    try:
        return HistoryProbe().texts()
    except sqlite3.OperationalError:
        return []


def a_home_on_a_disk_that_is_full():
    with SmallDisk(HOME) as disk:
        forgo_greeting()
        disk.fill()
        with Vellumry() as program:
            memory_only("full-home")
            turns_a_switch()
            disk.empty()
            wait_same(kept_now, ["held in memory"], "the copy in the file once there is room", 120)
            same(program.alive(), True, "the program")


def a_home_that_cannot_be_written():
    forgo_greeting()
    with ReadOnly(HOME), Vellumry() as program:
        memory_only("read-only-home")
        turns_a_switch()
        same(program.alive(), True, "the program")


def the_first_run_in_a_home_that_cannot_be_written():
    """It ends as elsewhere, and comes again at the next start, as nothing could be noted."""
    if os.path.exists(SETTINGS):
        os.remove(SETTINGS)
    with ReadOnly(HOME):
        for _ in range(2):
            with Vellumry(greeted=False) as program:
                wait_until(lambda: windows("^Vellumry$"), "the alert")
                shown_in("^Vellumry$", "dialog", None)
                key("Return")
                wait_until(lambda: not windows("^Vellumry$"), "the alert to go")
                shown_in("^Welcome to Vellumry$", "heading", "Welcome to Vellumry")
                key("ctrl+w")
                wait_until(lambda: not windows("^Welcome to Vellumry$"), "the first run to close")
                copy_text("behind the first run")
                wait_until(lambda: shown("behind the first run"), "the copy in the panel")
                close_panel()
                same(program.alive(), True, "the program")


if __name__ == "__main__":
    in_a_mount_namespace()
    main(own_tests())
