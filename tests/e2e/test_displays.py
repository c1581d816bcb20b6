# SPDX-License-Identifier: GPL-3.0-or-later
"""Several displays, docks and full screens: where the panel stands, and that it stays in sight."""

import os
import subprocess

from clients import Mousepad
from desktop import (remember, QUIET, Failure, Process, Vellumry, accessible, active_window, focused_window, key, main, open_panel,
                     own_tests, panel_is_open, run, same, wait_panel_closed, wait_same, wait_until, windows)

LEFT, RIGHT = (0, 960), (960, 960)  # where a display begins and how wide it is


class Displays:
    """The screen of 1920 x 1080 as two displays side by side."""

    def __init__(self, left=LEFT, right=RIGHT):
        self.sides = {"left": left, "right": right}

    def __enter__(self):
        for (name, (begin, width)), output in zip(self.sides.items(), ("screen", "none")):
            run("xrandr", "--setmonitor", name, f"{width}/250x1080/280+{begin}+0", output)
        return self

    def unplug_right(self):
        run("xrandr", "--delmonitor", "right")

    def __exit__(self, *_):
        for name in ("left", "right"):
            subprocess.run(["xrandr", "--delmonitor", name], **QUIET)


class Dock:
    """A bar at the top of the right display."""

    def __init__(self, height):
        from Xlib import X, Xatom, display

        self.server = display.Display()
        window = self.server.screen().root.create_window(960, 0, 960, height, 0, X.CopyFromParent)
        atom = self.server.intern_atom
        window.change_property(atom("_NET_WM_WINDOW_TYPE"), Xatom.ATOM, 32, [atom("_NET_WM_WINDOW_TYPE_DOCK")])
        window.change_property(atom("_NET_WM_STRUT_PARTIAL"), Xatom.CARDINAL, 32, [0, 0, height, 0, 0, 0, 0, 0, 960, 1919, 0, 0])
        window.map()
        self.server.sync()
        listed = lambda: hex(window.id) in run("xprop", "-root", "_NET_CLIENT_LIST").decode()
        wait_until(listed, "the dock to be managed")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.server.close()


