# SPDX-License-Identifier: GPL-3.0-or-later
"""The log, with everything written, never quotes the user: no copied or typed text, no title, no window, no file or folder, whatever
is done with the program. All of these hold one word here, and no line of the log does."""

import os
import re
import shutil
import subprocess
import tempfile

from clients import FeatherPad, Mousepad
from clients.owners import Owner
from desktop import (DATA, PROGRAM, Process, Vellumry, accessible, copy_bytes, focus, key, main, open_panel, own_tests, panel_is_open,
                     remember, representation, run, same, text_of, type_text, unsealed, wait_for_clip, wait_panel_closed, wait_same,
                     wait_until, window_of_class, windows)
from panel_rows import choose, middle, open_row_menu, row
from settings_file import write_settings

CANARY = "canary7319"


class Logged:
    """The program with everything written; when it has ended, no line of its log holds the word, and each of `expected` is in one."""

    def __init__(self, *expected, **options):
        self.expected = ("info vellumry.app: found: XTest", *expected)
        self.log = tempfile.TemporaryFile()
        self.program = Vellumry("--verbose", stderr=self.log, **options)

    def __enter__(self):
        return self.program

    def __exit__(self, kind, *_):
        self.program.stop()
        self.log.seek(0)
        text = self.log.read().decode("utf-8", "replace")
        if kind is not None:
            print(text)
            return
        for line in text.splitlines():
            same(CANARY in line.lower(), False, line)
        for words in self.expected:
            same(words in text, True, f"{words!r} in the log: {text}")


def canary_folder():
    return tempfile.mkdtemp(prefix=CANARY)


def canary_file(name=CANARY + ".txt"):
    path = os.path.join(canary_folder(), name)
    with open(path, "w", encoding="utf-8") as file:
        file.write(CANARY)
    return path


def copy_file(path):
    copy_bytes(("file://" + path + "\r\n").encode(), "text/uri-list")
    wait_for_clip(lambda kept: representation(kept, "public.file-url"), "the copied file")


def press(name):
    wait_until(lambda: accessible("vellumry", "push button", f"^{re.escape(name)}$"), f"the button {name}").queryAction().doAction(0)


def of_copies_searches_pastes_and_a_stack():
    """In front of a window whose title is the word, too."""
    with Logged("info vellumry.capture: A copy is taken: kind 0 ", "info vellumry.paste: pasted"), Process("xterm", "-T", CANARY, "-e", "sleep", "1000"):
        focus(window_of_class("XTerm"))
        remember("text of the " + CANARY)
        copy_bytes(run("convert", "-size", "400x60", "-pointsize", "40", f"label:{CANARY}", "png:-"), "image/png")
        wait_for_clip(lambda kept: kept["kind"] == 3, "the picture")
        copy_file(canary_file())
        with Mousepad() as client:
            open_panel()
            type_text("text of the " + CANARY)
            key("Return")
            wait_panel_closed()
            wait_until(lambda: CANARY in (client.content() or ""), "the paste")
            key("super+ctrl+s")
            remember("stacked " + CANARY)
            key("ctrl+v")
            wait_until(lambda: "stacked" in client.content(), "the paste of the stack")


def of_previews_menus_merges_and_deletions():
    with Logged(), Mousepad() as editor:
        remember(f"first {CANARY}\nwith a second line", f"https://{CANARY}.example/path", f"last {CANARY}")
        open_panel()
        wait_until(lambda: accessible("vellumry", "label", f"^last {CANARY}$"), "the preview")
        open_row_menu(f"last {CANARY}")
        choose("Pin")
        wait_for_clip(lambda kept: kept["pinned"], "the pin")
        key("ctrl+t", "Down", "Return")
        wait_panel_closed()
        wait_until(lambda: CANARY.upper() in editor.content().upper(), "the transformed paste")
        open_panel()
        key("shift+Down", "Return")
        wait_panel_closed()
        wait_for_clip(lambda kept: kept["sourceAppName"] == "Merged", "the merged clip")
        open_panel()
        before = len(unsealed())
        key("Delete")
        wait_until(lambda: len(unsealed()) < before, "the deletion")
        key("ctrl+z")
        wait_same(lambda: len(unsealed()), before, "the deleted clip back")
        key("Escape")


