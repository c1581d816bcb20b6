# SPDX-License-Identifier: GPL-3.0-or-later
"""The program's main jobs in a headless Wayland session, from outside, as a user would. Run inside scripts/wayland-session."""

import os
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from session import (HERE, HINT, PROGRAM, SESSION, Klipper, Window, clear, copy, offered, only_in, open_panel, owner, pasted, press_button, selected,  # noqa: E402
                     picture, press, search_field_has_focus, settle, shown_query, stays, type_text)

from lock_screen import LockedScreen  # noqa: E402

import desktop  # noqa: E402
from desktop import (Process, Vellumry, forgo_greeting, representation, run, same, text_of, unsealed, wait_for_clip,  # noqa: E402
                     wait_same, wait_until)


def test_copy_find_paste():
    """What another program copied is found by typing and pasted into a third one."""
    with Vellumry(), Window() as window:
        for text in ("first copied words", "second copied words", "something else"):
            copy(text)
            wait_for_clip(lambda row, text=text: text_of(row) == text, f"the copy {text!r} in the history")
        open_panel(window)
        type_text("second")
        picture("panel")
        press("return")
        window.wait_text("second copied words")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        type_text("!")
        window.wait_text("second copied words!")


def test_copy_in_a_window():
    """A copy made with the keys of a GTK window is kept with the application it came from."""
    with Vellumry(), Window() as window:
        type_text("typed and copied")
        window.wait_text("typed and copied")
        press("ctrl+a")
        press("ctrl+c")
        row = wait_for_clip(lambda row: text_of(row) == "typed and copied", "the copy in the history")
        assert "org.example.Foreign" in repr(row), row


def test_escape_gives_the_keyboard_back():
    """A panel that is closed again leaves nothing behind."""
    with Vellumry(), Window() as window:
        copy("words")
        wait_for_clip(lambda row: text_of(row) == "words", "the copy in the history")
        for _ in range(5):
            open_panel(window)
            press("escape")
            wait_until(lambda: window.state["active"], "the keyboard back in the window")
        type_text("typed")
        window.wait_text("typed")


def test_typing_through_the_opening():
    """No letter is lost while the panel opens: the first go to the window, from one on all to the search field."""
    letters = "abcdefghijklmnopqrstuvwxyz0123456789"
    with Vellumry(), Window() as window:
        copy("words")
        wait_for_clip(lambda row: text_of(row) == "words", "the copy in the history")
        for turn in range(15):
            before = window.text
            press("ctrl+super+v", *letters)
            try:
                wait_same(lambda: window.text + (shown_query() or ""), before + letters, "all letters, in their order", 20)
            except desktop.Failure as failure:
                raise desktop.Failure(f"{failure}: turn {turn}, {window.text[len(before):]!r} and {shown_query()!r}") from None
            press("escape", "escape")
            wait_until(lambda: window.state["active"], "the keyboard back in the window")


def test_pin():
    """A pinned clip is pasted without the panel: by its global key where programs can hold keys, else by the action that a key is bound to."""
    with Vellumry(), Window() as window:
        copy("pinned words")
        wait_for_clip(lambda row: text_of(row) == "pinned words", "the copy in the history")
        open_panel(window)
        press("ctrl+p")
        press("escape")
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        copy("something after it")
        wait_for_clip(lambda row: text_of(row) == "something after it", "the next copy")
        if SESSION == "kwin":
            press("super+alt+1")
        else:
            run(PROGRAM, "--action", "paste-pin-1")
        window.wait_text("pinned words")


def test_files():
    """A list of files is kept as files and comes back as it was."""
    folder = tempfile.mkdtemp()
    path = os.path.join(folder, "a file.txt")
    with open(path, "w", encoding="utf-8") as file:
        file.write("content")
    uri = "file://" + path.replace(" ", "%20")
    with Vellumry(), Window() as window:
        copy(uri + "\r\n", "text/uri-list")
        row = wait_for_clip(lambda row: representation(row, "public.file-url"), "the file in the history")
        same(representation(row, "public.file-url"), uri.encode(), "the address of the file")
        copy("something after it")
        wait_for_clip(lambda row: text_of(row) == "something after it", "the next copy")
        open_panel(window)
        type_text("a file")
        press("return")
        # GTK's text views take the list itself, and the paths in a session that has portals.
        window.wait_text(path if SESSION.startswith("gnome") else uri + "\r\n")
        same(pasted("text/uri-list").strip(), uri.encode(), "the list of files that is served")


def test_picture():
    """A picture comes back byte for byte."""
    with open(os.path.join(HERE, "..", "..", "docs", "pictures", "1-copy.png"), "rb") as file:
        png = file.read()
    with Vellumry(), Window() as window:
        copy(png, "image/png")
        wait_for_clip(lambda row: representation(row, "public.png") == png, "the picture in the history")
        copy("something after it")
        wait_for_clip(lambda row: text_of(row) == "something after it", "the next copy")
        open_panel(window)
        press("down")
        press("return")
        wait_until(lambda: "image/png" in offered(), "the picture on the clipboard")
        assert pasted("image/png") == png, "the picture came back changed"


