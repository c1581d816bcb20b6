# SPDX-License-Identifier: GPL-3.0-or-later
"""The first run, from an empty home to the first paste, by keys alone and through the accessibility tree."""

import signal

from clients import ShortcutHolder
from desktop import (Vellumry, accessible, focus, key, main, own_tests, panel_is_open, picture, same, text_of, text_shown,
                     wait_for_clip, wait_panel_closed, wait_same, wait_until, windows)
from settings_file import forget_settings, settings

WELCOME = "^Welcome to Vellumry$"
SAMPLE = "Hello from Vellumry"
FIELD = "Press Return to paste here"


def shown(role, name):
    return wait_until(lambda: accessible("vellumry", role, name), f"{role} {name!r}")


def welcomed():
    """The window of the first run, in front."""
    found = wait_until(lambda: windows(WELCOME), "the first run's window")
    focus(found[0])


def press_button(name):
    node = wait_until(lambda: accessible("vellumry", "push button", name) or accessible("vellumry", "button", name), f"button {name!r}")
    node.queryAction().doAction(0)


def gone():
    wait_until(lambda: not windows(WELCOME), "the window to go")


def field_text():
    return text_shown("vellumry", "text", FIELD) or ""


def from_an_empty_home_to_the_first_paste():
    forget_settings()
    with Vellumry(greeted=False):
        welcomed()
        shown("heading", "Welcome to Vellumry")
        picture("first-run-welcome")
        key("Return")
        shown("heading", "Let Vellumry paste for you")
        picture("first-run-permission")
        key("Return")
        shown("heading", "Try it")
        press_button("^Copy$")
        wait_for_clip(lambda row: SAMPLE in (text_of(row) or ""), "the sample in the history")
        key("super+ctrl+v")
        wait_until(panel_is_open, "the panel")
        wait_until(lambda: accessible("vellumry", "list item", SAMPLE), "the sample in the panel")
        key("Return")
        wait_panel_closed()
        wait_until(lambda: SAMPLE in field_text(), "the paste in our own window")
        picture("first-run-try")
        press_button("^Replay$")
        wait_same(field_text, "", "an empty field")
        press_button("^Continue$")
        shown("heading", "You're all set")
        picture("first-run-done")
        same("onboardingDone" in settings(), False, "done before its end")
        press_button("^Start Using Vellumry$")
        gone()
        same("onboardingDone=true" in settings(), True, settings())
    with Vellumry(greeted=False):
        key("super+ctrl+v")
        wait_until(panel_is_open, "the panel of the second start")
        same(windows(WELCOME), [], "windows of a first run")
    forget_settings()


def an_end_of_the_program_brings_it_back_and_closing_it_does_not():
    forget_settings()
    with Vellumry(greeted=False) as program:
        welcomed()
        program.handle.send_signal(signal.SIGTERM)
        program.handle.wait(60)
    same("onboardingDone" in settings(), False, settings())
    with Vellumry(greeted=False):
        welcomed()
        key("ctrl+w")
        gone()
        wait_until(lambda: "onboardingDone=true" in settings(), "the setting")
    forget_settings()


def a_taken_shortcut_is_shown_with_another_that_works():
    forget_settings()
    with ShortcutHolder():
        with Vellumry(greeted=False):
            welcomed()
            key("Return")
            shown("heading", "Let Vellumry paste for you")
            key("Return")
            shown("heading", "Try it")
            wait_until(lambda: accessible("vellumry", "alert", "Super.Ctrl.V is already used"), "the problem")
            press_button("^Use ")
            wait_until(lambda: "openPanelShortcut" in settings(), "the other shortcut")
            key("ctrl+alt+v")
            wait_until(panel_is_open, "the panel by the other shortcut")
            key("Escape")
    forget_settings()


if __name__ == "__main__":
    main(own_tests())
