# SPDX-License-Identifier: GPL-3.0-or-later
"""The foreign programs of the tests, each named as it is called: how it is started, made to copy, made to take a paste, and asked
what it holds (`Client`). `owners` has bare X clients that own the clipboard, well-behaved or not, and KeyWindow one that pastes."""

from .base import Client, fresh_home, until_copied
from .browsers import Chromium, Firefox
from .editors import FeatherPad, Geany, GnomeTextEditor, Kate, Mousepad, Writer
from .helpers import ClipboardReader, HangingOwner, SlowWindow, store_and_quit
from .key_window import KeyWindow
from .passwords import FieldWindow, KeePassXC, LockedKeePassXC
from .programs import ClawsMail, Gcolor3, Gimp, LibreOffice, Pcmanfm, SwingWindow
from .shortcut_holder import ShortcutHolder
from .terminals import GnomeTerminal, Kitty, Konsole, LxTerminal, Rxvt, XfceTerminal, XTerm

__all__ = ["Chromium", "ClawsMail", "Client", "ClipboardReader", "FeatherPad", "FieldWindow", "Firefox", "Gcolor3", "Geany", "Gimp",
           "GnomeTerminal", "GnomeTextEditor", "HangingOwner", "Kate", "KeePassXC", "KeyWindow", "Kitty", "Konsole", "LibreOffice",
           "LockedKeePassXC", "LxTerminal", "Mousepad", "Pcmanfm", "Rxvt", "ShortcutHolder", "SlowWindow", "SwingWindow", "Writer",
           "XTerm", "XfceTerminal", "fresh_home", "store_and_quit", "until_copied"]
