# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel's rows and menus as a hand meets them: found in the accessibility tree, worked with the real pointer."""

import re

from desktop import accessible, run, text_of, unsealed, wait_until


def texts_kept():
    return [text_of(kept) for kept in unsealed()]


def row(title):
    return wait_until(lambda: accessible("vellumry", "list item", f"^{re.escape(title)}$"), f"the row {title}")


def middle(node):
    """A place on an object, not too near its leading edge."""
    box = node.queryComponent().getExtents(0)
    return box.x + min(200, box.width // 2), box.y + box.height // 2


def point_at(title):
    """Moves the real pointer onto a row."""
    run("xdotool", "mousemove", *map(str, middle(row(title))))


def click(title, *held):
    point_at(title)
    for name in held:
        run("xdotool", "keydown", name)
    run("xdotool", "click", "1")
    for name in held:
        run("xdotool", "keyup", name)


def open_row_menu(title):
    """A right press on a row; its menu."""
    point_at(title)
    run("xdotool", "click", "3")
    return wait_until(lambda: accessible("vellumry", "popup menu"), "the row's menu")


def menu_entry(text):
    return wait_until(lambda: accessible("vellumry", "menu item", f"^{re.escape(text)}$"), f"the entry {text}")


def menu_entries():
    """The entries of the open menus, as they are read out."""
    board = accessible("vellumry", "popup menu")
    names = []

    def walk(node):
        for index in range(node.childCount):
            child = node.getChildAtIndex(index)
            if child.getRoleName() == "menu item":
                names.append(child.name)
            walk(child)

    if board is not None:
        walk(board)
    return names


def choose(text):
    """A click on an entry of the open menu."""
    run("xdotool", "mousemove", *map(str, middle(menu_entry(text))), "click", "1")


def wait_menu_closed():
    wait_until(lambda: accessible("vellumry", "popup menu") is None, "the menu to close")
