# SPDX-License-Identifier: GPL-3.0-or-later
"""A GTK 3 window with a field for a password and one for a name, by way of the C library: no bindings needed.

The title tells what the field holds: "password:…" or "name:…". The first argument says which has the focus.
"""

import ctypes
import sys

gtk = ctypes.CDLL("libgtk-3.so.0")
gobject = ctypes.CDLL("libgobject-2.0.so.0")
for library, name in ((gtk, "gtk_window_new"), (gtk, "gtk_entry_new"), (gtk, "gtk_box_new"), (gtk, "gtk_entry_get_text")):
    getattr(library, name).restype = ctypes.c_void_p
CHANGED = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p)


def pointer(value):
    return ctypes.c_void_p(value)


def main(wanted):
    ctypes.CDLL("libglib-2.0.so.0").g_set_prgname(b"password_window")
    gtk.gtk_init(None, None)
    window = gtk.gtk_window_new(0)
    box = gtk.gtk_box_new(1, 8)
    gtk.gtk_container_add(pointer(window), pointer(box))
    callbacks = []
    for name in ("name", "password"):
        entry = gtk.gtk_entry_new()
        gtk.gtk_entry_set_visibility(pointer(entry), name != "password")
        gtk.gtk_container_add(pointer(box), pointer(entry))

        def tell(_entry, _data, shown=entry, label=name):
            text = ctypes.string_at(gtk.gtk_entry_get_text(pointer(shown)))
            gtk.gtk_window_set_title(pointer(window), label.encode() + b":" + text)

        callbacks.append(CHANGED(tell))
        gobject.g_signal_connect_data(pointer(entry), b"changed", callbacks[-1], None, None, 0)
        if name == wanted:
            gtk.gtk_widget_grab_focus(pointer(entry))
            tell(None, None)
    gtk.gtk_widget_show_all(pointer(window))
    gtk.gtk_main()


main(sys.argv[1])