def test_concealed():
    """What a password manager marks is never read, and never kept."""
    with Vellumry(), Window() as window:
        type_text("hunter2hunter2")
        window.wait_text("hunter2hunter2")
        press("ctrl+k")
        wait_same(pasted, b"hunter2hunter2", "the secret on the clipboard")
        copy("what is copied next")
        wait_for_clip(lambda row: text_of(row) == "what is copied next", "the next copy")
        assert not [row for row in unsealed() if "hunter2" in (text_of(row) or "")], "the secret is in the history"


def test_killed():
    """What was copied is there after the program was killed."""
    with Vellumry() as program, Window():
        copy("kept before the end")
        wait_for_clip(lambda row: text_of(row) == "kept before the end", "the copy in the history")
        program.stop(signal.SIGKILL)
    with Vellumry():
        copy("kept after it")
        wait_for_clip(lambda row: text_of(row) == "kept after it", "the copy in the history")
        assert [row for row in unsealed() if text_of(row) == "kept before the end"]


def test_survives_its_program():
    """A copy outlives the program that made it."""
    with Vellumry():
        program = owner("outlives its program")
        wait_for_clip(lambda row: text_of(row) == "outlives its program", "the copy in the history")
        program.stop(signal.SIGKILL)
        wait_same(pasted, b"outlives its program", "the copy on the clipboard, its program gone")


def copied_in(window, text):
    type_text(text)
    window.wait_text(text)
    press("ctrl+a")
    press("ctrl+c")
    wait_for_clip(lambda row: text_of(row) == text, "the copy in the history")


def test_survives_its_window():
    """A copy outlives the window that it was made in, whose program is killed."""
    with Vellumry():
        with Window() as window:
            copied_in(window, "outlives its window")
            window.stop(signal.SIGKILL)
            wait_same(pasted, b"outlives its window", "the copy on the clipboard, its window gone")
        assert len([row for row in unsealed() if text_of(row) == "outlives its window"]) == 1, "kept once"


def test_cleared():
    """A clipboard that was emptied stays empty: the program of the copy is still there."""
    with Vellumry(), Window() as window:
        copied_in(window, "to be forgotten")
        wait_same(pasted, b"to be forgotten", "the copy on the clipboard")
        clear()
        stays(lambda: pasted() == b"", "the empty clipboard")
        assert [row for row in unsealed() if text_of(row) == "to be forgotten"], "the history has it all the same"


def test_secret_expires():
    """A card number leaves the history and the clipboard at its time."""
    card = "4242 4242 4242 4242"
    forgo_greeting()
    with open(desktop.SETTINGS, "a", encoding="utf-8") as file:
        file.write("sensitiveSeconds=10\n")
    try:
        with Vellumry():
            other = owner(card)
            wait_for_clip(lambda row: text_of(row) == card, "the card in the history")
            other.stop(signal.SIGKILL)
            wait_same(pasted, card.encode(), "the card on the clipboard, its program gone")
            wait_until(lambda: not [row for row in unsealed() if text_of(row) == card], "the card to leave the history")
            wait_same(pasted, b"", "the card to leave the clipboard")
    finally:
        os.remove(desktop.SETTINGS)


@only_in("sway", "labwc", "kwin")
def test_locked():
    """A screen that is locked in the middle of a stack costs no item: keys pressed there are the locker's."""
    with Vellumry(), Window() as window:
        run(PROGRAM, "--action", "toggle-stack")
        for word in ("before ", "after "):
            copy(word)
            wait_for_clip(lambda row, word=word: text_of(row) == word, f"the copy {word!r}")
        wait_until(lambda: HINT in offered(), "the stack on the clipboard")
        settle()
        press("ctrl+v")
        window.wait_text("before ")
        with LockedScreen():
            wait_until(lambda: not window.state["active"], "the lock screen to have the keyboard")
            press("ctrl+v", "ctrl+v")
            stays(lambda: window.text == "before ", "the text in the window", 0.5)
        wait_until(lambda: window.state["active"], "the keyboard back in the window")
        press("ctrl+v")
        window.wait_text("before after ")


def test_terminal():
    """A terminal gets its own paste key, and finds the clip on PRIMARY, from which many paste."""
    folder = tempfile.mkdtemp()
    typed = os.path.join(folder, "typed")
    with Vellumry():
        copy("echo for a terminal")
        wait_for_clip(lambda row: text_of(row) == "echo for a terminal", "the copy in the history")
        with Process("foot", "sh", "-c", f"touch {folder}/ready; exec cat > {typed}"):
            wait_until(lambda: os.path.exists(os.path.join(folder, "ready")), "the terminal")

            def has_keyboard():
                press("x", "return")
                return os.path.getsize(typed) > 0

            wait_until(has_keyboard, "the terminal to have the keyboard")
            press("ctrl+super+v")
            wait_until(search_field_has_focus, "the search field to have the focus")
            press("return")

            def content():
                press("return")
                with open(typed, encoding="utf-8") as file:
                    return "echo for a terminal" in file.read()

            wait_until(content, "the text in the terminal")
            if SESSION != "gnome":
                assert selected() == b"echo for a terminal"


