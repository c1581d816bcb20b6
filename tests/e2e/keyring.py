# SPDX-License-Identifier: GPL-3.0-or-later
"""The session's keyring from outside: `keyring.py lock|unlock|delete|add-locked`. Asks no question: what takes a password
goes through an interface that gnome-keyring has for such tests."""

import functools
import sys

from gi.repository import Gio, GLib

PATH = "/org/freedesktop/secrets"
SERVICE = "org.freedesktop.Secret.Service"
DIRECT = "org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface"
DEFAULT = PATH + "/aliases/default"
LOGIN = PATH + "/collection/login"


@functools.cache
def bus():
    """One connection for all calls: a secret's session ends with its own."""
    return Gio.bus_get_sync(Gio.BusType.SESSION)


def call(path, interface, method, parameters):
    return bus().call_sync("org.freedesktop.secrets", path, interface, method, parameters, None, Gio.DBusCallFlags.NONE, 20000)


def password(text):
    """A secret of this connection, unencrypted."""
    _, session = call(PATH, SERVICE, "OpenSession", GLib.Variant("(sv)", ("plain", GLib.Variant("s", "")))).unpack()
    return (session, b"", text.encode(), "text/plain")


def lock(collection=DEFAULT):
    call(PATH, SERVICE, "Lock", GLib.Variant("(ao)", ([collection],)))


def unlock(text="\n"):
    call(PATH, DIRECT, "UnlockWithMasterPassword", GLib.Variant("(o(oayays))", (LOGIN, password(text))))


def delete():
    call(LOGIN, "org.freedesktop.Secret.Collection", "Delete", None)


def add_locked():
    """A keyring beside the default one."""
    properties = {"org.freedesktop.Secret.Collection.Label": GLib.Variant("s", "Other")}
    (made,) = call(PATH, DIRECT, "CreateWithMasterPassword",
                   GLib.Variant("(a{sv}(oayays))", (properties, password("other")))).unpack()
    lock(made)


if __name__ == "__main__":
    {"lock": lock, "unlock": unlock, "delete": delete, "add-locked": add_locked}[sys.argv[1]]()
