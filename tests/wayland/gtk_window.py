# SPDX-License-Identifier: GPL-3.0-or-later
"""A GTK window of another program with one text view. Writes a line of JSON whenever its text or its focus changes. Ctrl+K
copies the text with the hint that password managers give."""

import json
import sys
import time

import gi

gi.require_version("Gtk", "4.0")
gi.require_version("Gdk", "4.0")
from gi.repository import Gdk, Gio, GLib, Gtk  # noqa: E402


def tell(window, buffer):
    text = buffer.get_text(buffer.get_start_iter(), buffer.get_end_iter(), True)
    print(json.dumps({"text": text, "active": window.is_active(), "at": time.monotonic()}), flush=True)


def copy_secret(window, buffer):
    def form(kind, text):
        return Gdk.ContentProvider.new_for_bytes(kind, GLib.Bytes.new(text.encode()))

    text = buffer.get_text(buffer.get_start_iter(), buffer.get_end_iter(), True)
    window.get_clipboard().set_content(Gdk.ContentProvider.new_union(
        [form("text/plain;charset=utf-8", text), form("x-kde-passwordManagerHint", "secret")]))
    return True


def activate(application):
    window = Gtk.ApplicationWindow(application=application, title="foreign window")
    window.set_default_size(600, 400)
    view = Gtk.TextView()
    buffer = view.get_buffer()
    window.set_child(view)
    buffer.connect("changed", lambda *_: tell(window, buffer))
    window.connect("notify::is-active", lambda *_: tell(window, buffer))
    keys = Gtk.ShortcutController()
    keys.add_shortcut(Gtk.Shortcut.new(Gtk.ShortcutTrigger.parse_string("<Control>k"),
                                       Gtk.CallbackAction.new(lambda *_: copy_secret(window, buffer))))
    view.add_controller(keys)
    window.present()
    view.grab_focus()


app = Gtk.Application(application_id="org.example.Foreign", flags=Gio.ApplicationFlags.NON_UNIQUE)
app.connect("activate", activate)
sys.exit(app.run([]))
