# SPDX-License-Identifier: GPL-3.0-or-later
"""Owners of the clipboard that hang, lie, die and drown us: what is sound is kept, and the next copy is kept at once."""

import time

from desktop import (Failure, Vellumry, copy_bytes, key, main, open_panel, own_tests, representation, run, same, wait_panel_closed,
                     wait_same, wait_until)
from history_probe import HistoryProbe, ids
from clients.owners import HostileOwner, Pieces, Silence

PANEL_LIMIT = 3  # a program that waits for an owner waits longer
MIB = 1024 * 1024


def panel_answers(what):
    """Opens the panel while something else is going on."""
    began = time.monotonic()
    open_panel()
    took = time.monotonic() - began
    key("Escape")
    wait_panel_closed()
    if took > PANEL_LIMIT:
        raise Failure(f"the panel took {took:.2f} s while {what}")


class Watched:
    """The program with its panel warmed up and one clip in the history."""

    def __enter__(self):
        self.program = Vellumry()
        try:
            open_panel()
            key("Escape")
            wait_panel_closed()
            self.probe = HistoryProbe()
            self.probe.copy_is_prompt("before it")
        except BaseException:
            self.program.stop()
            raise
        return self

    def __exit__(self, *_):
        self.program.stop()

    def goes_on(self):
        """Nothing came of the hostile copy, and the next is captured."""
        same(self.program.alive(), True, "the program runs")
        same(self.probe.texts(), ["before it"], "the history before the next copy")
        self.probe.copy_is_prompt("after it")
        same(self.probe.texts(), ["after it", "before it"], "the history after the next copy")


def silent_about_what_it_offers():
    with Watched() as watched, HostileOwner({}, targets=Silence) as owner:
        wait_until(lambda: owner.was_asked_for("TARGETS"), "the owner to be asked")
        panel_answers("an owner keeps silent")
        watched.goes_on()


def silent_about_its_only_text():
    with Watched() as watched, HostileOwner({"UTF8_STRING": Silence}) as owner:
        wait_until(lambda: owner.was_asked_for("UTF8_STRING"), "the owner to be asked")
        panel_answers("an owner holds its text back")
        watched.goes_on()


def silent_about_a_picture_but_not_about_the_text():
    with Watched() as watched, HostileOwner({"image/png": Silence, "UTF8_STRING": b"the sound text"}):
        row = watched.probe.wait_for("the sound text")
        same(row["kind"], 0, "its kind")
        watched.probe.copy_is_prompt("after it")


def silent_about_twenty_kinds_but_not_about_the_text():
    offers = {f"application/x-hostile-{index}": Silence for index in range(20)}
    with Watched() as watched, HostileOwner({**offers, "UTF8_STRING": b"the sound text"}) as owner:
        wait_until(lambda: owner.was_asked_for("application/x-hostile-0"), "the first of them to be asked for")
        panel_answers("an owner holds twenty kinds back")
        watched.probe.wait_for("the sound text")
        watched.probe.copy_is_prompt("after it")


def replaced_while_twenty_kinds_are_held_back():
    offers = {f"application/x-hostile-{index}": Silence for index in range(20)}
    with Watched() as watched, HostileOwner(offers) as owner:
        wait_until(lambda: owner.was_asked_for("application/x-hostile-0"), "the first of them to be asked for")
        watched.goes_on()


def dead_in_the_middle_of_its_text():
    with Watched() as watched:
        with HostileOwner({"UTF8_STRING": Pieces.of(b"half " * 400_000, dies_after=4)}) as owner:
            wait_until(lambda: not owner.thread.is_alive(), "the owner to die")
        watched.goes_on()


def lying_about_the_size():
    with Watched() as watched:
        for announced in (1, 2**32 - 1):
            text = f"announced as {announced} bytes " * 20_000
            pieces = Pieces.of(text.encode())
            pieces.announced = announced
            with HostileOwner({"UTF8_STRING": pieces}):
                watched.probe.wait_for(text)
            watched.probe.copy_is_prompt(f"after {announced}")


def never_ending():
    with Watched() as watched, HostileOwner({"UTF8_STRING": Pieces.endless()}) as owner:
        wait_until(lambda: owner.sent > 20, "the first pieces")
        panel_answers("an owner does not come to an end")
        wait_until(lambda: not is_moving(owner), "the program to have had enough", 30)
        watched.goes_on()


def is_moving(owner):
    """Whether pieces are still taken; told by half a second in which none is."""
    before = owner.sent
    end = time.monotonic() + 0.5
    while time.monotonic() < end:
        if owner.sent != before:
            return True
        time.sleep(0.01)
    return False


