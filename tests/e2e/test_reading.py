# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures are found by the words in them."""

import os
import signal
import subprocess

from desktop import (Vellumry, accessible, clipboard, copy_bytes, copy_text, key, main, open_panel, own_tests, picture, run, same,
                     type_text, unsealed, wait_for_clip, wait_panel_closed, wait_same, wait_until)

ENOUGH = 60.0


def picture_of(text, ground="white", ink="black", times=1):
    """A PNG of some words, as a program would show them, so many times below each other."""
    return run("convert", "-background", ground, "-fill", ink, "-font", "DejaVu-Sans", "-pointsize", "14", "label:" + text,
               *(("-duplicate", str(times - 1), "-append") if times > 1 else ()), "-bordercolor", "white", "-border", "30", "png:-")


LONG = dict(text="Some words that take a while to read, line after line", times=60)


def read_text(word, timeout=ENOUGH):
    """The row of the picture in which the word was read."""
    return wait_for_clip(lambda row: word in (row["imageText"] or "").lower(), f"the word {word!r} in a picture", timeout)


def readers(program):
    """The processes of the program that read text."""
    found = subprocess.run(["pgrep", "-P", str(program.pid), "-f", "vellumry-reader text"], stdout=subprocess.PIPE)
    return [int(number) for number in found.stdout.split()]


def a_screenshot_is_found_by_a_word_in_it():
    with Vellumry():
        png = picture_of("The quarterly invoice\nis due on Thursday")
        copy_bytes(png, "image/png")
        read_text("invoice")
        copy_text("something else")
        wait_for_clip(lambda row: row["kind"] == 0, "the text")
        open_panel()
        type_text("invoice")
        picture("found-by-a-word-in-it")
        key("Return")
        wait_panel_closed()
        wait_same(lambda: clipboard("image/png"), png, "the picture on the clipboard")


def a_second_reading_is_the_better_one():
    with Vellumry():
        copy_bytes(picture_of("A careful reading follows"), "image/png")
        wait_for_clip(lambda row: row["imageTextIsAccurate"], "an accurate reading", ENOUGH)
        same(unsealed()[0]["imageText"], "A careful reading follows", "the text")


def light_words_on_dark_ground_are_read():
    with Vellumry():
        copy_bytes(picture_of("Terminal session restored", "#1e1e2e", "#a6e3a1"), "image/png")
        read_text("session")


def a_picture_file_is_read():
    folder = os.path.join(os.environ["HOME"], "project")
    os.makedirs(folder, exist_ok=True)
    path = os.path.join(folder, "diagram.png")
    with open(path, "wb") as file:
        file.write(picture_of("Database replica"))
    with Vellumry():
        copy_bytes(b"file://" + path.encode() + b"\r\n", "text/uri-list")
        same(read_text("replica")["kind"], 4, "the kind")


def a_picture_on_the_desktop_is_read():
    path = os.path.join(os.environ["HOME"], "Desktop", "notice.png")
    with open(path, "wb") as file:
        file.write(picture_of("Parking permit"))
    with Vellumry():
        copy_bytes(b"file://" + path.encode() + b"\r\n", "text/uri-list")
        same(read_text("permit")["kind"], 4, "the kind")


def a_picture_file_is_read_when_the_user_asks():
    """One that was not there when it was copied: the button says that it cannot be opened, and reads it once it is there."""
    path = os.path.join(os.environ["HOME"], "later.png")

    def ask():
        button = wait_until(lambda: accessible("vellumry", "push button", "^Read text in this image$"), "the offer")
        button.queryAction().doAction(0)

    with Vellumry():
        copy_bytes(b"file://" + path.encode() + b"\r\n", "text/uri-list")
        wait_for_clip(lambda row: row["kind"] == 4, "the file")
        open_panel()
        ask()
        wait_until(lambda: accessible("vellumry", "notification", "^Vellumry can.t open that file"), "the message")
        with open(path, "wb") as file:
            file.write(picture_of("Meanwhile written"))
        ask()
        read_text("meanwhile")
        wait_until(lambda: not accessible("vellumry", "push button", "^Read text in this image$"), "the offer to go")
        picture("read-on-request")
        key("Escape")
        wait_panel_closed()


def a_reader_that_dies_costs_one_picture():
    with Vellumry() as program:
        copy_bytes(picture_of(**LONG), "image/png")
        reader = wait_until(lambda: readers(program), "a reader", 20)[0]
        copy_bytes(picture_of("Afterwards"), "image/png")
        wait_same(lambda: len(unsealed()), 2, "the second picture")
        os.kill(reader, signal.SIGKILL)
        wait_until(lambda: reader not in readers(program), "the reader to be gone")
        read_text("afterwards")
        same(program.alive(), True, "the program runs")


def a_broken_picture_costs_nothing():
    with Vellumry() as program:
        copy_bytes(picture_of("cut off")[:400], "image/png")
        copy_bytes(picture_of("Still reading"), "image/png")
        read_text("still")
        same(program.alive(), True, "the program runs")


def no_reader_outlives_the_program():
    with Vellumry() as program:
        copy_bytes(picture_of(**LONG), "image/png")
        reader = wait_until(lambda: readers(program), "a reader", 20)[0]
        program.stop()
        wait_until(lambda: not os.path.exists(f"/proc/{reader}"), "the reader to be gone")


if __name__ == "__main__":
    main(own_tests())
