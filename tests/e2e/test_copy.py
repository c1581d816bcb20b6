# SPDX-License-Identifier: GPL-3.0-or-later
"""What foreign applications copy lies sealed in the history, byte for byte."""

import os
import signal
import sqlite3
import time

from clients import Chromium, FeatherPad, KeePassXC, Mousepad, Pcmanfm, XTerm, store_and_quit
from clients.owners import BusyOwner, Owner
from desktop import (HISTORY, Failure, Vellumry, clipboard, copy_bytes, copy_text, key, main, open_panel, own_tests, representation,
                     run, same, text_of, unsealed, wait_for_clip, wait_panel_closed, wait_same, wait_until)

TEXT = "public.utf8-plain-text"


def a_terminal_copies():
    with Vellumry(), XTerm() as client:
        text = client.copy_first_line()
        row = wait_for_clip(lambda row: text_of(row) == text, "the terminal's line")
        same(row["kind"], 0, "its kind")
        same(row["title"], text.strip(), "its title")
        same(clipboard(), text.encode(), "the clipboard")


def a_gtk_editor_copies():
    with Vellumry(), Mousepad() as client:
        client.type_and_copy("words of a gtk editor")
        row = wait_for_clip(lambda row: text_of(row) == "words of a gtk editor", "the editor's text")
        same(row["sourceAppName"], "Mousepad", "the source application")


def a_copy_wakes_nothing_of_the_toolkit():
    """It reads no clipboard here; each copy and each selected text of any program would wake two threads for it."""

    def thread(pid):
        for task in os.listdir(f"/proc/{pid}/task"):
            with open(f"/proc/{pid}/task/{task}/comm", encoding="ascii") as name:
                if name.read().strip() == "QXcbEventQueue":
                    return f"/proc/{pid}/task/{task}/status"
        raise Failure("the toolkit has no thread for the X server")

    def woken(status):
        with open(status, encoding="ascii") as file:
            return next(int(line.split()[1]) for line in file if line.startswith("voluntary_ctxt_switches"))

    with Vellumry() as program:
        copy_text("copied first")
        wait_for_clip(lambda row: text_of(row) == "copied first", "the first copy")
        open_panel()  # from here on nothing of it is left to be made
        key("Escape")
        wait_panel_closed()
        status = thread(program.pid)
        before = woken(status)
        for index in range(20):
            copy_text(f"selected {index}", "primary")
            copy_text(f"copied {index}")
        wait_for_clip(lambda row: text_of(row) == "copied 19", "the last copy")
        if woken(status) - before > 10:
            raise Failure(f"woken {woken(status) - before} times for 40 texts")


def a_qt_editor_copies():
    with Vellumry(), FeatherPad() as client:
        client.type_and_copy("words of a qt editor")
        row = wait_for_clip(lambda row: text_of(row) == "words of a qt editor", "the editor's text")
        same(row["sourceAppName"], "FeatherPad", "the source application")


def a_browser_copies_styled_text():
    with Vellumry(), Chromium() as client:
        text = client.copy_words()
        row = wait_for_clip(lambda row: text_of(row) == text, "the page's words", 20)
        same(row["kind"], 1, "styled text is its kind")
        same(representation(row, "public.html"), clipboard("text/html"), "the HTML, byte for byte")


def a_file_manager_copies_files():
    with Vellumry(), Pcmanfm("a letter.txt", "b ü.txt") as client:
        client.copy_all()
        row = wait_for_clip(lambda row: row["kind"] == 4, "the files")
        same(sorted(reference["path"] for reference in row["files"]), sorted(client.paths), "the paths")
        same(len(row["payload"]), 2, "one item a file")
        same(row["title"], os.path.basename(row["files"][0]["path"]) + " and 1 more", "the title")


def a_picture_is_kept_with_its_size():
    with Vellumry():
        png = run("convert", "-size", "320x200", "gradient:red-blue", "png:-")
        copy_bytes(png, "image/png")
        row = wait_for_clip(lambda row: row["kind"] == 3, "the picture")
        same(representation(row, "public.png"), png, "the picture, byte for byte")
        same(row["title"], "Image 320 × 200", "its title")
        if not row["thumbnail"]:
            raise Failure("the picture has no thumbnail")


