# SPDX-License-Identifier: GPL-3.0-or-later
"""What becomes of a paste, and what the user is told: the exact words where no key was pressed, silence where one was."""

import contextlib
import ctypes
import os
import re
import shutil
import signal
import subprocess
import urllib.parse

from Xlib import X, display

from clients import FieldWindow, LockedKeePassXC, Mousepad
from clients.owners import Owner
from desktop import (QUIET, Vellumry, accessible, active_window, clipboard, copy_bytes, focus, key, main, open_panel, own_tests,
                     picture, remember, representation, same, text_of, unsealed, wait_for_clip, wait_panel_closed, wait_same, wait_until,
                     windows)
from settings_file import forget_settings, write_settings

COPIED = "Copied. Press Ctrl+V to paste"
SECURE = "This field blocks pasting from apps. Press Ctrl+V"
DELETED = "This file was deleted"
BLOCKED = "To paste files from Documents, give Vellumry permission to read that folder"

DROP_CAPABILITY = 24
CAPABILITIES_TO_READ_ANYTHING = (1, 2)
MESSAGE = "^Vellumry message$"


def message():
    """The words of the message that shows, or None."""
    if not windows(MESSAGE):
        return None
    found = accessible("vellumry", "notification")
    return found.name if found else None


def told(expected):
    same(wait_until(message, "a message"), expected, "what the user is told")
    picture("message-" + "-".join(re.findall("[a-z]+", expected.lower())[:4]))


def told_nothing():
    same(windows(MESSAGE), [], "messages")


def choose(*keys):
    open_panel_with_a_row()
    key(*(keys or ("Return",)))
    wait_panel_closed()


