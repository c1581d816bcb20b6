# SPDX-License-Identifier: GPL-3.0-or-later
"""The icon in the desktop's panel and its menu, over the bus as panels work them."""

import threading
import time

from gi.repository import GLib

from clients import Mousepad
from desktop import (Failure, Vellumry, clipboard, copy_text, focus, main, open_panel, own_tests, panel_is_open, same, text_of,
                     unsealed, wait_for_clip, wait_same, wait_until, windows)
from tray import MENU, Watcher, connect

FIXED = ["Open Vellumry", "Start Paste Stack", "Pause Capture", "Ignore Next Copy", "Save New Screenshots", "Clear History…", "-"]


def keep(text):
    copy_text(text)
    wait_for_clip(lambda row: text_of(row) == text, "the copy")


def the_icon_says_what_it_is():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        same([item.property(name) for name in ("Id", "Category", "Title", "Status", "ItemIsMenu", "WindowId")],
             ["com.vellumry.Vellumry", "ApplicationStatus", "Vellumry", "Active", True, 0], "the icon's properties")
        sizes = [(width, height, len(pixels)) for width, height, pixels in item.property("IconPixmap")]
        same(sizes, [(side, side, side * side * 4) for side in (16, 22, 24, 32, 48)], "the icon's pictures")
        same(item.property("ToolTip")[2], "Vellumry", "the tool tip")


def the_menu_is_made_anew_at_each_opening():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        menu = item.open()
        same(menu.labels()[:3], ["Vellumry", "0 clips · Capturing", "-"], "the menu's head")
        same(menu.labels()[3:10], FIXED, "the menu without clips")
        same(menu.entry("Clear History…").properties.get("enabled", True), False, "nothing to clear")
        same([entry.properties.get("enabled", True) for entry in menu.entries[:2]], [False, False], "the head can be chosen")
        keep("first_of_all")
        keep("#ff8800")
        menu = item.open_until(lambda menu: "#ff8800" in menu.labels(), "the copies in the menu")
        same(menu.labels()[:7], ["Vellumry", "2 clips · Capturing", "-", "Recent", "#ff8800", "first__of__all", "-"], "the menu")
        same([menu.entry(label).properties["shortcut"] for label in ("#ff8800", "first__of__all", "Open Vellumry", "Quit Vellumry")],
             [[["Control", "1"]], [["Control", "2"]], [["Super", "Control", "V"]], [["Control", "Q"]]], "the keys")
        for label in ("#ff8800", "first__of__all", "Open Vellumry"):
            same(bytes(menu.entry(label).properties["icon-data"][:4]), b"\x89PNG", f"the picture of {label}")
        same(menu.entry("Help").labels(), ["Vellumry Website", "Email Support", "Privacy Policy"], "the help")


def a_row_is_pasted_into_the_window_in_front():
    with Watcher() as watcher, Vellumry(), Mousepad() as editor:
        item = watcher.item()
        keep("from the menu")
        keep("copied later")
        focus(editor.window)
        item.open_until(lambda menu: "from the menu" in menu.labels(), "the row").entry("from the menu").click()
        wait_same(editor.content, "from the menu", "the text in the editor")


def a_row_shown_a_while_ago_pastes_what_it_showed():
    with Watcher() as watcher, Vellumry(), Mousepad() as editor:
        item = watcher.item()
        keep("shown first")
        shown = item.open_until(lambda menu: "shown first" in menu.labels(), "the row").entry("shown first")
        keep("in its place since")
        item.open_until(lambda menu: "in its place since" in menu.labels(), "the row above")
        focus(editor.window)
        shown.click()
        wait_same(editor.content, "shown first", "the text in the editor")


def the_next_copy_is_ignored_and_the_mark_shows_it():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        keep("kept")
        item.open().entry("Ignore Next Copy").click()
        item.open_until(lambda menu: menu.entry("Ignore Next Copy").properties["toggle-state"] == 1, "the mark")
        copy_text("private")
        item.open_until(lambda menu: menu.entry("Ignore Next Copy").properties["toggle-state"] == 0, "the mark to go")
        same([text_of(row) for row in unsealed()], ["kept"], "the history")


def a_pause_is_shown_and_nothing_of_it_is_kept():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        keep("before")
        pause = item.open().entry("Pause Capture")
        same(pause.labels(), ["For 5 Minutes", "For 1 Hour", "Until I Resume"], "the pauses")
        pause.entry("For 1 Hour").click()
        item.open_until(lambda menu: "1 clip · Paused until" in menu.labels()[1], "the end of the pause in the head")
        same(item.property("Status"), "Active", "a paused program is shown all the same")
        copy_text("in the pause")
        item.open().entry("Resume Capture").click()
        item.open_until(lambda menu: menu.labels()[1] == "1 clip · Capturing", "the pause to end")
        keep("afterwards")
        same(sorted(text_of(row) for row in unsealed()), ["afterwards", "before"], "the history")


