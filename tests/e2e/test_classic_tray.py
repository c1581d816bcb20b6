# SPDX-License-Identifier: GPL-3.0-or-later
"""The icon in a tray of the older kind, which takes windows in, where no panel shows icons over the session bus."""

from Xlib import X, display, error

from desktop import (Process, Vellumry, accessible, main, own_tests, panel_is_open, picture, run, same, wait_panel_closed, wait_same,
                     wait_until)
from tray import Watcher


class Tray(Process):
    """A panel with nothing but such a tray."""

    def __init__(self):
        super().__init__("trayer", "--edge", "top", "--align", "left", "--widthtype", "request", "--height", "28")


def icons():
    """The middles of our windows inside of other programs' windows."""
    server = display.Display()
    found = []

    def look(window, depth):
        try:
            for child in window.query_tree().children:
                name = child.get_wm_class()
                if depth > 0 and name == ("vellumry", "Vellumry") and child.get_attributes().map_state == X.IsViewable:
                    size = child.get_geometry()
                    place = child.translate_coords(server.screen().root, 0, 0)
                    found.append((size.width // 2 - place.x, size.height // 2 - place.y))
                look(child, depth + 1)
        except error.XError:
            pass  # it went meanwhile

    look(server.screen().root, 0)
    server.close()
    return found


def one_icon():
    wait_same(lambda: len(icons()), 1, "one icon in the tray")
    return icons()[0]


def the_icon_is_there_and_a_click_brings_the_menu():
    with Tray(), Vellumry():
        x, y = one_icon()
        picture("classic-tray")
        for button in ("1", "3"):
            run("xdotool", "mousemove", str(x), str(y), "click", button)
            wait_until(panel_is_open, "the panel")
            wait_until(lambda: accessible("vellumry", "menu item", "Quit Vellumry"), "the program's menu")
            picture("classic-tray-menu")
            run("xdotool", "key", "Escape", "Escape")
            wait_panel_closed()


def a_panel_on_the_bus_takes_the_icon_over_and_gives_it_back():
    with Tray(), Vellumry():
        one_icon()
        with Watcher() as watcher:
            watcher.item()
            wait_until(lambda: not icons(), "the classic icon to go")
        one_icon()


def a_tray_that_comes_late_and_one_that_comes_anew_have_it():
    with Vellumry() as program:
        for _ in range(3):
            with Tray():
                one_icon()
            wait_until(lambda: not icons(), "the icon to go with its tray")
        same(program.alive(), True, "the program")


def with_the_program_the_icon_goes():
    with Tray():
        with Vellumry():
            one_icon()
        wait_until(lambda: not icons(), "the icon to go")


if __name__ == "__main__":
    main(own_tests())