@contextlib.contextmanager
def held_up(program):
    """What happens inside happens before the program sees any of it, in this order."""
    os.kill(program.pid, signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(program.pid, signal.SIGCONT)


def open_panel_with_a_row():
    open_panel()
    wait_until(lambda: accessible("vellumry", "list item"), "a row")


def window_exists(window):
    return subprocess.run(["xdotool", "getwindowname", window], **QUIET).returncode == 0


def url_of(path):
    return "file://" + urllib.parse.quote(path)


def copied_file(folder="files"):
    """A file of which the history has a copy."""
    path = os.path.join(os.environ["HOME"], folder, "report über.txt")
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write("content of a file")
    copy_bytes((url_of(path) + "\r\n").encode(), "text/uri-list")
    wait_for_clip(lambda row: row["payload"] and "public.file-url" in row["payload"][0]["representations"], "the copy of the file")
    copy_bytes(b"something else", "application/x-unrelated")
    return path


def listed_file():
    """The file on the clipboard."""
    return urllib.parse.unquote((clipboard("text/uri-list") or b"").decode().split("\r\n")[0]).removeprefix("file://")


def pasting_presses_the_key_and_says_nothing():
    with Vellumry(), Mousepad() as editor:
        remember("plain words")
        choose()
        wait_same(editor.content, "plain words", "the paste")
        told_nothing()


def without_direct_paste_it_copies_and_says_so():
    write_settings("pasteDirectly=false")
    try:
        with Vellumry(), Mousepad() as editor:
            remember("older")
            remember("newer")
            choose("Down", "Return")
            told(COPIED)
            same((clipboard(), editor.content()), (b"older", ""), "clipboard and editor")
            same(text_of(unsealed()[0]), "older", "the clip that was used last")
            key("ctrl+v")
            wait_same(editor.content, "older", "the paste by hand")
    finally:
        forget_settings()


def a_keyboard_that_another_program_holds_gets_nothing():
    with Vellumry() as program, Mousepad() as editor:
        remember("a secret place")
        other = display.Display()
        open_panel_with_a_row()
        with held_up(program):
            key("Return")
            taken = other.screen().root.grab_keyboard(False, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime)
            same(taken, X.GrabSuccess, "the grab")
        told(SECURE)
        same((clipboard(), editor.content()), (b"a secret place", ""), "clipboard and editor")
        other.close()


def a_password_field_gets_nothing():
    with Vellumry(), FieldWindow("password") as field:
        remember("not a password")
        choose()
        told(SECURE)
        same((clipboard(), field.content()), (b"not a password", ""), "clipboard and field")
        key("ctrl+v")
        wait_same(field.content, "not a password", "the paste by hand")


def a_password_field_of_a_qt_program_gets_nothing():
    with Vellumry():
        remember("not a password")
        with LockedKeePassXC():
            choose()
            told(SECURE)
            same(clipboard(), b"not a password", "the clipboard")


def a_common_field_beside_a_password_field_gets_its_paste():
    with Vellumry(), FieldWindow("name") as field:
        remember("a name")
        choose()
        wait_same(field.content, "a name", "the paste in the field")
        told_nothing()


def plain_text_goes_without_its_style():
    with Vellumry(), Mousepad() as editor:
        Owner({"UTF8_STRING": b"styled", "text/html": b"<b>styled</b>"})
        row = wait_for_clip(lambda row: text_of(row) == "styled", "the styled copy")
        same(representation(row, "public.html"), b"<b>styled</b>", "the style of the clip")
        choose("shift+Return")
        wait_same(editor.content, "styled", "the words in the editor")
        same(clipboard("text/html"), None, "the style on the clipboard")
        told_nothing()


def a_transform_changes_the_words():
    with Vellumry(), Mousepad() as editor:
        remember("Words OF a Clip")
        choose("ctrl+t", "Return")
        wait_same(editor.content, "words of a clip", "lower case in the editor")
        same(text_of(unsealed()[0]), "Words OF a Clip", "the clip itself")


def a_moved_file_pastes_from_its_new_place():
    with Vellumry(), Mousepad():
        path = copied_file()
        moved = os.path.join(os.path.dirname(path), "renamed.txt")
        os.rename(path, moved)
        choose()
        wait_same(listed_file, moved, "the file's new place on the clipboard")
        told_nothing()


def a_file_in_the_trash_still_pastes():
    with Vellumry(), Mousepad():
        path = copied_file()
        trash = os.path.join(os.environ["XDG_DATA_HOME"], "Trash")
        for folder in ("files", "info"):
            os.makedirs(os.path.join(trash, folder), exist_ok=True)
        trashed = os.path.join(trash, "files", os.path.basename(path))
        with open(os.path.join(trash, "info", os.path.basename(path) + ".trashinfo"), "w", encoding="utf-8") as info:
            info.write(f"[Trash Info]\nPath={urllib.parse.quote(path)}\nDeletionDate=2024-01-01T00:00:00\n")
        os.rename(path, trashed)
        try:
            choose()
            wait_same(listed_file, trashed, "the file in the trash on the clipboard")
            told_nothing()
        finally:
            shutil.rmtree(trash)


def a_deleted_file_is_told_and_leaves_the_clipboard_alone():
    with Vellumry(), Mousepad() as editor:
        path = copied_file()
        os.remove(path)
        choose()
        told(DELETED)
        same((clipboard("application/x-unrelated"), editor.content()), (b"something else", ""), "clipboard and editor")


def without_the_right_to_read_anything():
    """What root may read beyond its permissions is not to be had in the program that starts now."""
    if os.getuid() == 0:
        for capability in CAPABILITIES_TO_READ_ANYTHING:
            ctypes.CDLL(None).prctl(DROP_CAPABILITY, capability, 0, 0, 0)


def a_file_that_may_not_be_read_is_told_by_its_folder():
    with Vellumry(preexec_fn=without_the_right_to_read_anything), Mousepad() as editor:
        path = copied_file("Documents")
        os.chmod(path, 0)
        choose()
        told(BLOCKED)
        same((clipboard("application/x-unrelated"), editor.content()), (b"something else", ""), "clipboard and editor")
        wait_until(lambda: not windows(MESSAGE), "the message to go", 6)
        choose("shift+Return")
        wait_until(lambda: (clipboard() or b"").decode() in (path, os.path.basename(path)), "the file's name, for which no right is needed")


def a_target_that_closes_under_the_panel_leaves_its_text_to_nobody():
    with Vellumry(), FieldWindow("name") as neighbour, Mousepad() as editor:
        remember("meant for the editor")
        open_panel_with_a_row()
        editor.stop()
        wait_until(lambda: active_window() != int(editor.window) and not window_exists(editor.window), "the editor to be gone")
        same(len(windows("^Vellumry$")), 1, "panels that still show")
        key("Return")
        told(COPIED)
        focus(neighbour.window)
        key("x")
        wait_same(neighbour.content, "x", "the neighbour's own key, and nothing before it")
        same(clipboard(), b"meant for the editor", "the clipboard")


def a_window_that_opens_over_the_panel_gets_nothing():
    """It takes the keyboard, so the panel goes; a Return is the new window's own."""
    with Vellumry(), Mousepad() as editor:
        remember("meant for the editor")
        open_panel_with_a_row()
        with FieldWindow("name") as newcomer:
            wait_panel_closed()
            key("Return", "x")
            wait_same(newcomer.content, "x", "the newcomer's own key, and nothing before it")
            told_nothing()
            same(editor.content(), "", "the editor's text")


def a_window_that_takes_the_keyboard_after_return_gets_nothing():
    """The user clicks on between Return and the press: what was meant for the editor is copied only."""
    with Vellumry() as program, FieldWindow("name") as neighbour, Mousepad() as editor:
        remember("meant for the editor")
        open_panel_with_a_row()
        other = display.Display()
        with held_up(program):
            key("Return")
            other.create_resource_object("window", int(neighbour.window)).set_input_focus(X.RevertToParent, X.CurrentTime)
            other.sync()
        told(COPIED)
        same((editor.content(), neighbour.content()), ("", ""), "what editor and neighbour hold")
        same(clipboard(), b"meant for the editor", "the clipboard")
        other.close()


if __name__ == "__main__":
    main(own_tests())
