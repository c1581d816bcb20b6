# SPDX-License-Identifier: GPL-3.0-or-later
"""Browsers with one page of ours, whose title tells how far it is and what its text field holds."""

import tempfile

from desktop import Failure, key, wait_until, window_title

from .base import Client, until_copied, written


class Browser(Client):
    toolkit = "a text field of a page"

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
    WORDS = "Styled words of a page"

    def __init__(self, command, page):
        self.folder = tempfile.mkdtemp(prefix="browser")
        super().__init__(*command(self.folder, "file://" + written(self.folder, "page.html", page)), window_title="^ready")

    def press_until(self, name, title):
        """Keys that come before the page was painted are dropped."""

        def pressed():
            key(name)
            try:
                return wait_until(lambda: window_title(self.window).startswith(title), title, 1)
            except Failure:
                return False

        wait_until(pressed, f"the page to hear of {name}")

    def copy_words(self):
        self.press_until("F8", "chosen")
        until_copied(lambda: key("ctrl+c"), "text/html")
        return self.WORDS

    def enter_area(self):
        self.press_until("F9", "area:")

    def get_ready(self):
        self.wait_for_keys(self.enter_area)

    def content(self):
        """Of the text field; None while that has not the keyboard."""
        title = window_title(self.window)
        return title[len("area:"):] if title.startswith("area:") else None


class Chromium(Browser):
    title = "Chromium"

    def __init__(self, page=Browser.PAGE):
        super().__init__(lambda folder, address: (
            "chromium", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--no-default-browser-check",
            "--disable-background-networking", "--disable-component-update", "--disable-sync", "--password-store=basic",
            "--disable-dev-shm-usage", "--user-data-dir=" + folder, "--app=" + address), page)


class Firefox(Browser):
    title = "Firefox"
    start_limit = 120.0
    SETTINGS = {"browser.shell.checkDefaultBrowser": "false", "datareporting.policy.dataSubmissionEnabled": "false",
                "browser.aboutwelcome.enabled": "false", "app.update.enabled": "false"}

    def __init__(self, page=Browser.PAGE):
        super().__init__(self.command, page)

    def command(self, folder, address):
        written(folder, "user.js", "".join(f'user_pref("{name}", {value});\n' for name, value in self.SETTINGS.items()))
        return ("firefox-esr", "--no-remote", "--profile", folder, address)

    def content(self):
        """Its own name stands behind the page's title."""
        text = super().content()
        return None if text is None else text.split(" — ")[0]
