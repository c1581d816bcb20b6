# SPDX-License-Identifier: GPL-3.0-or-later
"""The clients of the fidelity matrix: what each copies, and what the clip of it is to be."""

import base64
import os
import re
import tempfile

from clients import Browser, FileManager, GtkEditor, PasswordManager, QtEditor, XTerminal, fresh_home
from desktop import Failure, Process, clipboard, focus, key, run, type_text, wait_until, window_title, windows

TEXT, RICH, LINK, IMAGE, FILE, COLOR = range(6)


class Client:
    """One row of the matrix. `kind` None: the copy is refused. `differs` names targets that come back otherwise, and why."""

    def __init__(self, program, what, start, copy, kind, title, differs=None, heavy=False):
        self.program = program
        self.what = what
        self.started = start
        self.copy = copy
        self.kind = kind
        self.title = title
        self.differs = differs or {}
        self.heavy = heavy

    def becomes(self, recorded):
        if self.kind is None:
            return None
        return {"kind": self.kind, "title": self.title(recorded) if callable(self.title) else self.title}


def in_time(copy, target="TARGETS"):
    """Copies until the clipboard has an owner with that target: a program just started may not listen yet."""

    def copied():
        copy()
        return clipboard(target) is not None

    wait_until(copied, f"{target} on the clipboard", 40)


class Gtk4Editor(Process):
    """gnome-text-editor, a GTK 4 program."""

    def __init__(self):
        super().__init__("dbus-run-session", "gnome-text-editor", "--standalone",
                         env=dict(fresh_home(), GSK_RENDERER="cairo", GTK_A11Y="none"))
        self.window = wait_until(lambda: (windows("Text Editor") or [None])[0], "the GTK 4 editor", 60)
        focus(self.window)


class ColourPicker(Process):
    """gcolor3, whose entry holds a colour as text."""

    def __init__(self):
        super().__init__("dbus-run-session", "gcolor3", env=fresh_home())
        self.window = wait_until(lambda: (windows("^Color Picker") or [None])[0], "the colour picker", 40)
        focus(self.window)


class Office(Process):
    """LibreOffice with one document."""

    def __init__(self, name, content):
        self.folder = tempfile.mkdtemp(prefix="office")
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(content)
        super().__init__("soffice", "--norestore", "--nologo", "--nofirststartwizard",
                         "-env:UserInstallation=file://" + self.folder + "/profile", path, env=fresh_home())
        self.window = wait_until(lambda: (windows("^" + re.escape(os.path.splitext(name)[0])) or [None])[0], "the document", 150)
        focus(self.window)


class MailProgram(Process):
    """claws-mail with a letter that is being written, by an account that leads nowhere."""

    FOLDERS = {"inbox": "inbox", "outbox": "sent", "draft": "draft", "queue": "queue", "trash": "trash"}

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="mail")
        for name in self.FOLDERS.values():
            os.makedirs(os.path.join(self.folder, "Mail", name))
        items = "".join(f'<folderitem type="{kind}" name="{name}" path="{name}"/>' for kind, name in self.FOLDERS.items())
        self.write("accountrc", "[Account: 1]\naccount_name=me\nis_default=1\nname=Me\naddress=me@example.org\nprotocol=5\n")
        self.write("clawsrc", "[Common]\nenable_aspell=0\n")
        self.write("folderlist.xml", f"""<?xml version="1.0" encoding="UTF-8"?>
<folderlist><folder type="mh" name="Mail" path="{self.folder}/Mail"><folderitem type="normal" name="" path="">{items}</folderitem>
</folder></folderlist>
""")
        super().__init__("dbus-run-session", "claws-mail", "--alternate-config-dir", self.folder, "--compose",
                         "mailto:you@example.org?subject=news&body=A%20line%20of%20a%20letter", env=fresh_home())
        self.window = wait_until(lambda: (windows("Compose message") or [None])[0], "the letter", 60)
        focus(self.window)

    def copy_letter(self):
        """The keyboard is with the addresses at first."""
        run("xdotool", "mousemove", "--window", self.window, "200", "450", "click", "1")
        key("ctrl+a", "ctrl+c")

    def write(self, name, text):
        with open(os.path.join(self.folder, name), "w", encoding="utf-8") as file:
            file.write(text)


