# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel over foreign applications: two letters, Return, and the clip is where the user was typing."""


from clients import Chromium, FeatherPad, Mousepad, XTerm
from desktop import (PANEL, Vellumry, accessible, active_window, clipboard, copy_text, focused_window, key, main, open_panel,
                     own_tests, panel_is_open, picture, remember, run, same, text_of, type_text, unsealed, wait_for_clip,
                     wait_panel_closed, wait_same, wait_until, windows)

WORDS = ["quick brown fox", "lazy dog", "zebra crossing"]


def row_shown(name):
    return accessible("vellumry", "list item", name)


def search_and_paste(letters, title):
    open_panel()
    type_text(letters)
    wait_until(lambda: row_shown("^" + title), "the row of " + title)
    key("Return")
    wait_panel_closed()


def into_a_gtk_editor():
    with Vellumry(), Mousepad() as client:
        remember(*WORDS)
        search_and_paste("qu", "quick brown fox")
        wait_same(client.content, "quick brown fox", "the paste in the editor")
        wait_same(lambda: text_of(unsealed()[0]), "quick brown fox", "the pasted clip to come first")
        same(len(unsealed()), len(WORDS), "clips; our own write is no copy")


def into_a_qt_editor():
    with Vellumry(), FeatherPad() as client:
        remember(*WORDS)
        search_and_paste("ze", "zebra crossing")
        wait_same(client.content, "zebra crossing", "the paste in the editor")


def into_a_browser():
    with Vellumry(), Chromium() as client:
        client.enter_area()
        remember(*WORDS)
        search_and_paste("la", "lazy dog")
        wait_same(client.content, "lazy dog", "the paste in the page")


def into_a_terminal():
    with Vellumry(), XTerm() as client:
        remember(*WORDS)
        copy_text("an older primary selection", "primary")
        search_and_paste("do", "lazy dog")
        wait_same(lambda: clipboard(selection="primary"), b"lazy dog", "the words on the primary selection")
        client.settle()
        wait_same(client.content, "lazy dog\n", "the paste in the terminal")


def while_the_shortcut_is_still_held():
    with Vellumry(), Mousepad() as client:
        remember(*WORDS)
        try:
            run("xdotool", "keydown", "super", "keydown", "ctrl", "keydown", "v")
            wait_until(panel_is_open, "the panel")
            run("xdotool", "key", "Return")
            wait_panel_closed()
            wait_same(client.content, "zebra crossing", "the paste in the editor")
        finally:
            run("xdotool", "keyup", "v", "keyup", "ctrl", "keyup", "super")
        key("ctrl+End")
        type_text(" x")
        wait_same(client.content, "zebra crossing x", "clean typing afterwards")


def a_number_pastes_its_row():
    with Vellumry(), Mousepad() as client:
        remember(*WORDS)
        open_panel()
        key("ctrl+2")
        wait_panel_closed()
        wait_same(client.content, "lazy dog", "the second row in the editor")


def a_number_pastes_its_row_on_a_french_keyboard():
    """Its digits need Shift: the second key of their row types é."""
    with Vellumry(), Mousepad() as client:
        remember(*WORDS)
        run("setxkbmap", "fr")
        try:
            open_panel()
            key("ctrl+eacute")
            wait_panel_closed()
            wait_same(client.content, "lazy dog", "the second row in the editor")
        finally:
            run("setxkbmap", "us")


def arrows_choose_and_return_pastes():
    with Vellumry(), Mousepad() as client:
        remember(*WORDS)
        open_panel()
        key("Down", "Down")
        key("Return")
        wait_panel_closed()
        wait_same(client.content, "quick brown fox", "the third row in the editor")


def escape_gives_the_keyboard_back():
    with Vellumry(), Mousepad() as client:
        remember(*WORDS)
        before = focused_window()
        for _ in range(5):
            open_panel()
            key("Escape")
            wait_panel_closed()
            wait_same(focused_window, before, "the editor to have the keyboard again")
        type_text("typed on")
        wait_same(client.content, "typed on", "typing after the panel closed")


def a_click_elsewhere_closes_the_panel():
    with Vellumry(), Mousepad():
        remember(*WORDS)
        open_panel()
        run("xdotool", "mousemove", "5", "1000", "click", "1")
        wait_panel_closed()


def the_panel_is_no_window_of_the_task_bar():
    with Vellumry(), Mousepad():
        remember(*WORDS)
        before = active_window()
        open_panel()
        panel = {int(window) for window in windows(PANEL)}
        listed = run("xprop", "-root", "_NET_CLIENT_LIST").decode()
        for window in panel:
            same(hex(window) in listed, False, "the panel among the window manager's clients")
        picture("panel")
        key("super+ctrl+v")
        wait_panel_closed()
        wait_same(active_window, before, "the same active window")


def a_large_paste_is_served_whole():
    with Vellumry(), Mousepad():
        text = "0123456789abcde\n" * 200_000
        copy_text(text)
        wait_for_clip(lambda row: text_of(row) == text, "the large copy", 30)
        copy_text("small")
        wait_for_clip(lambda row: text_of(row) == "small", "the small copy")
        open_panel()
        key("Down")
        key("Return")
        wait_panel_closed()
        wait_same(lambda: len(clipboard() or b""), len(text), "the large clip on the clipboard", 20)
        same(clipboard(), text.encode(), "the large clip, byte for byte")


if __name__ == "__main__":
    main(own_tests())