def of_drags():
    """A text into an editor, a file that is refused by a window."""
    with Logged(), FeatherPad() as editor:
        remember(f"dragged {CANARY}")
        run("xdotool", "windowmove", editor.window, "0", "0", "windowsize", editor.window, "500", "400")
        open_panel()
        x, y = middle(row(f"dragged {CANARY}"))
        run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
        for step in range(1, 13):
            run("xdotool", "mousemove", str(x + (250 - x) * step // 12), str(y + (200 - y) * step // 12))
        run("xdotool", "mouseup", "1")
        wait_panel_closed()
        wait_until(lambda: CANARY in (editor.content() or ""), "the text in the editor")


def of_exports_and_imports():
    """Into a folder and out of it, and into one that is not empty."""
    target = os.path.join(canary_folder(), CANARY)
    with Logged("info vellumry.transfer: an export has ended: clips 1", "info vellumry.transfer: an import has ended: added 1"):
        remember("exported " + CANARY)
        subprocess.run([PROGRAM, "--action", "open-settings"], timeout=60, check=True)
        focus(wait_until(lambda: windows("^Vellumry Settings$"), "the settings")[0])
        wait_until(lambda: accessible("vellumry", "page tab", "^History$"), "the pane").queryAction().doAction(0)
        for result in (f"is in {target}", "not empty"):
            press("Export…")
            key("ctrl+a")
            type_text(target)
            press("Export")
            wait_until(lambda: any(accessible("vellumry", role, result) for role in ("label", "static", "alert", "notification"))
                       or os.path.exists(os.path.join(target, "index.json")), result)
            key("Escape")
        open_panel()
        key("Delete")
        wait_until(lambda: not unsealed(), "the deletion")
        key("Escape")
        wait_panel_closed()
        focus(wait_until(lambda: windows("^Vellumry Settings$"), "the settings")[0])
        press("Import…")
        wait_until(lambda: accessible("vellumry", "text", "Folder to import from"), "the field").queryComponent().grabFocus()
        type_text(target)
        key("Return")
        wait_for_clip(lambda kept: text_of(kept) == "exported " + CANARY, "the imported clip")


def of_refusals():
    """What is not kept, not pasted, not decoded and not understood."""
    write_settings(f"openPanelShortcut={CANARY}", f'ignoredApps=["{CANARY}"]', f"appearance={CANARY}")
    with Logged("A copy is not kept: its program asks for that.", "not pasted: the files of the clip are gone"), Mousepad():
        with Owner({"UTF8_STRING": CANARY.encode(), "x-kde-passwordManagerHint": b"secret"}) as owner:
            wait_until(lambda: "TARGETS" in owner.requests(), "the program to look at what is offered")
            remember("a card 4111 1111 1111 1111 " + CANARY)
        with Owner({"UTF8_STRING": b"", CANARY + "/" + CANARY: CANARY.encode()}) as owner:
            wait_until(lambda: owner.requests(), "the program to look at what is offered")
            remember("after nothing of use")
        copy_bytes(b"\x89PNG\r\n\x1a\n" + CANARY.encode(), "image/png")
        wait_for_clip(lambda kept: kept["kind"] == 3, "the broken picture")
        path = canary_file()
        copy_file(path)
        os.remove(path)
        open_panel()
        key("Return")
        wait_panel_closed()
        wait_until(lambda: windows("^Vellumry message$"), "the message")
        subprocess.run([PROGRAM, "--action", CANARY], timeout=60, check=True)
    write_settings()


def of_folders_that_cannot_be_used():
    """A history folder whose place is taken, below one that bears the word."""
    home = canary_folder()
    with open(os.path.join(home, "Vellumry"), "w", encoding="utf-8") as file:
        file.write(CANARY)
    with Logged("the history is kept in memory: the folder cannot be written to", environment={"XDG_DATA_HOME": home}):
        wait_until(lambda: accessible("vellumry", "push button", "^OK$"), "the alert")
        status = run(PROGRAM, "--status").decode()
        same("(the folder cannot be written to)" in status, True, status)
        same(CANARY in status, False, status)
    shutil.rmtree(home)


def of_a_history_that_is_put_aside():
    """One of another key, with the word in it."""
    with Logged():
        remember("kept " + CANARY)
    run("secret-tool", "clear", "service", "com.vellumry.Vellumry.history", "account", "history-key-v1")
    with Logged("warning vellumry.history: the history file was put aside"):
        wait_until(lambda: accessible("vellumry", "push button", "^OK$"), "the alert")
        key("Return")
    same(panel_is_open(), False, "the panel")
    shutil.rmtree(DATA)


if __name__ == "__main__":
    main(own_tests())