class ImageEditor(Process):
    """GIMP with one small picture."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="gimp")
        path = os.path.join(self.folder, "small.png")
        run("convert", "-size", "32x24", "gradient:red-blue", path)
        super().__init__("gimp", "--no-splash", "--new-instance", path, env=fresh_home())
        self.window = wait_until(lambda: (windows("small") or [None])[0], "the image editor", 150)
        focus(self.window)


class Firefox(Process):
    """firefox-esr with a page of ours, that of the other browser when none is given."""

    def __init__(self, page_source=Browser.PAGE):
        self.folder = tempfile.mkdtemp(prefix="firefox")
        page = os.path.join(self.folder, "page.html")
        with open(page, "w", encoding="utf-8") as file:
            file.write(page_source)
        super().__init__("firefox-esr", "--no-remote", "--profile", self.folder, "file://" + page, env=fresh_home())
        self.window = wait_until(lambda: (windows("^ready") or [None])[0], "the browser's page", 120)
        focus(self.window)

    def copy_words(self):
        key("F8")
        wait_until(lambda: window_title(self.window).startswith("chosen"), "the words to be chosen", 30)
        in_time(lambda: key("ctrl+c"), "text/html")


ADDRESS = "https://example.org/a/page?x=1"


def page_with_link_and_picture():
    """The page, with a link that F4 chooses, and a picture in its lower right corner."""
    png = base64.b64encode(run("convert", "-size", "40x30", "gradient:red-blue", "png:-")).decode()
    return Browser.PAGE.replace("<p id=words>", f"""<a id=link href="{ADDRESS}">A fine page</a>
<img style="position:fixed;right:0;bottom:0;width:200px;height:150px" src="data:image/png;base64,{png}"><p id=words>""").replace(
        "  if (e.key === 'F2')", "  if (e.key === 'F4') { document.getElementById('link').focus(); document.title = 'link'; }\n"
        "  if (e.key === 'F2')")


class LinkingBrowser(Browser):
    """chromium with that page."""

    def __init__(self):
        self.PAGE = page_with_link_and_picture()
        super().__init__()


def shown_windows():
    """Those that tell their class and are shown, and all that stand on the screen itself: a menu may be made anew and without one."""
    on_screen = re.findall(rb"^ +(0x[0-9a-f]+)", run("xwininfo", "-root", "-children"), re.MULTILINE)
    return {int(number) for number in run("xdotool", "search", "--onlyvisible", "--class", ".").split()} | {
        int(number, 16) for number in on_screen}


def soon(condition):
    """Whether it comes true within three seconds."""
    try:
        return wait_until(condition, "it", 3)
    except Failure:
        return False


def by_menu(open_menu, letter, target):
    """Copies by an entry of the menu that belongs to a place of the page; once more when the menu of before was still closing."""

    def copied():
        key("Escape")
        before = shown_windows()
        open_menu()
        if not soon(lambda: shown_windows() - before):
            return False
        key(letter)
        return soon(lambda: clipboard(target) is not None)

    wait_until(copied, f"{target} on the clipboard", 60)


def link_address(letter):
    def copy(client):
        wait_until(lambda: key("F4") or window_title(client.window).startswith("link"), "the link to be chosen", 40)
        by_menu(lambda: key("shift+F10"), letter, "UTF8_STRING")

    return copy


def picture_by_menu(client):
    def point():
        place = dict(line.split("=") for line in run("xdotool", "getwindowgeometry", "--shell", client.window).decode().split())
        corner = [str(int(place[start]) + int(place[size]) - 50) for start, size in (("X", "WIDTH"), ("Y", "HEIGHT"))]
        run("xdotool", "mousemove", *corner, "click", "3")

    wait_until(lambda: key("F4") or window_title(client.window).startswith("link"), "the page to be painted", 40)
    by_menu(point, "y", "image/png")


def browser_picture(_client):
    """The page draws a picture and copies it as a page may."""
    key("F2")
    wait_until(lambda: clipboard("image/png"), "the page's picture on the clipboard", 40)


def cut(_client):
    key("ctrl+x")
    # Not by the list that tells a cut: whoever reads that takes the files off the clipboard.
    wait_until(lambda: (clipboard("application/x-kde-cutselection") or b"").startswith(b"1"), "the cut file on the clipboard", 20)


def typed(text):
    def copy(_client):
        type_text(text)
        in_time(lambda: key("ctrl+a", "ctrl+c"), "UTF8_STRING")

    return copy


def hex_of_picker(_client):
    def copied():
        key("Tab", "ctrl+a", "ctrl+c")  # from field to field, until it is that of the colour's name
        return (clipboard() or b"").startswith(b"#")

    wait_until(copied, "the name of the colour on the clipboard", 30)


def image_title(recorded):
    """By the header of the PNG."""
    png = recorded["given"]["image/png"]["bytes"]
    return f"Image {int.from_bytes(png[16:20], 'big')} × {int.from_bytes(png[20:24], 'big')}"


def copied_word(recorded):
    return recorded["given"]["UTF8_STRING"]["bytes"].decode().strip("\n\0")


CELLS = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.spreadsheet"><office:body><office:spreadsheet>
<table:table table:name="cells"><table:table-row><table:table-cell office:value-type="string"><text:p>apples</text:p>
</table:table-cell><table:table-cell office:value-type="float" office:value="3"><text:p>3</text:p></table:table-cell>
</table:table-row><table:table-row><table:table-cell office:value-type="string"><text:p>pears</text:p></table:table-cell>
<table:table-cell office:value-type="float" office:value="5"><text:p>5</text:p></table:table-cell></table:table-row></table:table>
</office:spreadsheet></office:body></office:document>"""

