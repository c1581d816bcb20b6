# SPDX-License-Identifier: GPL-3.0-or-later
"""A GTK 3 window of another program with one text view."""

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402

window = Gtk.Window(title="foreign window")
window.set_default_size(600, 400)
view = Gtk.TextView()
window.add(view)
window.connect("destroy", Gtk.main_quit)
window.show_all()
view.grab_focus()
Gtk.main()
