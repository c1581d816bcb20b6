# SPDX-License-Identifier: GPL-3.0-or-later
"""drop_window.py FILE TARGET…: a GTK 3 window that takes drops as the first of the targets that is offered, by way of the C library: no
bindings needed. What was dropped is written to FILE: the target's name, a line feed, the bytes."""

import ctypes
import os
import sys

gtk = ctypes.CDLL("libgtk-3.so.0")
gdk = ctypes.CDLL("libgdk-3.so.0")
gobject = ctypes.CDLL("libgobject-2.0.so.0")
for library, name in ((gtk, "gtk_window_new"), (gtk, "gtk_selection_data_get_data_with_length"), (gtk, "gtk_selection_data_get_target"),
                      (gdk, "gdk_atom_name")):
    getattr(library, name).restype = ctypes.c_void_p
RECEIVED = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_void_p, ctypes.c_uint, ctypes.c_uint,
                            ctypes.c_void_p)


class Target(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("flags", ctypes.c_uint), ("info", ctypes.c_uint)]


def main(path, names):
    ctypes.CDLL("libglib-2.0.so.0").g_set_prgname(b"drop_window")
    gtk.gtk_init(None, None)
    window = ctypes.c_void_p(gtk.gtk_window_new(0))
    gtk.gtk_window_set_title(window, b"drop window")
    gtk.gtk_window_set_default_size(window, 400, 300)
    targets = (Target * len(names))(*[Target(name.encode(), 0, index) for index, name in enumerate(names)])
    everything, copy = 7, 2  # GTK_DEST_DEFAULT_ALL, GDK_ACTION_COPY
    gtk.gtk_drag_dest_set(window, everything, targets, len(names), copy)

    def received(_window, _context, _x, _y, selection, _info, _time, _data):
        length = ctypes.c_int()
        data = gtk.gtk_selection_data_get_data_with_length(ctypes.c_void_p(selection), ctypes.byref(length))
        name = ctypes.string_at(gdk.gdk_atom_name(ctypes.c_void_p(gtk.gtk_selection_data_get_target(ctypes.c_void_p(selection)))))
        with open(path + ".new", "wb") as file:
            file.write(name + b"\n" + ctypes.string_at(data, max(length.value, 0)))
        os.rename(path + ".new", path)

    callback = RECEIVED(received)
    gobject.g_signal_connect_data(window, b"drag-data-received", callback, None, None, 0)
    gtk.gtk_widget_show_all(window)
    gtk.gtk_main()


main(sys.argv[1], sys.argv[2:])