def ten_thousand_kinds():
    with Watched() as watched:
        names = ["UTF8_STRING"] + [f"application/x-many-{index}" for index in range(10_000)]
        with HostileOwner({"UTF8_STRING": b"one among many"}) as owner:
            watched.probe.wait_for("one among many")
            owner.targets = owner.atoms(names)
            owner.offers[owner.targets[0]] = b"one among ten thousand"
            owner.own()
            watched.probe.wait_for("one among ten thousand")
        watched.probe.copy_is_prompt("after it")


def a_mark_behind_three_thousand_kinds_counts():
    with Watched() as watched:
        offers = {f"application/x-many-{index}": b"x" for index in range(3_000)}
        with HostileOwner({**offers, "UTF8_STRING": b"a password", "x-kde-passwordManagerHint": b"secret"}) as owner:
            wait_until(lambda: owner.was_asked_for("TARGETS"), "the program to look at what is offered", 60)
            watched.goes_on()
            same([name for name in owner.log if name != "TARGETS"], [], "what else was asked for")
        with HostileOwner({**offers, "UTF8_STRING": b"a text behind many kinds"}):
            watched.probe.wait_for("a text behind many kinds")


def too_large_a_text_is_refused_whole():
    with Watched() as watched:
        data = b"0123456789abcde\n" * (101 * MIB // 16)
        with HostileOwner({"UTF8_STRING": Pieces.of(data)}) as owner:
            wait_until(lambda: owner.sent > 20, "the first pieces")
            panel_answers("a large text is read")
            wait_until(lambda: not is_moving(owner), "the program to have had enough", 30)
            watched.goes_on()


def a_large_text_is_kept_byte_for_byte():
    with Watched() as watched:
        data = b"0123456789abcd\xc3\xa4" * (50_000_000 // 16)
        with HostileOwner({"UTF8_STRING": Pieces.of(data)}):
            wait_same(lambda: len(ids()), 2, "the large text", 30)
        same(representation(watched.probe.rows()[0], "public.utf8-plain-text") == data, True, "the same bytes")
        watched.probe.copy_is_prompt("after it")


def replaced_while_it_is_read():
    with Watched() as watched:
        with HostileOwner({"UTF8_STRING": Pieces.of(b"replaced " * 8_000_000)}) as owner:
            wait_until(lambda: owner.sent > 5, "the first pieces")
            watched.goes_on()


def a_hundred_thousand_broken_addresses():
    lines = b"".join(b"file:%%%%%d\r\nnot an address\r\nfile://[::%d\r\n" % (index, index) for index in range(33_334))
    with Watched() as watched:
        with HostileOwner({"text/uri-list": Pieces.of(lines), "UTF8_STRING": b"the addresses as text"}) as owner:
            wait_until(lambda: owner.was_asked_for("text/uri-list"), "the addresses to be asked for")
            panel_answers("a hundred thousand addresses are read")
            watched.probe.wait_for("the addresses as text")
        watched.probe.copy_is_prompt("after it")


def broken_documents():
    broken = {
        "text/rtf": b"{\\rtf1\\ansi" + b"{\\b" * 50_000 + b"\\bin99999999999 \\u-99999999 \\'zz",
        "text/html": b"<table><tr><td" + b"<b><i><svg>" * 20_000 + b"&#99999999999;\xff\xfe\x00",
    }
    with Watched() as watched:
        for target, data in broken.items():
            with HostileOwner({target: Pieces.of(data), "UTF8_STRING": b"beside " + target.encode()}):
                row = watched.probe.wait_for("beside " + target)
                same(row["kind"], 1, "its kind beside " + target)
            panel_answers("broken documents are in the history")
            watched.probe.copy_is_prompt("after " + target)


def a_cut_picture_is_kept_without_a_small_one():
    png = run("convert", "-size", "640x480", "plasma:red-blue", "png:-")
    with Watched() as watched:
        for name, data in (("cut in its head", png[:30]), ("noise", bytes(range(256)) * 40)):
            before = set(ids())
            copy_bytes(data, "image/png")
            wait_until(lambda: set(ids()) - before, "the picture " + name)
            row = watched.probe.rows()[0]
            same((row["kind"], row["title"], row["thumbnail"]), (3, "Image", None), "the picture " + name)
            same(representation(row, "public.png"), data, "its bytes")
        panel_answers("broken pictures are in the history")
        watched.probe.copy_is_prompt("after it")


if __name__ == "__main__":
    main(own_tests())
