# SPDX-License-Identifier: GPL-3.0-or-later
"""What shows while a Paste Stack runs and messages that come and go: neither takes the keyboard nor, but for two buttons, the
pointer."""

from clients import Mousepad
from desktop import (Vellumry, accessible, active_window, copy_text, focused_window, key, main, open_panel, own_tests, run, same,
                     text_of, wait_for_clip, wait_panel_closed, wait_same, wait_until, windows)

BAR = "^Paste Stack$"
MESSAGE = "^Vellumry message$"
HELP = "^Vellumry help$"


def bar():
    found = windows(BAR)
    return found[0] if found else None


def geometry(window):
    """x, y, width, height of a window."""
    lines = dict(line.split("=") for line in run("xdotool", "getwindowgeometry", "--shell", window).decode().split())
    return tuple(int(lines[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def press_at(x, y):
    run("xdotool", "mousemove", str(x), str(y), "click", "1")


def the_bar_stops_the_stack_and_the_editor_keeps_the_keyboard():
    """A click on the cross acts at once while another application is active, and that one stays active."""
    with Vellumry(), Mousepad() as editor:
        before = active_window(), focused_window()
        key("super+ctrl+s")
        window = wait_until(bar, "the bar")
        x, y, width, height = geometry(window)
        same(abs(2 * x + width - 1920) <= 1, True, "the bar is in the middle")
        same((active_window(), focused_window()), before, "who has the keyboard")
        copy_text("one for the stack")
        wait_for_clip(lambda row: text_of(row) == "one for the stack", "the copy")
        wait_until(lambda: geometry(window)[2] != width, "the bar to follow its contents")
        x, y, width, height = geometry(window)
        press_at(x + width - 8 - 13, y + height // 2)
        wait_until(lambda: bar() is None, "the bar to go")
        same((active_window(), focused_window()), before, "who has the keyboard afterwards")
        same(editor.content(), "", "the editor's text")


def a_finished_stack_takes_its_bar_along():
    """The last paste leaves the bar up for a moment only."""
    with Vellumry(), Mousepad() as editor:
        key("super+ctrl+s")
        wait_until(bar, "the bar")
        copy_text("the only one")
        wait_for_clip(lambda row: text_of(row) == "the only one", "the copy")
        key("ctrl+v")
        wait_same(editor.content, "the only one", "the paste")
        wait_until(lambda: bar() is None, "the bar to go", 5)


def the_panels_button_starts_a_stack():
    """The panel makes room for what is to be copied, and the editor has the keyboard."""
    with Vellumry(), Mousepad() as editor:
        open_panel()
        button = wait_until(lambda: accessible("vellumry", "push button", "^Stack$"), "the button")
        area = button.queryComponent().getExtents(0)
        press_at(area.x + area.width // 2, area.y + area.height // 2)
        wait_until(bar, "the bar")
        wait_panel_closed()
        copy_text("by the button")
        wait_for_clip(lambda row: text_of(row) == "by the button", "the copy")
        key("ctrl+v")
        wait_same(editor.content, "by the button", "the paste")
        wait_until(lambda: bar() is None, "the bar to go", 5)


def the_bar_tells_what_its_buttons_do():
    """Below the bar, as long as the pointer rests on a button; the editor keeps the keyboard."""
    with Vellumry(), Mousepad():
        before = active_window(), focused_window()
        key("super+ctrl+s")
        x, y, width, height = geometry(wait_until(bar, "the bar"))
        run("xdotool", "mousemove", str(x + width - 8 - 13), str(y + height // 2))
        text = wait_until(lambda: windows(HELP) and accessible("vellumry", "tool tip"), "the help")
        same(text.name, "Stop Paste Stack (Super+Ctrl+S)", "what it says")
        same((active_window(), focused_window()), before, "who has the keyboard")
        run("xdotool", "mousemove", "10", "900")
        wait_until(lambda: not windows(HELP), "the help to go")
        key("super+ctrl+s")
        wait_until(lambda: bar() is None, "the bar to go", 5)


def a_message_lets_clicks_through():
    """The pointer is over what lies under a message."""
    with Vellumry(), Mousepad():
        key("super+alt+3")
        window = wait_until(lambda: (windows(MESSAGE) or [None])[0], "the message")
        x, y, width, height = geometry(window)
        run("xdotool", "mousemove", str(x + width // 2), str(y + height // 2))
        below = run("xdotool", "getmouselocation", "--shell").decode()
        same(f"WINDOW={window}" in below, False, "the message is under the pointer")
        wait_until(lambda: not windows(MESSAGE), "the message to go", 5)


if __name__ == "__main__":
    main(own_tests())