def the_stack_is_started_and_says_what_is_left():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        item.open().entry("Start Paste Stack").click()
        item.open_until(lambda menu: "Stop Paste Stack" in menu.labels(), "the stack")
        copy_text("one")
        item.open_until(lambda menu: "Stop Paste Stack (1 left)" in menu.labels(), "what is left").entry(
            "Stop Paste Stack (1 left)").click()
        item.open_until(lambda menu: "Start Paste Stack" in menu.labels(), "the stack's end")


def the_panel_opens_and_the_question_is_asked():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        item.open().entry("Open Vellumry").click()
        wait_until(panel_is_open, "the panel")
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        keep("to be cleared")
        item.open_until(lambda menu: "to be cleared" in menu.labels(), "the row").entry("Clear History…").click()
        wait_until(lambda: windows("^Vellumry$"), "the question")
        same(len(unsealed()), 1, "clips before the answer")


def quitting_ends_the_program_and_the_icon():
    with Watcher() as watcher, Vellumry() as program:
        watcher.item().open().entry("Quit Vellumry").click()
        wait_until(lambda: not program.alive(), "the program's end")
        same(program.handle.returncode, 0, "the program's status")


def a_panel_that_comes_late_shows_the_icon_once():
    with Vellumry():
        keep("before the panel")
        with Watcher() as watcher:
            menu = watcher.item().open_until(lambda menu: "before the panel" in menu.labels(), "the row")
            same(menu.labels()[1], "1 clip · Capturing", "the head")
            keep("behind it")
            same(len(watcher.registered), 1, "registrations")


def each_panel_that_comes_anew_shows_the_icon_once():
    with Vellumry() as program:
        for round_number in range(4):
            with Watcher() as watcher:
                watcher.item().open()
                keep(f"round {round_number}")
                same(len(watcher.registered), 1, f"registrations in round {round_number}")
        same(program.alive(), True, "the program")


def a_panel_that_refuses_the_icon_costs_the_icon_alone():
    with Watcher(refuses=True) as watcher, Vellumry():
        keep("without an icon")
        same(watcher.registered, [], "registrations")
        open_panel()


def copies_are_told_to_a_panel_that_has_the_menu_and_not_while_it_is_open():
    with Watcher() as watcher, Vellumry():
        item = watcher.item()
        item.open()
        item.call(MENU, item.menu_path, "Event", GLib.Variant("(isvu)", (0, "opened", GLib.Variant("i", 0), 0)))
        before = watcher.layout_updates
        keep("while it is open")
        same("while it is open" in item.layout().labels(), False, "an open menu changes")
        item.call(MENU, item.menu_path, "Event", GLib.Variant("(isvu)", (0, "closed", GLib.Variant("i", 0), 0)))
        wait_until(lambda: watcher.layout_updates > before, "the panel to be told")
        same("while it is open" in item.layout().labels(), True, "the menu behind it")


def a_peer_that_asks_without_end_holds_nothing_up():
    with Watcher() as watcher, Vellumry() as program:
        item = watcher.item()
        keep("before the flood")
        is_over = threading.Event()
        asked = []

        def flood():
            bus = connect()
            count = 0
            while not is_over.is_set():
                for _ in range(200):
                    count += 1
                    for method, arguments in (("AboutToShow", GLib.Variant("(i)", (0,))),
                                              ("GetLayout", GLib.Variant("(iias)", (0, -1, []))),
                                              ("Event", GLib.Variant("(isvu)", (1_000_000 + count, "clicked", GLib.Variant("i", 0), 0)))):
                        bus.call(item.service, item.menu_path, MENU, method, arguments, None, 0, 60000, None, None)
                bus.flush_sync()
                # The answer to the last one: what a peer cannot send faster than it is taken is no flood.
                bus.call_sync(item.service, item.menu_path, MENU, "AboutToShow", GLib.Variant("(i)", (0,)), None, 0, 60000)
            asked.append(count)
            bus.close_sync()

        peer = threading.Thread(target=flood)
        peer.start()
        try:
            began = time.monotonic()
            keep("in the flood")
            open_panel()
            took = time.monotonic() - began
        finally:
            is_over.set()
            peer.join(60)
        if not asked or asked[0] < 200:
            raise Failure(f"a flood of {asked} calls proves little")
        print(f"a copy and the panel in {took:.2f} s beside {3 * asked[0]} calls", flush=True)
        same(program.alive(), True, "the program")


def without_a_session_bus_everything_but_the_icon_is_there():
    nowhere = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"}
    with Vellumry(environment=nowhere) as program:
        copy_text("kept in memory")
        wait_same(clipboard, b"kept in memory", "the copy")
        open_panel()
        same(program.alive(), True, "the program")


main(own_tests())
