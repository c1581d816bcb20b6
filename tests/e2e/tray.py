# SPDX-License-Identifier: GPL-3.0-or-later
"""A desktop's panel as far as tray icons go: the watcher that programs register with, and a hand that opens menus and clicks."""

import os
import threading

from gi.repository import Gio, GLib

from desktop import Failure, wait_until

NAME = "org.kde.StatusNotifierWatcher"
PATH = "/StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
WATCHER = """
<node><interface name="org.kde.StatusNotifierWatcher">
  <method name="RegisterStatusNotifierItem"><arg type="s" name="service" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" name="service" direction="in"/></method>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierHostRegistered"/>
  <signal name="StatusNotifierHostUnregistered"/>
</interface></node>"""


def connect():
    """A connection of its own to the session's bus."""
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(os.environ["DBUS_SESSION_BUS_ADDRESS"], flags, None, None)


class Watcher:
    """The panel's side: owns the watcher's name until it is closed, and notes who registers."""

    def __init__(self, has_host=True, refuses=False):
        self.registered = []
        self.has_host = has_host
        self.refuses = refuses
        self.layout_updates = 0
        self.context = GLib.MainContext()
        self.loop = GLib.MainLoop(self.context)
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.is_up = threading.Event()
        self.thread.start()
        if not self.is_up.wait(30):
            raise Failure("the test's own watcher did not come up")

    def serve(self):
        self.context.push_thread_default()
        self.bus = connect()
        interface = Gio.DBusNodeInfo.new_for_xml(WATCHER).interfaces[0]
        self.bus.register_object(PATH, interface, self.called, self.read, None)
        self.bus.signal_subscribe(None, MENU, "LayoutUpdated", None, None, Gio.DBusSignalFlags.NONE, self.updated)
        self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                           GLib.Variant("(su)", (NAME, 4)), None, Gio.DBusCallFlags.NONE, 20000)
        self.is_up.set()
        self.loop.run()
        self.bus.close_sync()
        self.context.pop_thread_default()

    def called(self, _connection, sender, _path, _interface, method, parameters, invocation):
        if method == "RegisterStatusNotifierItem" and self.refuses:
            invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "no place")
            return
        if method == "RegisterStatusNotifierItem":
            service = parameters.unpack()[0]
            self.registered.append((sender, "/StatusNotifierItem") if service == sender else (sender, service))
        invocation.return_value(None)

    def read(self, _connection, _sender, _path, _interface, name):
        return {"IsStatusNotifierHostRegistered": GLib.Variant("b", self.has_host),
                "RegisteredStatusNotifierItems": GLib.Variant("as", [sender + path for sender, path in self.registered]),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def updated(self, *_):
        self.layout_updates += 1

    def item(self):
        """The icon of the one program that registered."""
        wait_until(lambda: self.registered, "the icon to be registered")
        if len(self.registered) != 1:
            raise Failure(f"registered {self.registered}")
        return Item(*self.registered[0])

    def close(self):
        self.loop.quit()
        self.thread.join(30)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


class Entry:
    """One entry of a menu that was opened."""

    def __init__(self, item, node):
        self.item = item
        self.id, self.properties, children = node
        self.entries = [Entry(item, child) for child in children]

    @property
    def label(self):
        return "-" if self.properties.get("type") == "separator" else self.properties["label"]

    def labels(self):
        return [entry.label for entry in self.entries]

    def entry(self, label):
        for entry in self.entries:
            if entry.label == label:
                return entry
        raise Failure(f"no entry {label!r} in {self.labels()}")

    def click(self):
        self.item.call(MENU, self.item.menu_path, "Event", GLib.Variant("(isvu)", (self.id, "clicked", GLib.Variant("i", 0), 0)))


class Item:
    """A program's icon, as a panel works it."""

    def __init__(self, service, path):
        self.service = service
        self.path = path
        self.bus = connect()
        self.menu_path = self.property("Menu")

    def call(self, interface, path, method, parameters):
        return self.bus.call_sync(self.service, path, interface, method, parameters, None, Gio.DBusCallFlags.NONE, 60000)

    def property(self, name):
        answer = self.call("org.freedesktop.DBus.Properties", self.path, "Get", GLib.Variant("(ss)", (ITEM, name)))
        return answer.unpack()[0]

    def layout(self):
        """The menu as the program has it, without opening it."""
        answer = self.call(MENU, self.menu_path, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
        return Entry(self, answer.unpack()[1])

    def about_to_show(self):
        return self.call(MENU, self.menu_path, "AboutToShow", GLib.Variant("(i)", (0,))).unpack()[0]

    def open(self):
        self.about_to_show()
        return self.layout()

    def open_until(self, test, what):
        """The menu once it is as wanted; each look is an opening."""
        found = []

        def look():
            found[:] = [self.open()]
            return test(found[0])

        wait_until(look, what)
        return found[0]
