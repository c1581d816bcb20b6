# SPDX-License-Identifier: GPL-3.0-or-later
"""Foreign applications to paste into: how each is started, and where what it holds ends up."""

import os
import tempfile

from clients import Browser, fresh_home
from desktop import ROOT, Failure, Process, focus, key, type_text, wait_until, window_of_class, window_title, windows


class Target(Process):
    """An application with a place to type in. Ask `content()` after `settle()`."""

    title = ""
    toolkit = ""
    paste_key = "ctrl+v"

    def settle(self):
        """Does what the application needs before its content can be read."""

    def wait_for_keys(self, prepare=lambda: None):
        """A window is there long before what is typed reaches its text, and some move the focus once more at their start."""

        def takes_keys():
            prepare()
            type_text("1,")
            try:
                return wait_until(self.holds_typed, "what was typed", 2)
            except Failure:
                return False

        wait_until(takes_keys, "typing to arrive in " + self.title, 60)

    def holds_typed(self):
        self.settle()
        return "1," in (self.content() or "")

    def content(self):
        with open(self.path, encoding="utf-8") as file:
            return file.read()

    def start(self, window_class, *command, **options):
        Process.__init__(self, *command, **options)
        self.window = window_of_class(window_class)
        focus(self.window)


class Terminal(Target):
    """A terminal in which `cat` writes down what is typed."""

    toolkit = "terminal"
    paste_key = "ctrl+shift+v"
    window_class = ""
    before = ()

    def __init__(self):
        self.path = os.path.join(tempfile.mkdtemp(prefix="terminal"), "typed")
        inner = f"exec cat > {self.path}"
        self.start(self.window_class, *self.before, *self.wrapped(inner), env=fresh_home())
        wait_until(lambda: os.path.exists(self.path), "the shell in the terminal", 60)

    def wrapped(self, inner):
        return ("-e", "sh", "-c", inner)

    def settle(self):
        key("Return")

    def content(self):
        return super().content().removesuffix("\n")


class XTerm(Terminal):
    paste_key = "shift+Insert"
    title, window_class, before = "xterm", "XTerm", ("xterm",)


class Rxvt(Terminal):
    paste_key = "shift+Insert"
    title, window_class, before = "rxvt-unicode", "URxvt", ("urxvt",)


class LxTerminal(Terminal):
    title, window_class, before = "LXTerminal", "lxterminal", ("dbus-run-session", "lxterminal", "--no-remote")

    def wrapped(self, inner):
        return ("-e", f"sh -c '{inner}'")


class Konsole(Terminal):
    title, window_class, before = "Konsole", "konsole", ("dbus-run-session", "konsole", "--nofork")


class Kitty(Terminal):
    title, window_class, before = "kitty", "kitty", ("kitty", "--config", "NONE")

    def wrapped(self, inner):
        return ("sh", "-c", inner)


class XfceTerminal(Terminal):
    title, window_class = "Xfce Terminal", "Xfce4-terminal"
    before = ("dbus-run-session", "xfce4-terminal", "--disable-server")

    def wrapped(self, inner):
        return ("-x", "sh", "-c", inner)


class GnomeTerminal(Terminal):
    title, window_class = "GNOME Terminal", "Gnome-terminal"
    before = ("dbus-run-session", "gnome-terminal", "--wait", "--")

    def wrapped(self, inner):
        return ("sh", "-c", inner)


class Editor(Target):
    """An editor with a file of ours; saving shows what it holds."""

    window_class = ""
    command = ()

    def __init__(self):
        self.path = os.path.join(tempfile.mkdtemp(prefix="editor"), "page.txt")
        with open(self.path, "w", encoding="utf-8"):
            pass
        self.start(self.window_class, *self.command, self.path, env=fresh_home())

    def settle(self):
        key("ctrl+s")

    def content(self):
        return super().content().removesuffix("\n").removeprefix("\ufeff")


class Mousepad(Editor):
    title, toolkit, window_class = "Mousepad", "GTK 3", "mousepad"
    command = ("dbus-run-session", "mousepad", "--disable-server")


