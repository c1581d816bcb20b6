# SPDX-License-Identifier: GPL-3.0-or-later
"""Settings written by hand while the program runs, values that cannot be used, what a start tells, and the actions from outside."""

import os
import subprocess
import tempfile

from clients import ShortcutHolder
from desktop import (PROGRAM, SETTINGS, Vellumry, accessible, copy_text, fresh, key, main, open_panel, panel_is_open, remember,
                     same, text_of, unsealed, wait_panel_closed, wait_until, windows)
from settings_file import forget_settings, write_settings

MESSAGE = "^Vellumry message$"


def message():
    """The words of the message that shows, or None."""
    if not windows(MESSAGE):
        return None
    found = accessible("vellumry", "notification")
    return found.name if found else None


def told(part):
    wait_until(lambda: part in (message() or ""), f"a message with {part!r}", 60)


def act(action):
    same(subprocess.run([PROGRAM, "--action", action], timeout=60).returncode, 0, action)


def status():
    return subprocess.run([PROGRAM, "--status"], stdout=subprocess.PIPE, timeout=60).stdout.decode()


def clear_button():
    return accessible("vellumry", "push button", "Clear History") or accessible("vellumry", "button", "Clear History")


def kept_again():
    """Copies once more; a program that was ignored may still be writing for a moment, and is ignored then too."""
    copy_text("kept again")
    return "kept again" in {text_of(row) for row in unsealed()}


def another_shortcut_written_by_hand_counts_at_once():
    write_settings()
    with Vellumry():
        open_panel()
        key("Escape")
        wait_panel_closed()
        write_settings(r'openPanelShortcut="{\"keyCode\":11,\"modifiers\":4352}"')

        def opens():
            key("super+ctrl+b")
            return panel_is_open()

        wait_until(opens, "the panel by the new shortcut", 60)
    forget_settings()


def screenshots_and_pinned_keys_follow_at_once():
    write_settings()
    with Vellumry():
        same("screenshots are not saved" in status(), True, status())
        write_settings("saveNewScreenshots=true")
        wait_until(lambda: "screenshots are saved" in status(), "the watch of the screenshots", 60)
        write_settings("saveNewScreenshots=false")
        wait_until(lambda: "screenshots are not saved" in status(), "no watch", 60)
    forget_settings()


def a_shortcut_that_is_taken_is_told_on_the_screen_in_the_log_and_in_the_status():
    write_settings()
    with ShortcutHolder():
        with tempfile.TemporaryFile() as log:
            with Vellumry(stderr=log):
                told("Super+Ctrl+V is already used by another app")
                same("shortcuts: held by another program: openPanelShortcut" in status(), True, status())
            log.seek(0)
            same(b"openPanelShortcut is held by another program" in log.read(), True, "the log")
    forget_settings()


def a_value_that_is_none_costs_no_clips():
    write_settings()
    with Vellumry():
        for text in ("one", "two", "three"):
            remember(text)
    for value in ("keepAtMost=many", "keepAtMost=-5", "mediaLimitMB=8796093022208"):
        write_settings(value)
        with tempfile.TemporaryFile() as log:
            with Vellumry(stderr=log):
                remember("with " + value)
                same("settings that cannot be used: " + value.split("=")[0] in status(), True, status())
            log.seek(0)
            same(f"the setting {value.split('=')[0]} cannot be used".encode() in log.read(), True, "the log")
    same({"one", "two", "three"} - {text_of(row) for row in unsealed()}, set(), "clips that are gone")
    forget_settings()


def a_settings_file_that_is_none_does_not_hold_the_start_up():
    for make in (lambda: os.mkfifo(SETTINGS), lambda: os.symlink("/dev/zero", SETTINGS)):
        forget_settings()
        os.makedirs(os.path.dirname(SETTINGS))
        make()
        with Vellumry(greeted=False):
            remember("kept all the same " + str(os.path.islink(SETTINGS)))
    forget_settings()


def the_actions_from_outside_do_what_they_say():
    write_settings()
    with Vellumry() as program:
        remember("before the pause")
        act("pause")
        told("Paused")
        copy_text("during the pause")
        act("pause")
        told("Resumed")
        remember("after the pause")
        act("ignore-next")
        told("Your next copy won't be saved")
        copy_text("ignored")
        told("Skipped. That copy wasn't saved")
        wait_until(kept_again, "a copy after the quiet that follows an ignored one", 60)
        same({text_of(row) for row in unsealed()}, {"before the pause", "after the pause", "kept again"}, "the history")
        act("clear")
        wait_until(lambda: windows("^Vellumry$"), "the question", 60)
        wait_until(lambda: clear_button(), "its button", 60)
        same(len(unsealed()), 3, "clips before the answer")
        key("Return")
        wait_until(lambda: not windows("^Vellumry$"), "the question to go", 60)
        same(len(unsealed()), 3, "clips after the way out")
        act("clear")
        wait_until(lambda: windows("^Vellumry$"), "the question", 60)
        wait_until(lambda: clear_button(), "its button", 60)
        key("Tab", "Return")
        wait_until(lambda: not unsealed(), "an empty history", 60)
        act("quit")
        same(program.handle.wait(60), 0, "its status")
    forget_settings()


if __name__ == "__main__":
    main([fresh(test) for test in (
        another_shortcut_written_by_hand_counts_at_once, screenshots_and_pinned_keys_follow_at_once,
        a_shortcut_that_is_taken_is_told_on_the_screen_in_the_log_and_in_the_status,
        a_value_that_is_none_costs_no_clips, a_settings_file_that_is_none_does_not_hold_the_start_up,
        the_actions_from_outside_do_what_they_say)])
