# SPDX-License-Identifier: GPL-3.0-or-later
"""The foreign applications of the tests: how each is started, made to copy, made to paste, and asked what it holds."""

import os
import subprocess
import tempfile
import urllib.parse

from desktop import (Failure, Process, accessible, clipboard, focus, key, run, text_shown, type_text, wait_until, window_of_class,
                     window_title, windows)


def fresh_home():
    """An environment in which an application finds nothing of its earlier runs: an editor that was ended offers to restore."""
    folder = tempfile.mkdtemp(prefix="client")
    return dict(os.environ, XDG_CONFIG_HOME=folder + "/config", XDG_DATA_HOME=folder + "/data", XDG_CACHE_HOME=folder + "/cache")


class XTerminal(Process):
    """xterm, which pastes the primary selection on Shift+Insert and copies what is selected."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="xterm")
        self.typed = os.path.join(self.folder, "typed")
        super().__init__("xterm", "-xrm", "XTerm*selectToClipboard: true", "-geometry", "100x30", "-e",
                         "sh", "-c", f"echo one-terminal-word; exec cat > {self.typed}")
        self.window = window_of_class("XTerm")
        focus(self.window)

    def copy_first_line(self):
        """A triple click on the first line copies it."""
        run("xdotool", "mousemove", "--window", self.window, "30", "10")
        run("xdotool", "click", "--repeat", "3", "--delay", "30", "1")
        return "one-terminal-word\n"

    def finish_line(self):
        key("Return")

    def content(self):
        with open(self.typed, encoding="utf-8") as file:
            return file.read()


class GtkEditor(Process):
    """mousepad, a GTK 3 editor."""

    def __init__(self):
        super().__init__("dbus-run-session", "mousepad", "--disable-server", env=fresh_home())
        self.window = window_of_class("mousepad")
        focus(self.window)

    def type_and_copy(self, text):
        type_text(text)
        wait_until(lambda: self.content() == text, "the typed text in the editor")
        key("ctrl+a")
        key("ctrl+c")

    def clear(self):
        key("ctrl+a")
        key("Delete")

    def content(self):
        return text_shown("mousepad")


class QtEditor(Process):
    """featherpad, a Qt 5 editor."""

    def __init__(self):
        super().__init__("featherpad", "--standalone", env=fresh_home())
        self.window = window_of_class("featherpad")
        focus(self.window)

    def type_and_copy(self, text):
        type_text(text)
        wait_until(lambda: self.content() == text, "the typed text in the editor")
        key("ctrl+a")
        key("ctrl+c")

    def content(self):
        return text_shown("featherpad")


class Browser(Process):
    """chromium with one page of ours."""

    PAGE = """<!doctype html><meta charset=utf-8><title>page</title>
<p id=words>Styled <b>words</b> of a page</p><textarea id=area oninput="document.title='area:'+this.value"></textarea>
<script>
function choose() { const r = document.createRange(); r.selectNodeContents(document.getElementById('words'));
  const s = getSelection(); s.removeAllRanges(); s.addRange(r); }
function draw() { const c = document.createElement('canvas'); c.width = 32; c.height = 24;
  const d = c.getContext('2d'); d.fillStyle = '#1565c0'; d.fillRect(4, 4, 24, 16);
  c.toBlob(b => navigator.clipboard.write([new ClipboardItem({'image/png': b})])); }
addEventListener('keydown', e => { if (e.key === 'F8') { choose(); document.title = 'chosen'; }
  if (e.key === 'F2') { draw(); e.preventDefault(); }
  if (e.key === 'F9') { document.getElementById('area').focus(); document.title = 'area:'; } });
document.title = 'ready';
</script>"""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="browser")
        page = os.path.join(self.folder, "page.html")
        with open(page, "w", encoding="utf-8") as file:
            file.write(self.PAGE)
        super().__init__("chromium", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--no-default-browser-check",
                         "--disable-background-networking", "--disable-component-update", "--disable-sync",
                         "--password-store=basic", "--disable-dev-shm-usage",
                         "--user-data-dir=" + self.folder, "--app=file://" + page)
        self.window = wait_until(lambda: (windows("^ready") or [None])[0], "the browser's page", 60)
        focus(self.window)

    def press_until(self, name, title):
        """Keys that come before the page was painted are dropped."""

        def pressed():
            key(name)
            try:
                return wait_until(lambda: window_title(self.window).startswith(title), title, 1)
            except Failure:
                return False

        wait_until(pressed, f"the page to hear of {name}", 60)

    def copy_words(self):
        self.press_until("F8", "chosen")
        key("ctrl+c")
        return "Styled words of a page"

    def enter_area(self):
        self.press_until("F9", "area:")

    def content(self):
        title = window_title(self.window)
        return title[len("area:"):] if title.startswith("area:") else None


class FileManager(Process):
    """pcmanfm with a folder of its own."""

    def __init__(self, *names):
        self.folder = tempfile.mkdtemp(prefix="files")
        self.paths = [os.path.join(self.folder, name) for name in names]
        for path in self.paths:
            with open(path, "w", encoding="utf-8") as file:
                file.write("content of " + os.path.basename(path))
        super().__init__("dbus-run-session", "pcmanfm", "--no-desktop", self.folder)
        self.window = window_of_class("pcmanfm")
        focus(self.window)

    def copy_all(self):
        """Copies every file; the folder may still be filling, so until the clipboard holds them all."""

        def copied():
            key("ctrl+a", "ctrl+c")
            listed = urllib.parse.unquote_to_bytes(clipboard("text/uri-list") or b"")
            return all(path.encode() in listed for path in self.paths)

        wait_until(copied, "the files on the clipboard")


class PasswordManager(Process):
    """KeePassXC with one entry."""

    SECRET = "correct-horse-41-battery"

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="keepass")
        vault = os.path.join(self.folder, "vault.kdbx")
        subprocess.run(["keepassxc-cli", "db-create", "--set-password", vault], input=b"open\nopen\n", check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60)
        subprocess.run(["keepassxc-cli", "add", "--username", "someone", "--password-prompt", vault, "entry"],
                       input=("open\n" + self.SECRET + "\n" + self.SECRET + "\n").encode(), check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=60)
        super().__init__("keepassxc", "--pw-stdin", vault, stdin=subprocess.PIPE, env=fresh_home())
        self.handle.stdin.write(b"open\n")
        self.handle.stdin.close()
        self.window = wait_until(lambda: (windows("vault.*KeePassXC") or [None])[0], "the password manager's vault", 60)
        focus(self.window)

    def copy_password(self):
        """Selects the entry and copies its password."""
        wait_until(lambda: accessible("keepassxc", "table cell", "^entry$"), "the entry", 60)
        node = accessible("keepassxc", "table cell", "^entry$")
        area = node.queryComponent().getExtents(0)
        run("xdotool", "mousemove", str(area.x + area.width // 2), str(area.y + area.height // 2), "click", "1")
        key("ctrl+c")
