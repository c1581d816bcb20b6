# SPDX-License-Identifier: GPL-3.0-or-later
"""A card number that was copied in an editor is gone at its time: from the panel, the files and the program's own memory."""

import os
import random
import signal
import sqlite3
import time

import desktop
from clients import Mousepad, XTerm
from desktop import (DATA, HISTORY, Failure, Vellumry, accessible, clipboard, copy_text, focus, fresh, key, main, open_panel,
                     own_tests, owner_of, panel_is_open, same, wait_panel_closed, wait_same, wait_until)
from history_probe import HistoryProbe, ids
from memory_probe import can_look_into, found_in, spread_in
from settings_file import forget_settings, write_settings

LIFETIME = 10
# The program itself lets nobody look into its memory; beside it stands one that does and is the same otherwise.
if os.path.exists(desktop.PROGRAM + "-inspectable"):
    desktop.PROGRAM += "-inspectable"


def card_number():
    """Sixteen digits that no card has and that pass for one (ISO/IEC 7812)."""
    digits = [4] + [random.SystemRandom().randrange(10) for _ in range(14)]
    total = sum(sum(divmod(digit * 2, 10)) if index % 2 == 0 else digit for index, digit in enumerate(digits))
    digits.append(-total % 10)
    text = "".join(map(str, digits))
    return " ".join(text[start:start + 4] for start in range(0, 16, 4))


def plain_forms(card):
    """What of it could lie somewhere; the middle, since the first bytes of a free block are the allocator's."""
    middle, digits = card[4:], card.replace(" ", "")[4:]
    return {"text": middle.encode(), "UTF-16": middle.encode("utf-16-le"), "digits": digits.encode(),
            "digits in UTF-16": digits.encode("utf-16-le")}


def sealed_forms(row_id):
    connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True, timeout=5)
    try:
        fingerprint, meta, payload = connection.execute(
            "SELECT fingerprint, meta, payload FROM clips WHERE id = ?", (row_id,)).fetchone()
        return {"identity": row_id.encode(), "fingerprint": fingerprint.encode(), "sealed meta": meta[-24:], "sealed payload": payload[-24:]}
    finally:
        connection.close()


def found_in_files(needles):
    found = []
    for name in os.listdir(DATA):
        with open(os.path.join(DATA, name), "rb") as file:
            content = file.read()
        found += [(what, name) for what, needle in needles.items() if needle in content]
    return found


def shown():
    if not panel_is_open():
        open_panel()
    return accessible("vellumry", "list item")


def stored_card(probe, card):
    """Sees the copied card arrive, and answers when its time is over and what it looks like in the file."""
    row = probe.wait_for(card)
    lifetime = row["expires"] - row["created"]
    if not LIFETIME - 0.01 < lifetime < LIFETIME + 0.01:
        raise Failure(f"the card is to live {LIFETIME} s, not {lifetime:g}")
    sealed = sealed_forms(row["id"])
    same(len(found_in_files(sealed)) >= len(sealed), True, "it is in the file, sealed")
    same(found_in_files(plain_forms(card)), [], "it is in no file as it reads")
    return row["expires"], sealed


def nothing_in_memory(program, needles):
    try:
        wait_until(lambda: not found_in(program.pid, needles), "nothing of it in memory", 60)
    except Failure:
        left = [f"{what} in {place} at {address}" for what, place, address, _ in found_in(program.pid, needles)]
        raise Failure("still in memory: " + "; ".join(left)) from None


def nothing_is_left(program, needles):
    """The memory of a program that is at rest: the row has gone from the panel and what was shown of it has been drawn over."""
    wait_until(lambda: not shown(), "the panel without it", 3)
    same(found_in_files(needles), [], "what the files still have")
    if not can_look_into(program.pid):
        raise Failure("this test needs to look into the program's memory: build vellumry-inspectable")
    nothing_in_memory(program, needles)


def with_lifetime(test):
    def whole():
        write_settings(f"sensitiveSeconds={LIFETIME}")
        try:
            test()
        finally:
            forget_settings()

    whole.__name__ = test.__name__
    return fresh(whole)


