# SPDX-License-Identifier: GPL-3.0-or-later
"""The Paste Stack among programs that end, hang, stop or take the keyboard, with files that go and with texts that are very large."""

import os
import shutil
import signal
import tempfile

from Xlib import X, display

from clients import FeatherPad, HangingOwner, KeyWindow, Mousepad, XTerm
from desktop import (DATA, Process, Vellumry, accessible, copy_bytes, copy_text, focus, focus_under_new_manager, key, main,
                     own_tests, remember, run, same, text_of, type_text, unsealed, wait_for_clip, wait_same, wait_until)
from history_probe import ids
from settings_file import forget_settings, write_settings
from stack import TOGGLE, is_running, paste_each, start_stack, wait_ended

LARGE = 100_000_000


def an_owner_that_ends_does_not_take_its_copies_along():
    with Vellumry(), Mousepad() as client:
        start_stack()
        owner = FeatherPad()
        owner.type_and_copy("from the other editor")
        wait_for_clip(lambda row: text_of(row) == "from the other editor", "the copy")
        owner.stop(signal.SIGKILL)
        copy_text("second")
        wait_for_clip(lambda row: text_of(row) == "second", "the second copy")
        focus(client.window)
        paste_each(client, "ctrl+v", ["from the other editor", "second"])
        wait_ended()


def an_owner_that_hangs_does_not_hold_the_keyboard():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ")
        with HangingOwner():
            focus(client.window)
            paste_each(client, "ctrl+v", ["one "])
            type_text("x")
            wait_same(client.content, "one x", "typing goes on")
        key("ctrl+v")
        wait_same(client.content, "one xtwo ", "the second")
        wait_ended()


def a_program_that_keeps_copying_meanwhile_mixes_nothing_up():
    """Its copies fall before, between and behind the stack's own writing; those that were noticed wait their turn all the same."""
    presses = 6
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ", "three ", "four ", "five ", "six ", "seven ")
        copies = [f"copy {number} " for number in range(30)]
        script = 'for text do printf %s "$text" | xclip -selection clipboard -in >/dev/null 2>&1; sleep 0.05; done'
        with Process("/bin/sh", "-c", script, "sh", *copies) as other:
            run("xdotool", "key", "--delay", "120", *["ctrl+v"] * presses)
            same(other.handle.wait(timeout=30), 0, "the end of the copying")
        wait_for_clip(lambda row: text_of(row) == copies[-1], "the last copy")
        noticed = [text_of(row) for row in reversed(unsealed())]
        type_text("x")
        wait_until(lambda: client.content().endswith("x"), "typing goes on")
        client.clear()
        wait_same(client.content, "", "an empty editor")
        key("ctrl+v")
        whole = wait_until(client.content, "the next item")
        # A key may have gone by itself on a busy machine; its item is then the next one's.
        same(whole in noticed[:presses + 1], True, f"{whole!r} is next")
        for text in noticed[noticed.index(whole) + 1:]:
            key("ctrl+v")
            whole += text
            wait_same(client.content, whole, f"{text!r} behind the others")
        wait_ended()


def a_stopped_program_in_front_does_not_hold_the_keyboard():
    with Vellumry(), XTerm() as client, Mousepad() as stopped:
        start_stack()
        remember("one\n", "two\n", "three\n")
        focus(stopped.window)
        os.killpg(stopped.pid, signal.SIGSTOP)
        run("xdotool", "key", "ctrl+v")  # takes the first along
        focus(client.window)
        paste_each(client, "shift+Insert", ["two\n", "three\n"])
        type_text("typing goes on\n")
        wait_same(client.content, "two\nthree\ntyping goes on\n", "what was typed")
        wait_ended()


def deleted_files_are_passed_over():
    folder = tempfile.mkdtemp(prefix="stack")
    path = os.path.join(folder, "doomed.txt")
    with open(path, "w", encoding="utf-8") as file:
        file.write("content")
    with Vellumry(), Mousepad() as client:
        start_stack()
        copy_bytes(("file://" + path + "\r\n").encode(), "text/uri-list")
        wait_for_clip(lambda row: row["kind"] == 4, "the file")
        remember("after the file")
        os.unlink(path)
        key("ctrl+v")
        wait_same(client.content, "after the file", "the item behind the deleted file")
        wait_ended()


def a_grabbed_keyboard_is_left_alone():
    """A screen locker has the keyboard: keys go to it, the stack waits."""
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ")
        locker = display.Display()
        window = locker.screen().root.create_window(0, 0, 10, 10, 0, X.CopyFromParent, event_mask=X.KeyPressMask)
        window.map()
        locker.sync()
        wait_until(lambda: window.grab_keyboard(False, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime) == X.GrabSuccess,
                   "the locker to get the keyboard")
        run("xdotool", "key", "ctrl+v")
        wait_until(lambda: any(locker.next_event().type == X.KeyPress for _ in range(locker.pending_events())),
                   "the locker to see the key")
        locker.close()
        focus(client.window)
        paste_each(client, "ctrl+v", ["one ", "two "])
        wait_ended()


def another_holder_of_the_key_is_told_of():
    with Vellumry():
        other = display.Display()
        other.screen().root.grab_key(55, X.ControlMask, True, X.GrabModeAsync, X.GrabModeAsync)
        other.sync()
        key(TOGGLE)
        wait_until(lambda: accessible("vellumry", "notification", "couldn.t start"), "the message")
        same(is_running(), False, "the stack")
        other.close()
        start_stack()
        key(TOGGLE)
        wait_ended()


def large_texts_hold_no_key_and_arrive_whole():
    """No item is lost to a key that went by itself because making the text took too long."""
    texts = [b"a" * 99 + b"\n", "é漢".encode() * 20]
    contents = [texts[0] * (LARGE // len(texts[0])), b"in between", texts[1] * (LARGE // len(texts[1])), b"last"]
    for plain in ("false", "true"):
        write_settings("plainTextByDefault=" + plain)
        shutil.rmtree(DATA, ignore_errors=True)
        try:
            with Vellumry():
                start_stack()
                for count, content in enumerate(contents, 1):
                    copy_bytes(content, "UTF8_STRING")
                    wait_same(lambda: len(ids()), count, f"copy {count} in the history", 30)
                with KeyWindow() as window:
                    pasted = contents[-1]
                    for content in contents:
                        before = pasted
                        while pasted == before:  # on a busy machine a key may go before its item is there, which is then the next one's
                            window.press()
                            pasted = window.paste()
                        same(pasted == content, True, f"{len(content)} bytes arrived, plain: {plain}")
                wait_ended()
        finally:
            forget_settings()


# The last one: it takes the desktop's window manager away.
def a_new_window_manager_changes_nothing():
    with Vellumry(), Mousepad() as client:
        start_stack()
        remember("one ", "two ", "three ")
        paste_each(client, "ctrl+v", ["one "])
        before = run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        with Process("openbox", "--replace"):
            wait_until(lambda: run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK") not in (before, b""), "the new window manager")
            focus_under_new_manager(client.window)
            key("ctrl+v")
            wait_same(client.content, "one two ", "the second")
            key("ctrl+v")
            wait_same(client.content, "one two three ", "the third")
            wait_ended()


main(own_tests())
