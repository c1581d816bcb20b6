#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The clipboard of a GNOME session for another program, whichever window has the keyboard, by Mutter's interface for remote
sessions. It is meant for GNOME's own parts only, and asks the user for nothing.

mutter_clipboard.py copy TYPE    takes the clipboard with standard input; "ready" once it is there; serves it until it is lost
mutter_clipboard.py paste TYPE   writes what is there
mutter_clipboard.py types        lists its types
mutter_clipboard.py clear        takes it with nothing, and lets go of it"""

import os
import select
import sys

from gi.repository import Gio, GLib

NAME = "org.gnome.Mutter.RemoteDesktop"
SESSION = NAME + ".Session"
PATIENCE = 20000


class Session:
    def __init__(self):
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.path = self.bus.call_sync(NAME, "/org/gnome/Mutter/RemoteDesktop", NAME, "CreateSession", None, None, 0, PATIENCE,
                                       None).unpack()[0]
        self.types = None
        self.bus.signal_subscribe(NAME, SESSION, None, self.path, None, 0, self.hear)
        self.on_signal = None
        self.call("EnableClipboard", GLib.Variant("(a{sv})", ({},)))

    def call(self, method, arguments=None):
        answer, descriptors = self.bus.call_with_unix_fd_list_sync(NAME, self.path, SESSION, method, arguments, None, 0, PATIENCE,
                                                                   None, None)
        return descriptors.get(answer.unpack()[0]) if descriptors and descriptors.get_length() else None

    def take(self, types):
        options = {"mime-types": GLib.Variant("as", types)} if types else {}
        self.call("SetSelection", GLib.Variant("(a{sv})", (options,)))

    def hear(self, connection, sender, path, interface, name, arguments):
        values = arguments.unpack()
        if name == "SelectionOwnerChanged":
            types = values[0].get("mime-types", [])
            self.types = types[0] if isinstance(types, tuple) else types
        if self.on_signal:
            self.on_signal(name, values)


def copy(kind):
    data = sys.stdin.buffer.read()
    session, loop = Session(), GLib.MainLoop()

    def hear(name, values):
        if name == "SelectionTransfer":
            descriptor = session.call("SelectionWrite", GLib.Variant("(u)", (values[1],)))
            with os.fdopen(descriptor, "wb") as pipe:
                pipe.write(data)
            session.call("SelectionWriteDone", GLib.Variant("(ub)", (values[1], True)))
        elif name == "SelectionOwnerChanged":
            # The first word is of what was there before.
            if values[0].get("session-is-owner"):
                owned.append(True)
                print("ready", flush=True)
            elif owned:
                loop.quit()

    owned = []
    session.on_signal = hear
    session.take([kind])
    loop.run()


def paste(kind):
    session = Session()
    try:
        descriptor = session.call("SelectionRead", GLib.Variant("(s)", (kind,)))
    except GLib.Error:
        return
    while select.select([descriptor], [], [], PATIENCE / 1000)[0]:
        data = os.read(descriptor, 1 << 20)
        if not data:
            return
        sys.stdout.buffer.write(data)


def types():
    session = Session()
    while session.types is None:
        GLib.MainContext.default().iteration(True)
    print("\n".join(session.types))


def clear():
    """A copy without a text, of which GNOME keeps nothing, and then none."""
    session = Session()
    session.take(["application/x-nothing"])
    session.take([])


{"clear": clear, "copy": copy, "paste": paste, "types": types}[sys.argv[1]](*sys.argv[2:])