def paste_in_order(window, words):
    """Copies the words, pastes each by the user's own key, and once more the last."""
    run(PROGRAM, "--action", "toggle-stack")
    for word in words:
        copy(word + " ")
        wait_for_clip(lambda row, word=word: text_of(row) == word + " ", f"the copy {word!r}")
    picture("stack")
    wait_until(lambda: HINT in offered(), "the stack on the clipboard")
    expected = ""
    for word in words:
        expected += word + " "
        settle()
        press("ctrl+v")
        window.wait_text(expected)
    settle()
    press("ctrl+v")
    window.wait_text(expected + words[-1] + " ")


def test_stack():
    """Five copies are pasted in their order, each once, by the user's own paste key."""
    with Vellumry(), Window() as window:
        paste_in_order(window, ["alpha", "beta", "gamma", "delta", "epsilon"])


@only_in("kwin")
def test_stack_beside_klipper():
    """Plasma's clipboard manager, which reads what is new, takes no item of a stack."""
    with Vellumry(), Klipper(), Window() as window:
        paste_in_order(window, ["one", "two", "three", "four", "five"])


@only_in("kwin")
def test_klippers_history_is_taken_over():
    """As Plasma's clipboard manager itself wrote it."""
    with Klipper() as peer:
        for text in ("oldest of theirs", "newest of theirs"):
            copy(text)
            wait_same(peer.newest, text, "the copy in its history")
    clear()
    with Vellumry():
        run(PROGRAM, "--action", "open-settings")
        wait_until(lambda: desktop.accessible("vellumry", "page tab", "^History$"), "the settings").queryAction().doAction(0)
        press_button("^Import…$")
        press_button("^Import$")
        wait_for_clip(lambda row: text_of(row) == "oldest of theirs", "what was copied before we ran")


def test_log():
    """With everything written, the log never quotes what is copied, typed, pasted or named."""
    canary = "canary7319"
    folder = tempfile.mkdtemp(prefix=canary)
    path = os.path.join(folder, canary)
    with open(path, "w", encoding="utf-8") as file:
        file.write(canary)
    with tempfile.TemporaryFile() as log:
        with Vellumry("--verbose", stderr=log), Window() as window:
            copy("file://" + path + "\r\n", "text/uri-list")
            wait_for_clip(lambda row: representation(row, "public.file-url"), "the file in the history")
            copy("copied " + canary)
            wait_for_clip(lambda row: text_of(row) == "copied " + canary, "the copy in the history")
            open_panel(window)
            type_text("copied " + canary)
            press("return")
            window.wait_text("copied " + canary)
            settle()
            run(PROGRAM, "--action", "toggle-stack")
            copy("stacked " + canary)
            wait_for_clip(lambda row: text_of(row) == "stacked " + canary, "the copy for the stack")
            wait_until(lambda: HINT in offered(), "the stack on the clipboard")
            press("ctrl+v")
            window.wait_text("copied " + canary + "stacked " + canary)
        log.seek(0)
        text = log.read().decode("utf-8", "replace")
    assert "info vellumry.app: found: " in text, text
    for line in text.splitlines():
        same(canary in line, False, line)


def test_log_is_quiet():
    """The log of a start and of a panel that was open holds no notice of Qt's: what it says about renderers and portals is our own choice."""
    with Vellumry(stderr=subprocess.PIPE) as program, Window() as window:
        for _ in range(2):
            open_panel(window)
            press("escape")
            wait_until(lambda: window.state["active"], "the keyboard back in the window")
        program.stop()
        log = program.handle.stderr.read().decode()
    assert not [line for line in log.split("\n") if line and " vellumry." not in line], log


def test_bindings_are_told():
    """Where no program can hold keys, the status tells the lines that bind them, as this session's compositor understood them."""
    status = subprocess.run([PROGRAM, "--status"], stdout=subprocess.PIPE, timeout=desktop.LIMIT, check=False).stdout.decode()
    command = "dbus-send --type=method_call --dest=com.vellumry.Vellumry /com/vellumry/Vellumry " \
              "com.vellumry.Vellumry.Actions.Perform string:open-panel"
    lines = {"sway": f"bindsym Ctrl+Mod4+v exec {command}",
             "labwc": f'<keybind key="C-W-v"><action name="Execute" command="{command}"/></keybind>',
             "kwin": "KGlobalAccel", "gnome": "held by the extension"}
    if SESSION in lines:
        assert lines[SESSION] in status, status


desktop.main(desktop.own_tests())