NO_NUL = "the NUL at the end of a C string is no part of the text"
LIST_WITHOUT_NUL = "each address ends its line and the list has no NUL at its end"
WITHOUT_CR = "lines end as in UTF8_STRING, by LF alone: GTK writes CR LF under this name"
UNDER_ONE_NAME = "the address of the page comes back under the one name that is read and written for it, chromium/x-source-url"
FILES = {"text/uri-list": LIST_WITHOUT_NUL, "x-special/gnome-copied-files": LIST_WITHOUT_NUL}

CLIENTS = {
    "xterm": Client("xterm", "a line", XTerminal, lambda client: client.copy_first_line(), TEXT, "one-terminal-word"),
    "mousepad": Client("mousepad (GTK 3)", "a line", GtkEditor, typed("words of gtk three"), TEXT, "words of gtk three"),
    "gnome-text-editor": Client("gnome-text-editor (GTK 4)", "a line", Gtk4Editor, typed("words of gtk four"), TEXT,
                                "words of gtk four", {name: NO_NUL for name in ("COMPOUND_TEXT", "STRING", "TEXT")}),
    "featherpad": Client("featherpad (Qt 5)", "a line", QtEditor, typed("words of qt five"), TEXT, "words of qt five"),
    "chromium-text": Client("chromium", "styled words", Browser, lambda client: client.copy_words(), RICH, "Styled words of a page"),
    "chromium-image": Client("chromium", "a picture", Browser, browser_picture, IMAGE, "Image 32 × 24"),
    "chromium-link": Client("chromium", "the address of a link", LinkingBrowser, link_address("e"), LINK, ADDRESS),
    "chromium-menu": Client("chromium", "a picture of a page", LinkingBrowser, picture_by_menu, IMAGE, "Image 40 × 30"),
    "pcmanfm-file": Client("pcmanfm", "a file", lambda: FileManager("one.txt"), lambda client: client.copy_all(), FILE, "one.txt", FILES),
    "pcmanfm-files": Client("pcmanfm", "three files", lambda: FileManager("a ü.txt", "b.txt", "c.txt"),
                            lambda client: client.copy_all(), FILE, "a ü.txt and 2 more", FILES),
    "pcmanfm-cut": Client("pcmanfm", "a file, cut", lambda: FileManager("cut.txt"), lambda client: (
        client.copy_all(), cut(client)), FILE, "cut.txt", FILES),
    "gcolor3": Client("gcolor3", "a colour", ColourPicker, hex_of_picker, COLOR, copied_word),
    "keepassxc": Client("keepassxc", "a password", PasswordManager, lambda client: client.copy_password(), None, None),
    "writer": Client("LibreOffice Writer", "styled words", lambda: Office(
        "letter.html", "<html><body><p>A <b>bold</b> letter</p></body></html>"),
        lambda client: in_time(lambda: key("ctrl+a", "ctrl+c"), "UTF8_STRING"), RICH, "A bold letter", heavy=True),
    "calc": Client("LibreOffice Calc", "four cells", lambda: Office("cells.fods", CELLS), lambda client: in_time(
        lambda: key("ctrl+Home", "ctrl+shift+End", "ctrl+c"), "image/png"), IMAGE, image_title, heavy=True),
    "claws-mail": Client("Claws Mail", "a line of a letter", MailProgram, lambda client: in_time(
        client.copy_letter, "UTF8_STRING"), TEXT, "A line of a letter", {
            name: WITHOUT_CR for name in ("text/plain", "text/plain;charset=utf-8")}, heavy=True),
    "gimp": Client("GIMP", "a picture", ImageEditor, lambda client: in_time(lambda: key("ctrl+a", "ctrl+c"), "image/png"),
                   IMAGE, "Image 32 × 24", heavy=True),
    "firefox": Client("Firefox ESR", "styled words", Firefox, lambda client: client.copy_words(), RICH,
                      "Styled words of a page", {"text/x-moz-url-priv": UNDER_ONE_NAME}, heavy=True),
    "firefox-link": Client("Firefox ESR", "the address of a link", lambda: Firefox(page_with_link_and_picture()), link_address("l"),
                           LINK, ADDRESS, heavy=True),
    "firefox-menu": Client("Firefox ESR", "a picture of a page", lambda: Firefox(page_with_link_and_picture()), picture_by_menu,
                           IMAGE, "Image 40 × 30", heavy=True),
}
