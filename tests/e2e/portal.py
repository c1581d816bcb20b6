#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""portal.py: a settings portal on the session bus. Each line on standard input sets one key of org.freedesktop.appearance, a key, a blank and a
GVariant in text form ("color-scheme uint32 1"), and is answered with "done" once it was announced."""

import sys

from gi.repository import Gio, GLib

SPACE = "org.freedesktop.appearance"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = """<node><interface name='org.freedesktop.portal.Settings'>
<method name='ReadAll'><arg type='as' direction='in'/><arg type='a{sa{sv}}' direction='out'/></method>
<signal name='SettingChanged'><arg type='s'/><arg type='s'/><arg type='v'/></signal></interface></node>"""

values = {}
loop = GLib.MainLoop()
bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)


def answer(_bus, _sender, _path, _interface, _method, _arguments, invocation):
    invocation.return_value(GLib.Variant("(a{sa{sv}})", ({SPACE: values},)))


def take_line(channel, condition):
    line = sys.stdin.readline()
    if not line:
        loop.quit()
        return False
    key, text = line.strip().split(" ", 1)
    values[key] = GLib.Variant.parse(None, text, None, None)
    bus.emit_signal(None, PATH, "org.freedesktop.portal.Settings", "SettingChanged", GLib.Variant("(ssv)", (SPACE, key, values[key])))
    bus.flush_sync(None)
    print("done", flush=True)
    return True


info = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
bus.register_object(PATH, info, answer, None, None)
Gio.bus_own_name_on_connection(bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, None, None)
GLib.io_add_watch(GLib.IOChannel.unix_new(0), GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, take_line)
loop.run()
