# SPDX-License-Identifier: GPL-3.0-or-later
"""Editors. Some show their text on the accessibility bus; of the others it is read from the file that they save."""

import tempfile

from desktop import key, text_shown, type_text, wait_until

from .base import Client, fresh_home, written
from .programs import LibreOffice


class Editor(Client):
    """One that shows its text on the accessibility bus."""

    window_class = ""
    command = ()

    def __init__(self, *arguments, **options):
        super().__init__(*self.command, *arguments, window_class=self.window_class, **options)

    def content(self):
        return text_shown(self.window_class)

    def type_and_copy(self, text):
        type_text(text)

        def typed():
            self.settle()
            return self.content() == text

        wait_until(typed, "the typed text in the editor")
        key("ctrl+a")
        key("ctrl+c")

    def clear(self):
        key("ctrl+a")
        key("Delete")


class FileEditor(Editor):
    """One that has a file of ours open."""

    def __init__(self, **options):
        self.path = written(tempfile.mkdtemp(prefix="editor"), "page.txt")
        super().__init__(self.path, **options)

    def get_ready(self):
        self.wait_for_keys()
        self.clear()

    def settle(self):
        key("ctrl+s")

    def content(self):
        return Client.content(self).removesuffix("\n").removeprefix("\ufeff")


class Mousepad(Editor):
    title, toolkit, window_class = "Mousepad", "GTK 3", "mousepad"
    command = ("dbus-run-session", "mousepad", "--disable-server")


class FeatherPad(Editor):
    title, toolkit, window_class = "FeatherPad", "Qt 5", "featherpad"
    command = ("featherpad", "--standalone")


class GnomeTextEditor(FileEditor):
    title, toolkit, window_class = "GNOME Text Editor", "GTK 4", "gnome-text-editor"
    command = ("dbus-run-session", "gnome-text-editor", "--standalone")

    def __init__(self):
        super().__init__(env=dict(fresh_home(), GSK_RENDERER="cairo", GTK_A11Y="none"))


class Geany(FileEditor):
    title, toolkit, window_class = "Geany", "GTK 3, Scintilla", "geany"
    command = ("geany", "--new-instance", "--no-session")


class Kate(FileEditor):
    title, toolkit, window_class = "Kate", "Qt 5, KDE", "kate"
    command = ("dbus-run-session", "kate", "--startanon", "--block")


class Writer(FileEditor):
    title, toolkit, window_class = "LibreOffice Writer", "VCL", "libreoffice-writer"

    def __init__(self):
        self.command = (*LibreOffice.command(tempfile.mkdtemp(prefix="office")), "--writer")
        super().__init__()
