# SPDX-License-Identifier: GPL-3.0-or-later
"""GNOME's own windows that ask the user for what a portal was asked for. Run inside scripts/wayland-session gnome-plain."""

import os

import desktop
from desktop import wait_until

BUTTONS = ("push button", "button")
ASKERS = "portal|global-shortcuts-provider"


def choose(name, application=ASKERS):
    """Presses the button, of the question that the desktop has open."""
    found = wait_until(lambda: next(filter(None, (desktop.accessible(application, role, name) for role in BUTTONS)), None), name)
    found.queryAction().doAction(0)


def is_open(title):
    return desktop.accessible(ASKERS, "label", title) is not None


SETTINGS = os.path.expanduser("~/.config/Vellumry/Vellumry.conf")


def settings():
    with open(SETTINGS, encoding="utf-8") as file:
        return file.readlines()


def forget_refusal():
    kept = [line for line in settings() if not line.startswith("refusedShortcuts")]
    with open(SETTINGS, "w", encoding="utf-8") as file:
        file.writelines(kept)


def refuse_shortcuts():
    """Once in a home."""
    if any(line.startswith("refusedShortcuts") for line in settings()):
        return
    wait_until(lambda: is_open("Add Keyboard Shortcuts"), "the question about the shortcuts")
    choose("^Cancel$")
    wait_until(lambda: not is_open("Add Keyboard Shortcuts"), "the end of the question")
