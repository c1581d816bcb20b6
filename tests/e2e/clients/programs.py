# SPDX-License-Identifier: GPL-3.0-or-later
"""A file manager, an office suite, a mail program and others."""

import os
import re
import tempfile
import urllib.parse

from desktop import clipboard, key, run, wait_until

from .base import HERE, Client, written


class Pcmanfm(Client):
    """With a folder of its own."""

    def __init__(self, *names):
        self.folder = tempfile.mkdtemp(prefix="files")
        self.paths = [written(self.folder, name, "content of " + name) for name in names]
        super().__init__("dbus-run-session", "pcmanfm", "--no-desktop", self.folder, window_class="pcmanfm")

    def copy_all(self):
        """Copies every file; the folder may still be filling, so until the clipboard holds them all."""

        def copied():
            key("ctrl+a", "ctrl+c")
            listed = urllib.parse.unquote_to_bytes(clipboard("text/uri-list") or b"")
            return all(path.encode() in listed for path in self.paths)

        wait_until(copied, "the files on the clipboard")


class Gcolor3(Client):
    """A colour picker, whose entry holds a colour as text."""

    def __init__(self):
        super().__init__("dbus-run-session", "gcolor3", window_title="^Color Picker")


class LibreOffice(Client):
    """With one document."""

    start_limit = 150.0
    # The question for the file's format comes at some time after a save and takes what is typed meanwhile.
    SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Common/Save/Document"><prop oor:name="WarnAlienFormat"><value>false</value></prop></item>
</oor:items>"""

    def __init__(self, name, content):
        folder = tempfile.mkdtemp(prefix="office")
        super().__init__(*self.command(folder), written(folder, name, content),
                         window_title="^" + re.escape(os.path.splitext(name)[0]))

    @classmethod
    def command(cls, folder):
        """With a profile in that folder."""
        os.makedirs(os.path.join(folder, "profile", "user"))
        written(os.path.join(folder, "profile", "user"), "registrymodifications.xcu", cls.SETTINGS)
        return ("libreoffice", "--norestore", "--nologo", "--nofirststartwizard", f"-env:UserInstallation=file://{folder}/profile")


class ClawsMail(Client):
    """With a letter that is being written, by an account that leads nowhere."""

    FOLDERS = {"inbox": "inbox", "outbox": "sent", "draft": "draft", "queue": "queue", "trash": "trash"}

    def __init__(self):
        folder = tempfile.mkdtemp(prefix="mail")
        for name in self.FOLDERS.values():
            os.makedirs(os.path.join(folder, "Mail", name))
        items = "".join(f'<folderitem type="{kind}" name="{name}" path="{name}"/>' for kind, name in self.FOLDERS.items())
        written(folder, "accountrc",
                "[Account: 1]\naccount_name=me\nis_default=1\nname=Me\naddress=me@example.org\nprotocol=5\n")
        written(folder, "clawsrc", "[Common]\nenable_aspell=0\n")
        written(folder, "folderlist.xml", f"""<?xml version="1.0" encoding="UTF-8"?>
<folderlist><folder type="mh" name="Mail" path="{folder}/Mail"><folderitem type="normal" name="" path="">{items}</folderitem>
</folder></folderlist>
""")
        super().__init__("dbus-run-session", "claws-mail", "--alternate-config-dir", folder, "--compose",
                         "mailto:you@example.org?subject=news&body=A%20line%20of%20a%20letter", window_title="Compose message")

    def copy_letter(self):
        """The keyboard is with the addresses at first."""
        run("xdotool", "mousemove", "--window", self.window, "200", "450", "click", "1")
        key("ctrl+a", "ctrl+c")


class Gimp(Client):
    """With one small picture."""

    start_limit = 150.0

    def __init__(self):
        path = os.path.join(tempfile.mkdtemp(prefix="gimp"), "small.png")
        run("convert", "-size", "32x24", "gradient:red-blue", path)
        super().__init__("gimp", "--no-splash", "--new-instance", path, window_title="small")


class SwingWindow(Client):
    """A Java window of ours that writes its text down at each change."""

    title, toolkit = "a Java window", "Swing"

    def __init__(self):
        self.path = os.path.join(tempfile.mkdtemp(prefix="java"), "typed")
        super().__init__("java", os.path.join(HERE, "SwingWindow.java"), self.path, window_title="^Swing$")
        wait_until(lambda: os.path.exists(self.path), "the text field in the Java window")

    def get_ready(self):
        self.wait_for_keys()
