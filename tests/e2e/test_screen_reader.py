# SPDX-License-Identifier: GPL-3.0-or-later
"""What Orca says while the panel is used, by its own log: the speech goes to a synthesiser that makes no sound."""

import os
import re
import subprocess
import tempfile

from desktop import remember, Process, Vellumry, key, main, own_tests, panel_is_open, same, wait_for_clip, text_of, wait_same, wait_until
from panel_rows import texts_kept

# Its log is written in blocks of kilobytes otherwise, and the last words would be missing.
BY_LINES = """import builtins, runpy, sys
plain, log = open, sys.argv[1]
builtins.open = lambda path, *rest, **named: plain(path, "w", 1) if path == log else plain(path, *rest, **named)
sys.argv = ["/usr/bin/orca", "--replace", "--debug-file=" + log]
runpy.run_path(sys.argv[0], run_name="__main__")"""
# The synthesiser wants a sound device since version 0.12.
SYNTHESISER = 'LogLevel 1\nAudioOutputMethod "libao"\nAddModule "dummy" "sd_dummy" ""\nDefaultModule dummy\n'
SOUND = "default_driver=null\n"


# Writes down whose row became the active one, of which list.
LISTENER = """import pyatspi, sys
def told(event):
    print(event.source.name, event.any_data.name, sep=": ", flush=True)
pyatspi.Registry.registerEventListener(told, "object:active-descendant-changed")
print("ready", flush=True)
pyatspi.Registry.start()"""


class Listener(Process):
    """Another assistive program, which follows the active rows of lists."""

    def __init__(self):
        self.log = os.path.join(tempfile.mkdtemp(prefix="listener"), "told")
        super().__init__("sh", "-c", 'exec /usr/bin/python3 -c "$0" >"$1"', LISTENER, self.log)
        wait_same(self.told, ["ready"], "the listener")

    def told(self):
        if not os.path.exists(self.log):
            return []
        with open(self.log, encoding="utf-8") as file:
            return file.read().splitlines()


class Orca(Process):
    """The screen reader of the session."""

    def __init__(self):
        folder = os.path.join(os.environ["XDG_CONFIG_HOME"], "speech-dispatcher")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "speechd.conf"), "w", encoding="utf-8") as file:
            file.write(SYNTHESISER)
        with open(os.path.expanduser("~/.libao"), "w", encoding="utf-8") as file:
            file.write(SOUND)
        self.log = os.path.join(tempfile.mkdtemp(prefix="orca"), "debug")
        super().__init__("/usr/bin/python3", "-c", BY_LINES, self.log, env=dict(os.environ, PATH="/usr/bin:/bin"))
        wait_until(lambda: any("Screen reader on" in said for said in self.said()), "the screen reader")

    def said(self):
        """What it has said so far, one text for each time it spoke."""
        if not os.path.exists(self.log):
            return []
        with open(self.log, encoding="utf-8", errors="replace") as file:
            return re.findall(r"SPEECH OUTPUT: '(.*?)' ?\{", file.read())

    def hears(self, act, *words):
        """Does something, waits until all words have been said since, and answers all that was."""
        before = len(self.said())
        act()
        missing = lambda: [word for word in words if not any(word in said for said in self.said()[before:])]
        try:
            wait_until(lambda: not missing(), "spoken: " + ", ".join(words))
        except AssertionError:
            raise AssertionError(f"not spoken: {missing()}; spoken: {self.said()[before:]}") from None
        return self.said()[before:]


def open_panel():
    key("super+ctrl+v")
    wait_until(panel_is_open, "the panel")


def rows_are_read_with_all_that_they_show():
    """The title, where it came from, the digit of its shortcut, and whether it is pinned."""
    with Orca() as orca, Vellumry():
        remember("first text", "second text")
        orca.hears(open_panel, "second text")
        orca.hears(lambda: key("Down"), "first text", "Unknown app", "Ctrl+2")
        orca.hears(lambda: key("ctrl+p"), "first text")
        wait_for_clip(lambda row: text_of(row) == "first text" and row["pinned"], "the pin")

        def hears_of_the_pin():
            orca.hears(lambda: key("Down"), "second text", "Unknown app")
            said = orca.hears(lambda: key("Up"), "first text", "Unknown app")
            return any("Pinned, Super+Alt+1 anywhere" in words for words in said)

        # What it has read of an object it keeps for two seconds, since version 48.
        wait_until(hears_of_the_pin, "the pin to be read")


def the_menu_is_read():
    """Its first entry when the keys open it, its entries as the arrows come to them, and the row again when it closes."""
    with Orca() as orca, Vellumry():
        remember("first text", "second text")
        orca.hears(open_panel, "second text")
        orca.hears(lambda: key("shift+F10"), "Paste")
        orca.hears(lambda: key("Down"), "Paste as Plain Text")
        orca.hears(lambda: key("Home"), "Paste")
        orca.hears(lambda: key("Escape"), "second text")


def it_is_told_which_row_the_keys_work_on():
    """While the focus stays in the search field."""
    with Vellumry(), Listener() as listener:
        remember("first text", "second text")
        open_panel()
        wait_until(lambda: "Clips: second text" in listener.told(), "the row at the start")
        key("Down")
        wait_same(lambda: listener.told()[-1], "Clips: first text", "the next row")


def of_a_deletion_the_neighbour_is_read_once():
    """And nothing of what was deleted, nor does the log tell how often it was asked for."""
    with Orca() as orca, Vellumry(stderr=subprocess.PIPE) as program:
        remember("first text", "second text", "third text")
        orca.hears(open_panel, "third text")
        before = len(orca.said())
        orca.hears(lambda: key("ctrl+Delete"), "second text")
        wait_same(lambda: len(texts_kept()), 2, "the deletion")
        orca.hears(lambda: key("Down"), "first text")
        said = orca.said()[before:]
        same([words for words in said if "third text" in words], [], "what is said of the deleted clip")
        same(len([words for words in said if "second text" in words]), 1, f"how often the neighbour is read in {said}")
        program.stop()
        log = program.handle.stderr.read().decode()
        same([line for line in log.splitlines() if "atspi" in line], [], "the log")


if __name__ == "__main__":
    main(own_tests())
