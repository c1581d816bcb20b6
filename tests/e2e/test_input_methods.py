# SPDX-License-Identifier: GPL-3.0-or-later
"""Chinese is typed into the search field by IBus and its Pinyin engine, which has a window of its own for what may be meant."""

import os
import subprocess

from clients import Mousepad
from desktop import (remember, Process, Vellumry, accessible, focused_window, key, main, own_tests, panel_is_open, run, same,
                     text_shown, wait_panel_closed, wait_same, wait_until, windows)

ENGINE = "libpinyin"
FIELD = "^Search clips$"


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.decode().strip()


class InputMethod(Process):
    """The input-method daemon of the session with one engine, which stands in the settings: the daemon's own panel chooses what
    stands there once it is up."""

    def __init__(self):
        folder = os.path.join(os.environ["XDG_CONFIG_HOME"], "glib-2.0", "settings")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "keyfile"), "w", encoding="utf-8") as file:
            file.write(f"[desktop/ibus/general]\npreload-engines=['{ENGINE}']\n")
        super().__init__("ibus-daemon", "--xim", env=dict(os.environ, GSETTINGS_BACKEND="keyfile", PATH="/usr/bin:/bin"))
        wait_same(lambda: output("ibus", "engine"), ENGINE, "the engine")


def with_input_method():
    return Vellumry(environment={"QT_IM_MODULE": "ibus"})


def open_field():
    key("super+ctrl+v")
    wait_until(panel_is_open, "the panel")
    wait_until(lambda: accessible("vellumry", "text", FIELD), "the search field")


def in_field():
    return text_shown("vellumry", "text", FIELD)


def candidates():
    """The window of the input method's panel that shows what may be meant."""
    for line in output("xwininfo", "-root", "-children").splitlines():
        words = line.split()
        if "ibus-ui-gtk3" in line and "x" in words[-2] and int(words[-2].split("x")[0]) > 100:
            if "IsViewable" in output("xwininfo", "-id", words[0]):
                return words[0]
    return None


def compose(letters):
    """Types what the engine turns into Chinese; it is the engine's until something is chosen."""
    for letter in letters:
        key(letter)
    wait_until(candidates, "the candidates")


def widest_line():
    """The longest stretch of dark pixels in a row of the search field: no letter has one as long as an underline."""
    area = accessible("vellumry", "text", FIELD).queryComponent().getExtents(0)
    width = 120
    data = run("import", "-window", "root", "-crop", f"{width}x{area.height}+{area.x}+{area.y}", "-colorspace", "gray", "-depth", "8", "gray:-")
    longest = 0
    for start in range(0, len(data), width):
        stretch = 0
        for value in data[start:start + width]:
            stretch = stretch + 1 if value < 110 else 0
            longest = max(longest, stretch)
    return longest


def stacking():
    """The windows of the root, topmost first."""
    return [line.split()[0] for line in output("xwininfo", "-root", "-children").splitlines() if line.strip().startswith("0x")]


def what_is_composed_is_underlined_and_its_candidates_lie_above_the_panel():
    """The panel stays open and keeps the keyboard under the other window; nothing is searched for yet."""
    with InputMethod(), with_input_method():
        remember("中国 is here", "other")
        open_field()
        before = focused_window()
        same(widest_line() < 25, True, "an empty field has no line")
        compose("zhongguo")
        wait_until(lambda: widest_line() >= 25, "the underline")
        same(bool(accessible("vellumry", "list item", "^other$")), True, "nothing is searched for yet")
        panel = windows("^Vellumry$")[0]
        order = [int(window, 16) for window in stacking()]
        same(order.index(int(candidates(), 16)) < order.index(int(panel)), True, "the candidates lie above the panel")
        same(focused_window(), before, "who has the keyboard")
        key("space")
        wait_until(lambda: in_field() == "中国", "the chosen word in the field")
        wait_until(lambda: accessible("vellumry", "list item", "^中国 is here$") and not accessible("vellumry", "list item", "^other$"),
                   "the search for it")
        wait_until(lambda: widest_line() < 25, "the underline to go")


def return_takes_the_letters_and_pastes_nothing():
    """The first Return is the engine's, the second one pastes."""
    with InputMethod(), with_input_method(), Mousepad() as editor:
        remember("zhongguo in letters", "other")
        open_field()
        compose("zhongguo")
        key("Return")
        wait_same(in_field, "zhongguo", "the letters in the field")
        same(panel_is_open(), True, "the panel is open")
        same(editor.content(), "", "the editor's text")
        key("Return")
        wait_panel_closed()
        wait_same(editor.content, "zhongguo in letters", "the paste")


def escape_gives_up_what_is_composed_and_then_the_panel():
    """Arrows and Escape are the engine's as long as it composes."""
    with InputMethod(), with_input_method():
        remember("older", "newer")
        open_field()
        compose("zhong")
        key("Escape")
        wait_until(lambda: not candidates(), "the candidates to go")
        same(in_field(), "", "what the field holds")
        same(panel_is_open(), True, "the panel is open")
        key("Escape")
        wait_panel_closed()


if __name__ == "__main__":
    main(own_tests())
