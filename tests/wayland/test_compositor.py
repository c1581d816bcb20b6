# SPDX-License-Identifier: GPL-3.0-or-later
"""What a compositor does to a program that runs, or spares it: it dies, it comes back, it needs no portal beside it. Run inside
scripts/wayland-session sway, labwc or kwin."""

import glob
import itertools
import os
import signal
import socket
import subprocess
import sys
import tempfile
import threading

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import PROGRAM, SESSION, Window, only_in, open_panel, search_field_has_focus, told  # noqa: E402

import desktop  # noqa: E402
from desktop import Process, Vellumry, run, text_of, unsealed, wait_for_clip, wait_until  # noqa: E402

PORTAL = "org.freedesktop.portal.Desktop"
RUNTIME = os.environ["XDG_RUNTIME_DIR"]


class Compositor(Process):
    """One more of the session's kind, beside it, for a test to kill."""

    COMMANDS = {"sway": ["sway", "-c", os.path.join(RUNTIME, "sway.conf")], "labwc": ["labwc"],
                "kwin": ["/tmp/kwin/kwin_wayland", "--virtual", "--width", "800", "--height", "600", "--no-lockscreen", "--socket"]}
    numbers = itertools.count(20)

    def __init__(self, program=None):
        before = self.sockets()
        command = self.COMMANDS[SESSION].copy()
        if program:
            command[0] = program
        if SESSION == "kwin":
            command.append(f"wayland-{next(self.numbers)}")
        environment = {name: value for name, value in os.environ.items() if name not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        # KWin's wrapper, which starts KWin, is to find the copy that may run here.
        environment["PATH"] = "/tmp/kwin:" + environment["PATH"]
        self.log = tempfile.TemporaryFile()
        super().__init__(*command, env=environment, stderr=self.log)
        wait_until(lambda: self.has_ended() or self.sockets() - before, "the other compositor's socket")
        self.display = (self.sockets() - before).pop()
        self.environment = dict(os.environ, WAYLAND_DISPLAY=self.display)
        wait_until(lambda: self.has_ended() or self.answers(), "the other compositor")

    def answers(self):
        return subprocess.run(["wayland-info"], env=self.environment, check=False, **desktop.QUIET).returncode == 0

    def has_ended(self):
        """Fails with its last words when it has."""
        if not self.alive():
            self.log.seek(0)
            raise desktop.Failure(f"the other compositor ended with {self.handle.returncode}: {self.log.read()[-2000:].decode()}")
        return False

    @staticmethod
    def sockets():
        """Those that a compositor listens at: one that was killed leaves its file."""
        found = set()
        for path in glob.glob(os.path.join(RUNTIME, "wayland-*[0-9]")):
            with socket.socket(socket.AF_UNIX) as client:
                if client.connect_ex(path) == 0:
                    found.add(os.path.basename(path))
        return found

    def copy(self, words):
        subprocess.run(["wl-copy", words], env=self.environment, check=True, timeout=20, **desktop.QUIET)
        wait_for_clip(lambda row: text_of(row) == words, f"the copy {words!r}")

    def kill(self):
        self.stop(signal.SIGKILL)

    def children(self):
        with open(f"/proc/{self.pid}/task/{self.pid}/children", encoding="ascii") as file:
            return [int(child) for child in file.read().split()]


def test_compositor_dies():
    """With its compositor the program ends, by itself, and what was copied last is there at the next start."""
    with Compositor() as compositor:
        with Vellumry(environment={"WAYLAND_DISPLAY": compositor.display}) as program:
            compositor.copy("copied before the crash")
            compositor.kill()
            wait_until(lambda: not program.alive(), "the program to end")
    with Compositor() as compositor, Vellumry(environment={"WAYLAND_DISPLAY": compositor.display}):
        compositor.copy("copied after it")
        assert [row for row in unsealed() if text_of(row) == "copied before the crash"]


@only_in("kwin")
def test_compositor_comes_back():
    """On Plasma, which starts KWin again after a crash, the program sees and serves copies on the next one, and opens its panel there."""
    with Compositor("kwin_wayland_wrapper") as compositor:
        environment = {"WAYLAND_DISPLAY": compositor.display, "QT_WAYLAND_RECONNECT": "1"}
        with Vellumry(environment=environment) as program:
            compositor.copy("copied before the crash")
            first = compositor.children()
            os.kill(first[0], signal.SIGKILL)
            program.wait_ready()
            assert program.alive() and compositor.children() != first
            compositor.copy("copied after it")
            assert [row for row in unsealed() if text_of(row) == "copied before the crash"]
            run(PROGRAM, "--action", "open-panel")
            wait_until(search_field_has_focus, "the panel on the next compositor")


@only_in("sway", "labwc")
def test_no_portal_is_asked_in_vain():
    """Where the compositor presses keys and its users bind theirs, the start asks no portal for either, though one runs."""
    bus = "org.freedesktop.DBus"
    told("gdbus", "call", "--session", "-d", bus, "-o", "/", "-m", bus + ".StartServiceByName", PORTAL, "0")
    with Process("dbus-monitor", "--session", f"destination='{PORTAL}'", stdout=subprocess.PIPE, text=True) as monitor:
        asked = []
        threading.Thread(target=lambda: asked.extend(monitor.handle.stdout), daemon=True).start()
        # What it sees is seen from here on.
        wait_until(lambda: told("gdbus", "call", "--session", "-d", PORTAL, "-o", "/", "-m", "org.example.Watched") or
                   any("org.example" in line for line in asked), "the monitor of the bus")
        with Vellumry(), Window() as window:
            open_panel(window)
        wait_until(lambda: told("gdbus", "call", "--session", "-d", PORTAL, "-o", "/", "-m", "org.example.Ended") or
                   any('member=Ended' in line for line in asked), "the end of what the monitor saw")
    lines = "".join(asked)
    assert "org.freedesktop.portal.Settings" in lines, "nothing was seen: " + lines
    for interface in ("GlobalShortcuts", "RemoteDesktop"):
        assert f"org.freedesktop.portal.{interface}" not in lines, lines


desktop.main(desktop.own_tests())
