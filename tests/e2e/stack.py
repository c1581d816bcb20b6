# SPDX-License-Identifier: GPL-3.0-or-later
"""Starting, filling and emptying a Paste Stack as a user does."""

from desktop import key, wait_same, wait_until, windows

TOGGLE = "super+ctrl+s"
HUD = "^Paste Stack$"


def is_running():
    return bool(windows(HUD))


def start_stack():
    key(TOGGLE)
    wait_until(is_running, "the stack's bar")


def wait_ended():
    wait_until(lambda: not is_running(), "the stack's bar to go", 60)


def paste_each(client, combination, expected):
    """Presses the key once for each expected text; the next when this one stands there."""
    whole = ""
    for text in expected:
        key(combination)
        whole += text
        wait_same(client.content, whole, f"{whole!r} in the client")