def a_card_is_gone_from_everywhere_at_its_time():
    card = card_number()
    with Vellumry() as program, Mousepad() as editor:
        probe = HistoryProbe()
        editor.type_and_copy(card)
        ends, sealed = stored_card(probe, card)
        same(bool(found_in(program.pid, plain_forms(card))), True, "the probe finds what is there")
        wait_until(shown, "the card in the panel")
        key("Escape")
        wait_panel_closed()
        wait_until(lambda: time.time() > ends - 1, "the last second", LIFETIME + 2)
        same(len(ids()), 1, "it lives to its end")
        wait_until(lambda: not ids(), "the row to go", 3)
        if time.time() > ends + 1:
            raise Failure(f"it went {time.time() - ends:.2f} s late")
        nothing_in_memory(program, {**plain_forms(card), **sealed})
        nothing_is_left(program, {**plain_forms(card), **sealed})


def a_card_that_was_searched_for_is_forgotten_with_the_closed_panel():
    card = card_number()
    with Vellumry() as program:
        copy_text(card)
        _, sealed = stored_card(HistoryProbe(), card)
        open_panel()
        key("ctrl+v")
        wait_until(lambda: spread_in(program.pid, card[4:]), "the card in what the search field could undo")
        same(bool(found_in(program.pid, plain_forms(card))), True, "the probe finds what is there")
        key("Escape", "Escape")
        wait_panel_closed()
        wait_until(lambda: not ids(), "the row to go", LIFETIME + 2)
        nothing_in_memory(program, {**plain_forms(card), **sealed})
        same(spread_in(program.pid, card[4:]), [], "what the search field could undo")


def a_card_whose_time_came_while_the_program_stood_still_goes_at_once():
    card = card_number()
    with Vellumry() as program:
        probe = HistoryProbe()
        copy_text(card)
        ends, sealed = stored_card(probe, card)
        os.kill(program.pid, signal.SIGSTOP)
        wait_until(lambda: time.time() > ends + 2, "its time to pass", LIFETIME + 4)
        same(len(ids()), 1, "a stopped program deletes nothing")
        os.kill(program.pid, signal.SIGCONT)
        began = time.monotonic()
        wait_until(lambda: not ids(), "the row to go", 3)
        if time.monotonic() - began > 1:
            raise Failure(f"it went {time.monotonic() - began:.2f} s after the program ran again")
        copy_text("something else")
        probe.wait_for("something else")
        same(found_in_files(sealed), [], "what the files still have")
        nothing_in_memory(program, {**plain_forms(card), **sealed})


def offered_by_us(probe, card):
    """Copies the card in an editor that is killed, so that the program offers it in its place; answers as `stored_card`."""
    with Mousepad() as editor:
        editor.type_and_copy(card)
        stored = stored_card(probe, card)
        editor.stop(signal.SIGKILL)
    wait_same(clipboard, card.encode(), "the program to offer what the dead editor had copied")
    return stored


def a_card_of_a_dead_editor_goes_from_the_clipboard_at_its_time():
    card = card_number()
    with Vellumry() as program:
        ends, sealed = offered_by_us(HistoryProbe(), card)
        wait_until(lambda: time.time() > ends - 1, "the last second", LIFETIME + 2)
        same(clipboard(), card.encode(), "the clipboard as long as the card lives")
        wait_until(lambda: not ids(), "the row to go", 3)
        wait_until(lambda: not owner_of("CLIPBOARD"), "the clipboard to be nobody's", 1)
        nothing_is_left(program, {**plain_forms(card), **sealed})


def a_card_that_was_pasted_goes_from_the_clipboard_at_its_time():
    card = card_number()
    with Vellumry():
        offered_by_us(HistoryProbe(), card)
        with Mousepad() as editor:
            open_panel()
            key("Return")
            wait_same(editor.content, card, "the card in the editor", 60)
            wait_until(lambda: not ids(), "the row to go", LIFETIME + 2)
            wait_until(lambda: not owner_of("CLIPBOARD"), "the clipboard to be nobody's", 60)


def a_card_that_was_pasted_into_a_terminal_goes_from_the_primary_selection():
    card = card_number()
    with Vellumry(), XTerm() as terminal:
        for ends_by in ("its time", "the next copy"):
            offered_by_us(HistoryProbe(), card)
            focus(terminal.window)
            open_panel()
            key("Return")
            wait_same(lambda: clipboard(selection="primary"), card.encode(), "the card on the primary selection", 60)
            if ends_by == "the next copy":
                copy_text("something else")
            else:
                wait_until(lambda: not ids(), "the row to go", LIFETIME + 2)
            wait_until(lambda: not owner_of("PRIMARY"), f"the primary selection to be nobody's by {ends_by}", 60)


if __name__ == "__main__":
    main(own_tests(with_lifetime))
