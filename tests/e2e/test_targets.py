# SPDX-License-Identifier: GPL-3.0-or-later
"""Pastes into many kinds of applications, in each of the ways that the program has.

`test_targets.py --heavy` takes the large applications. With VELLUMRY_TABLE=file the results are appended there, a line each.
"""

import os
import sys

from clients import (Chromium, FeatherPad, Firefox, Geany, GnomeTerminal, GnomeTextEditor, Kate, Kitty, Konsole, LxTerminal,
                     Mousepad, Rxvt, SwingWindow, Writer, XTerm, XfceTerminal)
from desktop import Failure, Vellumry, fresh, key, main, open_panel, remember, type_text, wait_panel_closed, wait_until
from stack import start_stack, wait_ended

LIGHT = (XTerm, Rxvt, LxTerminal, Mousepad, GnomeTextEditor, FeatherPad, Chromium)
HEAVY = (Konsole, Kitty, XfceTerminal, GnomeTerminal, Geany, Kate, Firefox, Writer, SwingWindow)

PINNED = "pinned Größe 5 €"
CHOSEN = "chosen words 漢字"
STACKED = ("first öne;", "second twö")


def shows(target, text):
    """Whether the text arrives; what has to be pressed to see it is pressed again until it does."""
    for _ in range(6):
        target.settle()
        try:
            return wait_until(lambda: text in (target.content() or "").replace("\n", ""), text, 2)
        except Failure:
            continue
    raise Failure(f"waited in vain for {text!r} in {target.title}; it holds {target.content()!r:.200}")


def by_return(target):
    open_panel()
    type_text("ch")
    key("Return")
    wait_panel_closed()
    shows(target, CHOSEN)


def by_pin_key(target):
    key("super+alt+1")
    shows(target, PINNED)


def by_stack(target):
    start_stack()
    remember(*STACKED)
    for text in STACKED:
        key(target.paste_key)
        shows(target, text)
    wait_ended()


WAYS = (by_return, by_pin_key, by_stack)


def tell(target, results):
    path = os.environ.get("VELLUMRY_TABLE")
    if path:
        with open(path, "a", encoding="utf-8") as file:
            file.write("| " + " | ".join([target.title, target.toolkit, *results]) + " |\n")


def pastes_into(kind):
    def test():
        with Vellumry():
            remember(CHOSEN, PINNED)
            open_panel()
            key("ctrl+p")
            key("Escape")
            wait_panel_closed()
            with kind() as target:
                target.get_ready()
                results = []
                for way in WAYS:
                    try:
                        way(target)
                        results.append("✓")
                    except Failure as failure:
                        results.append("✗")
                        print(failure)
                tell(target, results)
                if "✗" in results:
                    raise Failure(f"{target.title}: {results}")

    test.__name__ = "into_" + kind.__name__.lower()
    return fresh(test)


if __name__ == "__main__":
    kinds = LIGHT
    if "--heavy" in sys.argv:
        sys.argv.remove("--heavy")
        kinds = HEAVY
    main([pastes_into(kind) for kind in kinds])
