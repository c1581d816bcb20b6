# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel looks as the desktop says: light or dark, its accent, its text size; followed while the panel is open."""

import os
import struct
import subprocess

from desktop import (HERE, Failure, Process, Vellumry, accessible, copy_text, main, open_panel, own_tests, run, text_of, wait_for_clip,
                     wait_same, wait_until, windows)


class Portal(Process):
    """A settings portal on the session bus."""

    def __init__(self):
        super().__init__("/usr/bin/python3", os.path.join(HERE, "portal.py"), stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def set(self, key, value):
        self.handle.stdin.write(f"{key} {value}\n")
        self.handle.stdin.flush()
        if self.handle.stdout.readline() != "done\n":
            raise Failure("the portal does not answer")


class SettingsManager:
    """An XSETTINGS manager on the display."""

    def __init__(self):
        from Xlib import display

        self.server = display.Display()
        self.root = self.server.screen().root
        self.window = self.root.create_window(-9, -9, 1, 1, 0, 0)
        self.serial = 0

    def tell(self, texts):
        """Sets the settings to these names and texts, and begins to manage where it does not yet."""
        from Xlib import X
        from Xlib.protocol import event

        def padded(data):
            return data + b"\0" * (-len(data) & 3)

        self.serial += 1
        data = struct.pack("<BxxxII", 0, self.serial, len(texts))
        for name, value in texts.items():
            data += struct.pack("<BxH", 1, len(name)) + padded(name.encode()) + struct.pack("<II", 0, len(value)) + padded(value.encode())
        settings = self.server.intern_atom("_XSETTINGS_SETTINGS")
        self.window.change_property(settings, settings, 8, data)
        if self.serial == 1:
            selection = self.server.intern_atom("_XSETTINGS_S0")
            self.window.set_selection_owner(selection, X.CurrentTime)
            message = event.ClientMessage(window=self.root, client_type=self.server.intern_atom("MANAGER"),
                                          data=(32, [0, selection, self.window.id, 0, 0]))
            self.root.send_event(message, event_mask=X.StructureNotifyMask)
        self.server.sync()

    def close(self):
        self.server.close()


def ground():
    """The colour of the panel between its field and its edge, as red, green, blue."""
    window = windows("^Vellumry$")[0]
    place = dict(line.split("=") for line in run("xdotool", "getwindowgeometry", "--shell", window).decode().split())
    x, y = int(place["X"]) + int(place["WIDTH"]) // 2, int(place["Y"]) + 6
    return tuple(run("import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"))


def is_dark():
    return sum(ground()) < 3 * 80


def is_light():
    return sum(ground()) > 3 * 200


def has_colour(condition):
    """A point of the panel whose red, green and blue fulfil the condition."""
    window = windows("^Vellumry$")[0]
    data = run("import", "-window", window, "-depth", "8", "rgb:-")
    return any(condition(*data[place:place + 3]) for place in range(0, len(data) - 2, 3))


def is_orange(red, green, blue):
    return red > 150 and 40 < green < red - 60 and blue < 40


def row_height():
    node = accessible("vellumry", "list item", "^looked at$")
    return node.queryComponent().getExtents(0).height if node else 0


def with_a_clip():
    copy_text("looked at")
    wait_for_clip(lambda row: text_of(row) == "looked at", "the copy")
    open_panel()


def the_portals_scheme_and_accent_are_followed_while_the_panel_is_open():
    """Dark, then light, then an orange accent."""
    with Portal() as portal, Vellumry():
        portal.set("color-scheme", "uint32 1")
        with_a_clip()
        wait_until(is_dark, "a dark panel")
        portal.set("color-scheme", "uint32 2")
        wait_until(is_light, "a light panel")
        portal.set("accent-color", "(0.93, 0.36, 0.0)")
        wait_until(lambda: has_colour(is_orange), "an orange accent")


def a_portal_that_comes_later_counts_too():
    """It is not started for us; when it comes, it is asked."""
    with Vellumry():
        with_a_clip()
        wait_until(is_light, "a light panel")
        with Portal() as portal:
            portal.set("color-scheme", "uint32 1")
            wait_until(is_dark, "a dark panel")


def the_settings_managers_theme_and_font_are_followed():
    """Without a portal, what the X server's settings manager says counts: the theme's name and the size of the font."""
    manager = SettingsManager()
    try:
        with Vellumry():
            with_a_clip()
            wait_until(is_light, "a light panel")
            before = wait_until(row_height, "the row")
            manager.tell({"Net/ThemeName": "Greybird-dark", "Gtk/FontName": "Sans 22"})
            wait_until(is_dark, "a dark panel")
            wait_until(lambda: row_height() > before, "higher rows for larger letters")
            manager.tell({"Net/ThemeName": "Greybird", "Gtk/FontName": "Sans 10"})
            wait_until(is_light, "a light panel again")
            wait_same(row_height, before, "rows as before")
    finally:
        manager.close()


def plasmas_file_is_followed_in_a_plasma_session():
    """kdeglobals: its colours and its accent."""
    path = os.path.join(os.environ["XDG_CONFIG_HOME"], "kdeglobals")

    def write(text):
        with open(path + ".new", "w", encoding="utf-8") as file:
            file.write(text)
        os.rename(path + ".new", path)

    try:
        with Vellumry(environment={"XDG_CURRENT_DESKTOP": "KDE"}):
            with_a_clip()
            wait_until(is_light, "a light panel")
            write("[Colors:Window]\nBackgroundNormal=42,46,50\n[General]\nAccentColor=237,91,0\n")
            wait_until(is_dark, "a dark panel")
            write("[Colors:Window]\nBackgroundNormal=239,240,241\n[General]\nAccentColor=237,91,0\n")
            wait_until(is_light, "a light panel again")
            wait_until(lambda: has_colour(is_orange), "an orange accent")
    finally:
        os.unlink(path)


if __name__ == "__main__":
    main(own_tests())
