# SPDX-License-Identifier: GPL-3.0-or-later
"""The main job, played once for people to see: copies in several applications, two letters, Return, a paste; a picture of each step."""



from clients import FeatherPad, Mousepad
from desktop import (Vellumry, accessible, copy_bytes, copy_text, key, open_panel, picture, run, text_of, type_text, wait_for_clip,
                     wait_panel_closed, wait_until, windows)

COPIES = (
    "Meeting moved to Thursday, 14:30, room Curie",
    "https://www.freedesktop.org/wiki/Specifications/clipboards-spec/",
    "#3f7fd9",
    "git log --oneline --graph --decorate",
    "Dear neighbours,\nthe roof is going to be repaired next week. Please keep the attic windows shut.",
    "ssh-keygen -t ed25519 -C laptop",
)


def show_what_comes_and_goes():
    """A message, then the bar of a running stack."""
    key("super+alt+3")
    wait_until(lambda: windows("^Vellumry message$"), "the message")
    picture("5-message")
    wait_until(lambda: not windows("^Vellumry message$"), "the message to go")
    key("super+ctrl+s")
    wait_until(lambda: windows("^Paste Stack$"), "the bar of the stack")
    copy_text("first for the stack")
    wait_for_clip(lambda row: text_of(row) == "first for the stack", "the first copy")
    copy_text("second for the stack")
    wait_for_clip(lambda row: text_of(row) == "second for the stack", "the second copy")
    picture("6-stack")
    key("super+ctrl+s")


def main():
    with Vellumry(), FeatherPad() as source:
        run("xdotool", "windowmove", source.window, "60", "60")
        for text in COPIES:
            copy_text(text)
            wait_for_clip(lambda row: text_of(row) == text, text)
        copy_bytes(run("convert", "-size", "640x400", "plasma:tomato-steelblue", "png:-"), "image/png")
        wait_for_clip(lambda row: row["kind"] == 3, "the picture")
        source.type_and_copy("The quick brown fox jumps over the lazy dog")
        picture("1-copy")
        wait_for_clip(lambda row: (text_of(row) or "").startswith("The quick"), "the copy in the editor")
        with Mousepad() as target:
            run("xdotool", "windowmove", target.window, "180", "160")
            type_text("Pasted here: ")
            open_panel()
            wait_until(lambda: accessible("vellumry", "list item", "^The quick"), "the rows")
            for _ in range(3):
                key("Down")
            wait_until(lambda: accessible("vellumry", "label", "the roof is going"), "the letter in the preview")
            picture("2-panel")
            type_text("ro")
            wait_until(lambda: accessible("vellumry", "list item", "^Dear"), "the row that matches inside")
            picture("3-search")
            key("Return")
            wait_panel_closed()
            wait_until(lambda: target.content() != "Pasted here: ", "the paste")
            picture("4-paste")
            show_what_comes_and_goes()
            print("copied, found by two letters, pasted:", repr(target.content()))


if __name__ == "__main__":
    main()
