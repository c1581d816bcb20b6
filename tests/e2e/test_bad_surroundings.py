# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program finds around it is wrong: a locale that does not exist, half a settings file, a peer that floods its interface."""

import os
import subprocess
import threading
import time

from gi.repository import GLib

from desktop import PROGRAM, SETTINGS, Failure, Vellumry, accessible, main, open_panel, own_tests, remember, same, wait_until
from settings_file import forget_settings
from tray import connect

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


def a_peer_that_floods_the_programs_interface_holds_nothing_up():
    with Vellumry() as program:
        remember("before the flood")
        is_over = threading.Event()
        asked = []

        def flood():
            bus = connect()
            while not is_over.is_set():
                for arguments in (("fly", [], {}), ("x" * 10_000, [GLib.Variant("s", "y" * 10_000)], {}), ("", [], {})):
                    for _ in range(50):
                        bus.call(NAME, PATH, "org.freedesktop.Application", "ActivateAction", GLib.Variant("(sava{sv})", arguments),
                                 None, 0, 60000, None, None)
                # The answer to the last one: what a peer cannot send faster than it is taken is no flood.
                bus.call_sync(NAME, PATH, "org.freedesktop.Application", "ActivateAction", GLib.Variant("(sava{sv})", ("fly", [], {})),
                              None, 0, 60000)
                asked.append(150)
            bus.close_sync()

        peer = threading.Thread(target=flood)
        peer.start()
        try:
            began = time.monotonic()
            remember("in the flood")
            open_panel()
            took = time.monotonic() - began
        finally:
            is_over.set()
            peer.join(60)
        if len(asked) < 2:
            raise Failure(f"a flood of {asked} calls proves little")
        print(f"a copy and the panel in {took:.2f} s beside {sum(asked)} calls", flush=True)
        same(program.alive(), True, "the program")


if __name__ == "__main__":
    main(own_tests())
