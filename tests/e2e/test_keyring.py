# SPDX-License-Identifier: GPL-3.0-or-later
"""Without a usable key the program holds everything in memory, says so, and leaves the history alone."""

import os
import shutil
import subprocess
import tempfile

import keyring
from clients import FeatherPad
from desktop import (DATA, QUIET, Process, Vellumry, copy_text, key, main, open_panel, own_tests, picture, run, same,
                     wait_panel_closed, wait_same, wait_until, windows)
from history_probe import HistoryProbe, ids

ITEM = ("service", "com.vellumry.Vellumry.history", "account", "history-key-v1")
BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:dir={folder}</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>"""


class BareBus(Process):
    """A session bus on which no service is and none can be started."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="bus")
        config = os.path.join(self.folder, "bus.conf")
        with open(config, "w", encoding="utf-8") as file:
            file.write(BUS.format(folder=self.folder))
        super().__init__("dbus-daemon", "--nofork", "--print-address", "--config-file=" + config, stdout=subprocess.PIPE)
        self.address = self.handle.stdout.readline().decode().strip()

    def stop(self, *arguments):
        super().stop(*arguments)
        self.handle.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)


def accessibility_bus():
    said = run("gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus", "--method",
               "org.a11y.Bus.GetAddress").decode()
    return said.strip()[2:-3]


def keep_a_history():
    """Leaves a history of two clips behind; its files as they are when the program has gone."""
    with Vellumry():
        probe = HistoryProbe()
        probe.copy_is_prompt("kept before, first")
        probe.copy_is_prompt("kept before, second")
    return files()


def files():
    found = {}
    for name in sorted(os.listdir(DATA)):
        with open(os.path.join(DATA, name), "rb") as file:
            found[name] = file.read()
    return found


def works_in_memory(name):
    """Answers the alert, then copies and pastes; what lies sealed is not among the rows."""
    wait_until(lambda: windows("^Vellumry$"), "the alert", 30)
    picture(name)
    subprocess.run(["xdotool", "windowactivate", "--sync", windows("^Vellumry$")[0]], **QUIET)
    key("Return")
    wait_panel_closed()
    with FeatherPad() as editor:
        for text in ("held in memory, first", "held in memory, second"):
            copy_text(text)
            wait_same(lambda: pasted(editor), text, "the copy on top of the panel")
        same(pasted(editor, "Down"), "held in memory, first", "the row below it")
        # Two rows: Down in the second stays there. A clip from before would come third.
        same(pasted(editor, "Down", "Down", "Down"), "held in memory, second", "the last row, after the first was used")


def pasted(editor, *moves):
    """What the editor holds once the chosen row was pasted into it while it was empty."""
    key("ctrl+a")
    key("Delete")
    wait_same(editor.content, "", "an empty editor")
    open_panel()
    for move in moves:
        key(move)
    key("Return")
    wait_panel_closed()
    return wait_until(editor.content, "a paste in the editor")


def the_old_history_is_back():
    with Vellumry():
        probe = HistoryProbe()
        same(probe.texts(), ["kept before, second", "kept before, first"], "the history")
        probe.copy_is_prompt("kept again")


def without_a_keyring():
    before = keep_a_history()
    with BareBus() as bus:
        with Vellumry(environment={"DBUS_SESSION_BUS_ADDRESS": bus.address, "AT_SPI_BUS_ADDRESS": accessibility_bus()}):
            works_in_memory("no-keyring")
    same(files() == before, True, "the files of the history are as they were")
    the_old_history_is_back()


def without_a_session_bus():
    before = keep_a_history()
    with Vellumry(environment={"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus",
                               "AT_SPI_BUS_ADDRESS": accessibility_bus()}):
        works_in_memory("no-bus")
    same(files() == before, True, "the files of the history are as they were")
    the_old_history_is_back()


def stored_key():
    return run("secret-tool", "lookup", *ITEM)


def store_key(data):
    subprocess.run(["secret-tool", "clear", *ITEM], **QUIET)
    run("secret-tool", "store", "--label=Vellumry history key", *ITEM, data=data)


def with_a_key_of_sixteen_bytes():
    right = b"thirty-two letters make one key!"
    store_key(right)
    before = keep_a_history()
    store_key(b"sixteen letters!")
    with Vellumry():
        works_in_memory("damaged-key")
    same(files() == before, True, "the files of the history are as they were")
    same(stored_key(), b"sixteen letters!", "the stored key is left alone")
    store_key(right)
    the_old_history_is_back()


def refuse_the_keyring():
    """Its question takes keys once it is drawn; before that they go elsewhere."""

    def answered():
        if windows("^Unlock"):
            key("Escape")
        return not windows("^Unlock")

    wait_until(lambda: windows("^Unlock"), "the keyring's question")
    wait_until(answered, "the keyring's question to go")


def with_a_locked_keyring():
    before = keep_a_history()
    keyring.lock()
    with Vellumry(ready=False) as program:
        refuse_the_keyring()
        program.wait_ready()
        works_in_memory("locked-keyring")
    same(files() == before, True, "the files of the history are as they were")
    keyring.unlock()
    the_old_history_is_back()


def with_a_keyring_that_is_unlocked_later():
    keep_a_history()
    keyring.lock()
    with Vellumry(ready=False) as program:
        refuse_the_keyring()
        program.wait_ready()
        wait_until(lambda: windows("^Vellumry$"), "the alert")
        copy_text("copied while it was locked")
        same(len(ids()), 2, "the rows of the file meanwhile")
        keyring.unlock()
        wait_same(lambda: len(ids()), 3, "the copy in the file", 60)
        wait_panel_closed()
        probe = HistoryProbe()
        same(probe.texts(), ["copied while it was locked", "kept before, second", "kept before, first"], "the history")
        probe.copy_is_prompt("copied after it")


def with_the_keyring_s_question_unanswered():
    """The clipboard is watched from the first second; what was copied joins the file once the keyring is open."""
    keep_a_history()
    keyring.lock()
    with Vellumry(ready=False) as program:
        wait_until(lambda: windows("^Unlock"), "the keyring's question", 60)
        program.wait_ready()
        copy_text("copied behind the question")
        same(len(ids()), 2, "the rows of the file meanwhile")
        key("Escape")
        wait_until(lambda: windows("^Vellumry$"), "the alert", 60)
        same(len(ids()), 2, "the rows of the file while the keyring is locked")
        keyring.unlock()
        wait_same(lambda: len(ids()), 3, "the copy in the file", 60)


def with_a_service_that_has_no_keyring():
    """The last of this session: the key is lost with its keyring."""
    before = keep_a_history()
    keyring.delete()
    with Vellumry():
        works_in_memory("no-collection")
    same(files() == before, True, "the files of the history are as they were")


if __name__ == "__main__":
    main(own_tests())