class GnomeTextEditor(Editor):
    title, toolkit, window_class = "GNOME Text Editor", "GTK 4", "gnome-text-editor"
    command = ("dbus-run-session", "gnome-text-editor", "--standalone")


class FeatherPad(Editor):
    title, toolkit, window_class, command = "FeatherPad", "Qt 5", "featherpad", ("featherpad", "--standalone")


class Geany(Editor):
    title, toolkit, window_class, command = "Geany", "GTK 3, Scintilla", "geany", ("geany", "--new-instance", "--no-session")


class Kate(Editor):
    title, toolkit, window_class, command = "Kate", "Qt 5, KDE", "kate", ("dbus-run-session", "kate", "--startanon", "--block")


class Writer(Editor):
    title, toolkit, window_class = "LibreOffice Writer", "VCL", "libreoffice-writer"
    command = ("libreoffice", "--norestore", "--nologo", "--nofirststartwizard")
    # The question for the file's format comes at some time after a save and takes what is typed meanwhile.
    SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Common/Save/Document"><prop oor:name="WarnAlienFormat"><value>false</value></prop></item>
</oor:items>"""

    def __init__(self):
        profile = tempfile.mkdtemp(prefix="office")
        os.mkdir(os.path.join(profile, "user"))
        with open(os.path.join(profile, "user", "registrymodifications.xcu"), "w", encoding="utf-8") as file:
            file.write(self.SETTINGS)
        self.command = (*self.command, "-env:UserInstallation=file://" + profile, "--writer")
        super().__init__()
        self.wait_for_keys()


class Chromium(Browser, Target):
    title, toolkit = "Chromium", "a text field of a page"

    def __init__(self):
        super().__init__()
        self.wait_for_keys(self.enter_area)


class Firefox(Target):
    title, toolkit = "Firefox", "a text field of a page"
    PAGE = """<!doctype html><meta charset=utf-8><title>starting</title><textarea id=area></textarea><script>
const area = document.getElementById('area');
area.addEventListener('input', () => document.title = 'area:' + area.value);
addEventListener('focus', () => area.focus()); area.addEventListener('focus', () => document.title = 'area:' + area.value); area.focus();
</script>"""

    def __init__(self):
        folder = tempfile.mkdtemp(prefix="browser")
        page = os.path.join(folder, "page.html")
        with open(page, "w", encoding="utf-8") as file:
            file.write(self.PAGE)
        with open(os.path.join(folder, "user.js"), "w", encoding="utf-8") as file:
            file.write('user_pref("browser.shell.checkDefaultBrowser", false);\nuser_pref("datareporting.policy.dataSubmissionEnabled", false);\n'
                       'user_pref("browser.aboutwelcome.enabled", false);\nuser_pref("app.update.enabled", false);\n')
        Process.__init__(self, "firefox-esr", "--new-instance", "--profile", folder, "--kiosk", "file://" + page, env=fresh_home())
        self.window = wait_until(lambda: (windows("^area:") or windows("^starting") or [None])[0], "the browser's page", 60)
        focus(self.window)
        wait_until(lambda: windows("^area:"), "the page's text field", 60)

    def content(self):
        title = window_title(self.window)
        return title.removeprefix("area:").split(" — ")[0]


class Java(Target):
    """A Swing window of ours that writes its text down at each change."""

    title, toolkit = "a Java window", "Swing"

    def __init__(self):
        self.path = os.path.join(tempfile.mkdtemp(prefix="java"), "typed")
        source = os.path.join(ROOT, "tests", "e2e", "SwingWindow.java")
        Process.__init__(self, "java", source, self.path)
        self.window = wait_until(lambda: (windows("^Swing$") or [None])[0], "the Java window", 60)
        focus(self.window)
        wait_until(lambda: os.path.exists(self.path), "the text field in the Java window", 60)
        self.wait_for_keys()


LIGHT = (XTerm, Rxvt, LxTerminal, Mousepad, GnomeTextEditor, FeatherPad, Chromium)
HEAVY = (Konsole, Kitty, XfceTerminal, GnomeTerminal, Geany, Kate, Firefox, Writer, Java)
