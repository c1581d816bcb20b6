# SPDX-License-Identifier: GPL-3.0-or-later
"""The rows of the fidelity matrix: what each client copies, and the clip that is expected of it."""

import base64
import re

from clients import (Chromium, ClawsMail, FeatherPad, Firefox, Gcolor3, Gimp, GnomeTextEditor, KeePassXC, LibreOffice, Mousepad,
                     Pcmanfm, XTerm, until_copied)
from desktop import Failure, clipboard, key, run, type_text, wait_until, window_title

TEXT, RICH, LINK, IMAGE, FILE, COLOR = range(6)


class Row:
    """`start` starts the client, `copy` makes it copy. `kind` None: the copy is refused. `differs` names targets that come back
    otherwise, and why."""

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


ADDRESS = "https://example.org/a/page?x=1"


def page_with_link_and_picture():
    """The page, with a link that F4 chooses, and a picture in its lower right corner."""
    png = base64.b64encode(run("convert", "-size", "40x30", "gradient:red-blue", "png:-")).decode()
    return Chromium.PAGE.replace("<p id=words>", f"""<a id=link href="{ADDRESS}">A fine page</a>
<img style="position:fixed;right:0;bottom:0;width:200px;height:150px" src="data:image/png;base64,{png}"><p id=words>""").replace(
        "  if (e.key === 'F2')", "  if (e.key === 'F4') { document.getElementById('link').focus(); document.title = 'link'; }\n"
        "  if (e.key === 'F2')")


def linking_chromium():
    return Chromium(page_with_link_and_picture())


def linking_firefox():
    return Firefox(page_with_link_and_picture())


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
    """Copies by an entry of the context menu. Opens the menu again if the previous one was still closing: it takes the click."""

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
    # Not by the list that tells a cut: reading that takes the files off the clipboard.
    wait_until(lambda: (clipboard("application/x-kde-cutselection") or b"").startswith(b"1"), "the cut file on the clipboard", 20)


def typed(text):
    def copy(client):
        client.get_ready()
        type_text(text)
        until_copied(lambda: key("ctrl+a", "ctrl+c"), "UTF8_STRING")

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

ROWS = {
    "xterm": Row("xterm", "a line", XTerm, lambda client: client.copy_first_line(), TEXT, XTerm.FIRST_LINE),
    "mousepad": Row("mousepad (GTK 3)", "a line", Mousepad, typed("words of gtk three"), TEXT, "words of gtk three"),
    "gnome-text-editor": Row("gnome-text-editor (GTK 4)", "a line", GnomeTextEditor, typed("words of gtk four"), TEXT,
                                "words of gtk four", {name: NO_NUL for name in ("COMPOUND_TEXT", "STRING", "TEXT")}),
    "featherpad": Row("featherpad (Qt 5)", "a line", FeatherPad, typed("words of qt five"), TEXT, "words of qt five"),
    "chromium-text": Row("chromium", "styled words", Chromium, lambda client: client.copy_words(), RICH, Chromium.WORDS),
    "chromium-image": Row("chromium", "a picture", Chromium, browser_picture, IMAGE, "Image 32 × 24"),
    "chromium-link": Row("chromium", "the address of a link", linking_chromium, link_address("e"), LINK, ADDRESS),
    "chromium-menu": Row("chromium", "a picture of a page", linking_chromium, picture_by_menu, IMAGE, "Image 40 × 30"),
    "pcmanfm-file": Row("pcmanfm", "a file", lambda: Pcmanfm("one.txt"), lambda client: client.copy_all(), FILE, "one.txt", FILES),
    "pcmanfm-files": Row("pcmanfm", "three files", lambda: Pcmanfm("a ü.txt", "b.txt", "c.txt"),
                            lambda client: client.copy_all(), FILE, "a ü.txt and 2 more", FILES),
    "pcmanfm-cut": Row("pcmanfm", "a file, cut", lambda: Pcmanfm("cut.txt"), lambda client: (
        client.copy_all(), cut(client)), FILE, "cut.txt", FILES),
    "gcolor3": Row("gcolor3", "a colour", Gcolor3, hex_of_picker, COLOR, copied_word),
    "keepassxc": Row("keepassxc", "a password", KeePassXC, lambda client: client.copy_password(), None, None),
    "writer": Row("LibreOffice Writer", "styled words", lambda: LibreOffice(
        "letter.html", "<html><body><p>A <b>bold</b> letter</p></body></html>"),
        lambda client: until_copied(lambda: key("ctrl+a", "ctrl+c"), "UTF8_STRING"), RICH, "A bold letter", heavy=True),
    "calc": Row("LibreOffice Calc", "four cells", lambda: LibreOffice("cells.fods", CELLS), lambda client: until_copied(
        lambda: key("ctrl+Home", "ctrl+shift+End", "ctrl+c"), "image/png"), IMAGE, image_title, heavy=True),
    "claws-mail": Row("Claws Mail", "a line of a letter", ClawsMail, lambda client: until_copied(
        client.copy_letter, "UTF8_STRING"), TEXT, "A line of a letter", {
            name: WITHOUT_CR for name in ("text/plain", "text/plain;charset=utf-8")}, heavy=True),
    "gimp": Row("GIMP", "a picture", Gimp, lambda client: until_copied(lambda: key("ctrl+a", "ctrl+c"), "image/png"),
                   IMAGE, "Image 32 × 24", heavy=True),
    "firefox": Row("Firefox ESR", "styled words", Firefox, lambda client: client.copy_words(), RICH,
                      Chromium.WORDS, {"text/x-moz-url-priv": UNDER_ONE_NAME}, heavy=True),
    "firefox-link": Row("Firefox ESR", "the address of a link", linking_firefox, link_address("l"),
                           LINK, ADDRESS, heavy=True),
    "firefox-menu": Row("Firefox ESR", "a picture of a page", linking_firefox, picture_by_menu,
                           IMAGE, "Image 40 × 30", heavy=True),
}
