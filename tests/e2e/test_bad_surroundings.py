# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program finds around it is wrong: a locale that does not exist, half a settings file, a peer that floods its interface."""

import os
import subprocess
import tempfile
import threading
import time

from gi.repository import GLib

from desktop import PROGRAM, SETTINGS, Vellumry, accessible, main, open_panel, own_tests, remember, same, wait_until
from settings_file import forget_settings
from tray import MENU, Watcher, connect

NAME = "com.vellumry.Vellumry"
PATH = "/com/vellumry/Vellumry"


def a_locale_that_does_not_exist_is_english():
    nonsense = {name: "xx_YY.nonsense@modifier" for name in ("LANG", "LC_ALL", "LC_MESSAGES", "LANGUAGE")}
    with Vellumry(environment=nonsense):
        remember("in no language")
        open_panel()
        wait_until(lambda: accessible("vellumry", "push button", "Menu") or accessible("vellumry", "button", "Menu"), "the button Menu")
    done = subprocess.run([PROGRAM, "--status"], env=dict(os.environ, **nonsense), stdout=subprocess.PIPE, timeout=60)
    same(done.returncode, 0, "--status")


def half_a_settings_file_gives_what_is_in_it():
    os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
    with open(SETTINGS, "wb") as file:
        file.write(b"[General]\nonboardingDone=true\nplainTextByDefault=true\nignoredApps=\"a\", \"b\nkeepAtM")
    with Vellumry():
        remember("beside half a file")
    with open(SETTINGS, "rb") as file:
        same(b"plainTextByDefault=true" in file.read(), True, "what could be read is still there")
    forget_settings()


def works_in_a_flood(program, calls):
    """A copy is kept and the panel opens while a peer makes these calls (path, interface, method, arguments) over and over."""
    is_over = threading.Event()
    asked = []

    def flood():
        bus = connect()
        while not is_over.is_set():
            for path, interface, method, arguments in calls:
                for _ in range(50):
                    bus.call(NAME, path, interface, method, arguments, None, 0, 60000, None, None)
            # The answer to the last one: what a peer cannot send faster than it is taken is no flood.
            bus.call_sync(NAME, PATH, "org.freedesktop.Application", "ActivateAction", GLib.Variant("(sava{sv})", ("fly", [], {})),
                          None, 0, 60000)
            asked.append(50 * len(calls))
        bus.close_sync()

    remember("before the flood")
    peer = threading.Thread(target=flood)
    peer.start()
    try:
        wait_until(lambda: asked, "the first calls to be taken")
        began = time.monotonic()
        remember("in the flood")
        open_panel()
        took = time.monotonic() - began
        wait_until(lambda: len(asked) > 2, "more calls to be taken")
    finally:
        is_over.set()
        peer.join(60)
    print(f"a copy and the panel in {took:.2f} s beside {sum(asked)} calls", flush=True)
    same(program.alive(), True, "the program")


def a_peer_that_floods_the_programs_interface_holds_nothing_up():
    def action(*arguments):
        return PATH, "org.freedesktop.Application", "ActivateAction", GLib.Variant("(sava{sv})", arguments)

    with tempfile.TemporaryFile() as log:
        with Vellumry(stderr=log) as program:
            works_in_a_flood(program, [action("fly", [], {}), action("x" * 10_000, [GLib.Variant("s", "y" * 10_000)], {}),
                                       action("", [], {}), (PATH, "com.vellumry.Vellumry.Status", "Report", None)])
        log.seek(0)
        same(log.read().count(b"unknown action"), 10, "lines of the log about it")


def a_peer_that_floods_the_menu_holds_nothing_up():
    def menu(method, form, *arguments):
        return "/StatusNotifierItem/Menu", MENU, method, GLib.Variant(form, arguments)

    nonsense = list(range(-5000, 2**31 - 1, 1_000_000))
    with Watcher() as watcher, Vellumry() as program:
        watcher.item()
        works_in_a_flood(program, [
            menu("AboutToShow", "(i)", 0), menu("GetLayout", "(iias)", 0, -1, []), menu("GetLayout", "(iias)", 2**31 - 1, 5, ["x" * 1000]),
            menu("GetGroupProperties", "(aias)", nonsense, []), menu("Event", "(isvu)", 99_999, "clicked", GLib.Variant("s", ""), 0),
            menu("EventGroup", "(a(isvu))", [(number, "clicked", GLib.Variant("i", 0), 0) for number in nonsense])])
        same("in the flood" in watcher.item().open().labels(), True, "the copy in the menu")


if __name__ == "__main__":
    main(own_tests())