def frame():
    """x, y, width, height of the panel."""
    window = wait_until(lambda: windows("^Vellumry$"), "the panel")[0]
    lines = dict(line.split("=") for line in run("xdotool", "getwindowgeometry", "--shell", window).decode().split())
    return tuple(int(lines[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def stands_on(display):
    begin, width = display
    x, _, panel_width, _ = frame()
    return begin <= x and x + panel_width <= begin + width


def point(x, y):
    run("xdotool", "mousemove", str(x), str(y))


def close_panel():
    key("Escape")
    wait_panel_closed()


def open_on(display):
    point(display[0] + display[1] // 2, 900)
    open_panel()
    wait_until(lambda: stands_on(display), f"the panel on the display at {display[0]}")


def drag_panel(far_x, far_y):
    """By its empty corner below the filters."""
    before = frame()
    start = before[0] + before[2] - 40, before[1] + 130
    point(*start)
    run("xdotool", "mousedown", "1")
    for step in range(1, 6):
        point(start[0] + far_x * step // 5, start[1] + far_y * step // 5)
    run("xdotool", "mouseup", "1")


def it_opens_on_the_display_under_the_pointer_in_the_middle():
    """Whichever that is."""
    with Displays(), Vellumry():
        remember("one")
        for display in (LEFT, RIGHT, LEFT):
            open_on(display)
            x, _, width, _ = frame()
            same(abs(2 * x + width - 2 * display[0] - display[1]) <= 1, True, "it is in the middle")
            close_panel()


def each_display_remembers_its_own_place():
    """Dragged on one, it is where it was on the other; near its first place it goes home and forgets."""
    with Displays(), Vellumry():
        open_on(RIGHT)
        home = frame()
        # What is dragged out of the display comes back into it, by its edge.
        drag_panel(60, 220)
        wait_until(lambda: frame()[1] >= home[1] + 200, "the panel lower")
        wait_until(lambda: stands_on(RIGHT), "the panel within its display")
        saved = os.path.join(os.environ["XDG_CONFIG_HOME"], "Vellumry", "Vellumry.conf")
        wait_until(lambda: "panelPositions" in open(saved, encoding="utf-8").read(), "the place on disk")
        moved = frame()
        close_panel()
        open_on(LEFT)
        same(frame()[:2], (home[0] - 960, home[1]), "its place on the other display")
        close_panel()
        open_on(RIGHT)
        same(frame(), moved, "its place on the display where it was dragged")
        drag_panel(home[0] - moved[0] + 12, home[1] - moved[1] + 12)
        wait_same(frame, home, "the panel to slide home")
        wait_until(lambda: "panelPositions" not in open(saved, encoding="utf-8").read(), "the place to be forgotten")


FINE_LEFT, FINE_RIGHT = (0, 860), (860, 1060)


def with_a_finer_display():
    """The right display shows everything larger by a quarter."""
    return Vellumry(environment={"QT_SCREEN_SCALE_FACTORS": "left=1;right=1.25"})


def size_is(width, height):
    wait_same(lambda: frame()[2:], (width, height), f"a panel of {width} x {height}; it is {frame()[2:]}")


def corner_works():
    """The panel's far corner hears the pointer: the button there opens its menu. What lies beside it is not the panel's."""
    x, y, width, height = frame()
    point(x + width - width * 50 // 780, y + height - height * 17 // 500)
    run("xdotool", "click", "1")
    wait_until(lambda: accessible("vellumry", "popup menu"), "the menu of the button in the corner")
    key("Escape")
    wait_until(lambda: accessible("vellumry", "popup menu") is None, "the menu to close")


def on_displays_of_two_scales_it_has_its_size_and_hears_the_pointer_on_both():
    """Opened on either, back and forth."""
    with Displays(FINE_LEFT, FINE_RIGHT), with_a_finer_display():
        remember("one")
        for display, size in ((FINE_LEFT, (780, 500)), (FINE_RIGHT, (975, 625)), (FINE_LEFT, (780, 500))):
            open_on(display)
            size_is(*size)
            corner_works()
            close_panel()


def dragged_to_a_display_of_another_scale_it_has_the_size_of_that_one():
    """And is whole, stands there, and hears the pointer."""
    with Displays(FINE_LEFT, FINE_RIGHT), with_a_finer_display():
        remember("one")
        open_on(FINE_LEFT)
        size_is(780, 500)
        drag_panel(960, 150)
        wait_until(lambda: stands_on(FINE_RIGHT), f"the panel on the other display; it is at {frame()}")
        size_is(975, 625)
        corner_works()
        drag_panel(-960, -100)
        wait_until(lambda: stands_on(FINE_LEFT), f"the panel on the first display; it is at {frame()}")
        size_is(780, 500)
        corner_works()


def a_display_that_goes_leaves_the_panel_in_sight_and_working():
    """It comes to the display that is left, and Return still pastes."""
    with Displays() as displays, Vellumry(), Mousepad() as editor:
        remember("still there")
        before = focused_window()
        open_on(RIGHT)
        displays.unplug_right()
        wait_until(lambda: stands_on(LEFT), "the panel on the display that is left")
        same(panel_is_open(), True, "the panel is open")
        key("Return")
        wait_panel_closed()
        wait_same(editor.content, "still there", "the paste")
        same((active_window(), focused_window()), (int(editor.window), before), "who has the keyboard")


def a_dock_takes_room_on_its_own_display_only():
    """The panel stands lower where a bar lies at the top."""
    with Displays(), Vellumry():
        open_on(LEFT)
        left = frame()
        close_panel()
        with Dock(200):
            open_on(RIGHT)
            # 16 per cent of what is left below the bar.
            same(abs(frame()[1] - (200 + round(0.16 * 880))) <= 1, True, f"its height below the bar: {frame()[1]}")
            close_panel()
            open_on(LEFT)
            same(frame(), left, "its place on the display without a bar")
            close_panel()


def it_lies_above_a_full_screen():
    """A full screen below stays as it is, and is pasted into."""
    with Vellumry(), Process("xterm", "-fullscreen", "-e", "sh", "-c", "stty -icanon min 1; exec cat > $HOME/full"):
        remember("into the full screen")
        window = wait_until(lambda: windows("sh|xterm"), "the terminal")[-1]
        wait_until(lambda: "FULLSCREEN" in run("xprop", "-id", window, "_NET_WM_STATE").decode(), "the full screen")
        subprocess.run(["xdotool", "windowactivate", "--sync", window], **QUIET)
        open_panel()
        panel = hex(int(windows("^Vellumry$")[0]))
        order = [line.split()[0] for line in run("xwininfo", "-root", "-children").decode().splitlines() if line.strip().startswith("0x")]
        viewable = [name for name in order if "IsViewable" in run("xwininfo", "-id", name).decode()]
        same(viewable[0], panel, "the topmost window")
        same("FULLSCREEN" in run("xprop", "-id", window, "_NET_WM_STATE").decode(), True, "the window below is a full screen")
        key("Return")
        wait_panel_closed()
        held = os.path.join(os.environ["HOME"], "full")
        wait_same(lambda: open(held, encoding="utf-8").read(), "into the full screen", "the paste into the full screen")


if __name__ == "__main__":
    main(own_tests())