def a_bitmap_alone_is_kept_for_all():
    """As virtual machines and Windows programs offer a picture: uncompressed, of several megabytes, and in no other format."""
    with Vellumry():
        bitmap = run("convert", "-size", "1600x900", "plasma:red-blue", "-type", "TrueColor", "bmp3:-")
        copy_bytes(bitmap, "image/bmp")
        row = wait_for_clip(lambda row: row["kind"] == 3, "the bitmap")
        same((row["title"], bool(row["thumbnail"])), ("Image 1600 × 900", True), "its title and thumbnail")
        same(representation(row, "image/bmp") == bitmap, True, "the bitmap, byte for byte")
        pixels = run("convert", "png:-", "rgb:-", data=representation(row, "public.png"))
        same(pixels == run("convert", "bmp:-", "rgb:-", data=bitmap), True, "the same pixels as PNG")


def a_password_is_never_kept():
    with Vellumry(), KeePassXC() as client:
        client.copy_password()
        wait_until(lambda: b"x-kde-passwordManagerHint" in (clipboard("TARGETS") or b""), "the password on the clipboard")
        client.stop()  # nothing that is copied while it is in front is kept
        copy_text("an ordinary copy")
        wait_for_clip(lambda row: text_of(row) == "an ordinary copy", "the copy after it")
        same([text_of(row) for row in unsealed()], ["an ordinary copy"], "the whole history")


def what_is_refused_is_never_asked_for():
    with Vellumry() as program:
        for hint in ("x-kde-passwordManagerHint", "com.vellumry.marker", "org.nspasteboard.TransientType"):
            with Owner({"UTF8_STRING": b"kept secret", hint: b"1"}) as owner:
                wait_until(lambda: "TARGETS" in owner.requests(), "the program to look at what is offered")
                copy_text("after " + hint)
                wait_for_clip(lambda row: text_of(row) == "after " + hint, "the copy after it")
                same(owner.requests(), ["TARGETS"], "what the owner was asked for, offering " + hint)
        same(program.alive(), True, "the program runs")


def what_was_copied_outlives_the_application():
    with Vellumry():
        with XTerm() as client:
            text = client.copy_first_line()
            wait_for_clip(lambda row: text_of(row) == text, "the terminal's line")
            before = len(unsealed())
            client.stop(signal.SIGKILL)
        wait_same(clipboard, text.encode(), "the clipboard to hold the line of the dead terminal")
        same(len(unsealed()), before, "clips; taking over is no new copy")


def warm_up():
    """What the program does once after its start is behind it then."""
    open_panel()
    key("Escape")
    wait_panel_closed()


def a_burst_of_copies_is_kept_whole():
    with Vellumry():
        warm_up()
        wanted = [f"burst {index:03}" for index in range(60)]
        for text in wanted:
            copy_text(text)
            time.sleep(0.05)  # the rate of copying is what is tested
        wait_for_clip(lambda row: text_of(row) == wanted[-1], "the last copy")
        same([text_of(row) for row in unsealed()], wanted[::-1], "the history")


def a_program_that_has_its_copy_kept_and_quits_at_once_loses_nothing():
    with Vellumry():
        for index in range(5):
            text = f"stored {index}"
            store_and_quit(text)
            wait_for_clip(lambda row: text_of(row) == text, "the copy of a program that has quit", 60)
            wait_same(clipboard, text.encode(), "the clipboard to hold it", 60)


def a_cell_range_of_a_busy_office_program_is_kept_with_its_text():
    """The list of types after 0.7 s, the text after 1.5 s, and a table that takes 3 s to be rendered before it."""
    with Vellumry():
        with BusyOwner({"text/html": (b"<table>cells</table>", 3), "text/rtf": (b"{\\rtf1 cells}", 2),
                        "UTF8_STRING": (b"cells", 1.5), "TARGETS": (None, 0.7)}):
            row = wait_for_clip(lambda row: text_of(row) == "cells", "the cells", 60)
        same((row["kind"], representation(row, "public.html")), (1, b"<table>cells</table>"), "rich text with its table")


def nothing_readable_lies_in_the_file():
    with Vellumry():
        copy_text("a needle that must be sealed")
        wait_for_clip(lambda row: text_of(row) == "a needle that must be sealed", "the copy")
        for suffix in ("", "-wal", "-shm"):
            if os.path.exists(HISTORY + suffix):
                with open(HISTORY + suffix, "rb") as file:
                    same(b"needle" in file.read(), False, "plain text in History.sqlite" + suffix)
                same(os.stat(HISTORY + suffix).st_mode & 0o777, 0o600, "the mode of History.sqlite" + suffix)
        same(os.stat(os.path.dirname(HISTORY)).st_mode & 0o777, 0o700, "the mode of the folder")
        columns = [row[1] for row in sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True).execute("PRAGMA table_info(clips)")]
        same(columns, ["id", "kind", "created", "used", "pinned", "expires", "fingerprint", "size", "meta", "payload"], "columns")


if __name__ == "__main__":
    main(own_tests())
