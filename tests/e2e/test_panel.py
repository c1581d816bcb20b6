# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel through real keys and the real pointer: what each does to the history, and to the editor below."""

import os

from clients import Mousepad
from desktop import (Process, Vellumry, accessible, active_window, clipboard, focus_under_new_manager, focused_window, fresh, key,
                     main, open_panel, panel_is_open, remember, run, same, text_of, unsealed, wait_for_clip, wait_panel_closed,
                     wait_same, wait_until, windows)
from panel_rows import click, point_at, row, texts_kept

FOLLOWING_MOUSE = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc"><focus><followMouse>yes</followMouse><focusDelay>0</focusDelay></focus>
</openbox_config>
"""


def selected(*titles):
    import pyatspi

    def are():
        return all(row(title).getState().contains(pyatspi.STATE_SELECTED) for title in titles)

    wait_until(are, "selected: " + ", ".join(titles))


def pins_and_unpins():
    """Ctrl+P pins the chosen clip; under Pinned it unpins, and the neighbour is there for the next key."""
    with Vellumry():
        remember("one", "two")
        open_panel()
        key("ctrl+p")
        wait_for_clip(lambda kept: text_of(kept) == "two" and kept["pinned"], "the pin")
        key("Down")
        key("ctrl+p")
        wait_for_clip(lambda kept: text_of(kept) == "one" and kept["pinned"], "the second pin")
        key("Left")
        row("one")
        key("Home")
        key("ctrl+p")
        wait_same(lambda: sum(bool(kept["pinned"]) for kept in unsealed()), 1, "one pin left")
        key("ctrl+p")
        wait_until(lambda: not any(kept["pinned"] for kept in unsealed()), "no pin left")


def deletes_the_chosen_clip():
    """Ctrl+Backspace deletes; the next one is chosen, and Return pastes it."""
    with Vellumry(), Mousepad() as editor:
        remember("keep me", "delete me", "newest")
        open_panel()
        key("Down")
        key("ctrl+BackSpace")
        wait_until(lambda: "delete me" not in texts_kept(), "the deletion")
        key("Return")
        wait_panel_closed()
        wait_same(editor.content, "keep me", "the paste of the neighbour")


def merges_and_stays():
    """Ctrl+M makes one clip of the chosen ones, oldest first, and leaves the panel open."""
    with Vellumry():
        remember("first", "second")
        open_panel()
        key("shift+Down")
        key("ctrl+m")
        wait_for_clip(lambda kept: text_of(kept) == "first\nsecond", "the merged clip")
        same(panel_is_open(), True, "the panel is open")


def copies_a_merge_and_a_clip():
    """Ctrl+C copies the chosen clip, or the merge of several, and presses nothing."""
    with Vellumry(), Mousepad() as editor:
        remember("first", "second")
        open_panel()
        key("Down")
        key("ctrl+c")
        wait_panel_closed()
        wait_same(clipboard, b"first", "the clip on the clipboard")
        open_panel()
        key("shift+Down")
        key("ctrl+c")
        wait_panel_closed()
        wait_until(lambda: clipboard() in (b"first\nsecond", b"second\nfirst"), "the merge on the clipboard")
        same(editor.content(), "", "what was typed into the editor")


def clicks_choose_ranges_and_single_clips():
    """Ctrl+click adds, Shift+click extends, a plain click on one of several collapses when the button is released."""
    with Vellumry():
        remember("alpha", "beta", "gamma", "delta")
        open_panel()
        click("delta")
        click("beta", "ctrl")
        selected("delta", "beta")
        click("delta")
        click("alpha", "shift")
        selected("delta", "gamma", "beta", "alpha")
        point_at("gamma")
        run("xdotool", "mousedown", "1")
        selected("delta", "gamma", "beta", "alpha")
        run("xdotool", "mouseup", "1")
        key("ctrl+BackSpace")
        wait_same(lambda: sorted(texts_kept()), ["alpha", "beta", "delta"], "only the clicked one deleted")


def a_double_click_with_ctrl_pastes_nothing():
    """Two quick clicks with Ctrl held choose and leave; without it they paste."""
    with Vellumry(), Mousepad() as editor:
        remember("older", "newer")
        open_panel()
        point_at("older")
        run("xdotool", "keydown", "ctrl", "click", "--repeat", "2", "--delay", "40", "1", "keyup", "ctrl")
        selected("newer")
        same(panel_is_open(), True, "the panel is open")
        run("xdotool", "click", "--repeat", "2", "--delay", "40", "1")
        wait_panel_closed()
        wait_same(editor.content, "older", "the paste")


def the_thumb_is_dragged():
    """The scroll bar's thumb, dragged down, brings the oldest clip into sight and leaves the chosen one alone."""
    with Vellumry():
        remember(*[f"clip {number}" for number in range(12)])
        open_panel()
        place = row("clip 11").queryComponent().getExtents(0)
        thumb = (place.x + place.width - 8, place.y)
        same(accessible("vellumry", "list item", "^clip 0$"), None, "the oldest clip, out of sight")
        run("xdotool", "mousemove", *map(str, thumb), "mousedown", "1")
        for far in (150, 300, 420):
            run("xdotool", "mousemove", str(thumb[0]), str(thumb[1] + far))
        run("xdotool", "mouseup", "1")
        row("clip 0")
        key("ctrl+BackSpace")
        wait_until(lambda: "clip 11" not in texts_kept(), "the deletion of the clip that was chosen")


def pastes_where_the_focus_follows_the_mouse():
    """The pointer lies over another window beneath the panel: the paste and the focus go where the user was typing."""
    settings = os.path.join(os.environ["HOME"], "following.xml")
    with open(settings, "w", encoding="utf-8") as file:
        file.write(FOLLOWING_MOUSE)
    with Vellumry(), Mousepad() as editor, Process("xterm", "-geometry", "60x20+700+300") as terminal:
        wait_until(lambda: windows("xterm|sh"), "the terminal")
        other = run("xdotool", "search", "--onlyvisible", "--class", "XTerm").decode().split()[-1]
        with Process("openbox", "--replace", "--config-file", settings):
            run("xdotool", "windowmove", editor.window, "0", "0", "windowsize", editor.window, "500", "400")
            run("xdotool", "windowmove", other, "700", "300")
            run("xdotool", "mousemove", "100", "300")
            focus_under_new_manager(editor.window)
            remember("to the editor")
            for end in ("Return", "Escape"):
                run("xdotool", "mousemove", "100", "300")
                focus_under_new_manager(editor.window)
                before = focused_window()
                open_panel()
                run("xdotool", "mousemove", "900", "400")
                key(end)
                wait_panel_closed()
                if end == "Return":
                    wait_same(editor.content, "to the editor", "the paste")
                wait_until(lambda: focused_window() == before and active_window() == int(editor.window), "the focus in the editor")
        same(terminal.alive(), True, "the terminal still stands")


if __name__ == "__main__":
    main([fresh(test) for test in (pins_and_unpins, deletes_the_chosen_clip, merges_and_stays, copies_a_merge_and_a_clip,
                                   clicks_choose_ranges_and_single_clips, a_double_click_with_ctrl_pastes_nothing, the_thumb_is_dragged,
                                   pastes_where_the_focus_follows_the_mouse)])
