# SPDX-License-Identifier: GPL-3.0-or-later
"""The settings window: worked by real keys and through the accessibility tree; what it says counts at once."""

import subprocess

from desktop import (PROGRAM, Vellumry, accessible, copy_text, focus, key, main, own_tests, panel_is_open, picture, same, text_of,
                     wait_for_clip, wait_panel_closed, wait_until, windows)
from settings_file import forget_settings, settings, write_settings

WINDOW = "^Vellumry Settings$"


def open_settings():
    same(subprocess.run([PROGRAM, "--action", "open-settings"], timeout=60).returncode, 0, "open-settings")
    found = wait_until(lambda: windows(WINDOW), "the settings")
    focus(found[0])


def shown(role, name):
    return wait_until(lambda: accessible("vellumry", role, name), f"{role} {name!r}")


def is_checked(name):
    import pyatspi

    node = accessible("vellumry", "check box", name)
    return node is not None and node.getState().contains(pyatspi.STATE_CHECKED)


def focused(name):
    import pyatspi

    for role in ("check box", "push button", "button", "page tab", "combo box"):
        node = accessible("vellumry", role, name)
        if node is not None and node.getState().contains(pyatspi.STATE_FOCUSED):
            return True
    return False


def tab_to(name):
    for _ in range(40):
        if focused(name):
            return
        key("Tab")
    wait_until(lambda: focused(name), f"the keyboard on {name!r}")


def a_switch_counts_at_once_and_follows_the_file():
    write_settings()
    with Vellumry():
        open_settings()
        shown("page tab", "General")
        tab_to("Paste as plain text by default")
        key("space")
        wait_until(lambda: "plainTextByDefault=true" in settings(), "the setting")
        wait_until(lambda: is_checked("Paste as plain text by default"), "the switch")
        write_settings("soundWhenPasting=true")
        wait_until(lambda: is_checked("Sound when pasting"), "the switch that the file turned")
        wait_until(lambda: not is_checked("Paste as plain text by default"), "the switch that the file turned back")
    forget_settings()


def a_shortcut_is_recorded_and_works_at_once():
    write_settings()
    with Vellumry():
        open_settings()
        shown("page tab", "General")
        key("Right")
        shown("push button", "Open Vellumry")
        tab_to("^Open Vellumry$")
        key("space")
        key("super+ctrl+v")  # the old one reaches the recorder
        wait_until(lambda: accessible("vellumry", "push button", "Open Vellumry").description == "Super+Ctrl+V", "the recording to end")
        same(panel_is_open(), False, "the panel")
        key("space")
        key("super+ctrl+b")
        wait_until(lambda: "openPanelShortcut" in settings(), "the new shortcut")
        picture("settings-shortcuts")
        key("super+ctrl+b")
        wait_until(panel_is_open, "the panel by the new shortcut")
        key("Escape")
        wait_panel_closed()
    forget_settings()


def clearing_asks_and_then_clears():
    write_settings()
    with Vellumry():
        copy_text("to be cleared")
        wait_for_clip(lambda row: text_of(row) == "to be cleared", "the copy")
        open_settings()
        shown("page tab", "General")
        key("Right")
        key("Right")
        shown("push button", "Clear…")
        tab_to("Clear…")
        key("space")
        shown("heading", "Clear your clipboard history")
        picture("settings-clear")
        key("Escape")
        wait_until(lambda: not accessible("vellumry", "heading", "Clear your clipboard history"), "the question to go")
        tab_to("Clear…")
        key("space")
        shown("heading", "Clear your clipboard history")
        tab_to("Clear History, Keep Pinned")
        key("Return")
        wait_until(lambda: "0 clips" in (subprocess.run([PROGRAM, "--status"], stdout=subprocess.PIPE, timeout=60).stdout.decode())
                   or "clips 0" in subprocess.run([PROGRAM, "--status"], stdout=subprocess.PIPE, timeout=60).stdout.decode(), "no clips")
    forget_settings()


def a_second_start_brings_the_settings():
    write_settings()
    with Vellumry():
        same(subprocess.run([PROGRAM], timeout=60).returncode, 0, "the second start")
        wait_until(lambda: windows(WINDOW), "the settings")
    forget_settings()


if __name__ == "__main__":
    main(own_tests())
