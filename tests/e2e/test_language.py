# SPDX-License-Identifier: GPL-3.0-or-later
"""The words are in the language of the environment: in the menu, the panel and the settings."""

import re
import subprocess

from desktop import Vellumry, accessible, copy_text, main, open_panel, own_tests, same, text_of, wait_for_clip, wait_until, windows
from tray import Watcher


def language(name, preferred=""):
    return {"LANG": name, "LC_ALL": "", "LC_MESSAGES": "", "LANGUAGE": preferred}


def keep(text):
    copy_text(text)
    wait_for_clip(lambda row: text_of(row) == text, "the copy")


def shown(role, name):
    return wait_until(lambda: accessible("vellumry", role, name), f"{name}", 60)


def middle(node):
    place = node.queryComponent().getExtents(0)
    return place.x + place.width / 2


def german_is_spoken_in_the_menu_the_panel_and_the_settings():
    with Watcher() as watcher, Vellumry(environment=language("de_DE.UTF-8")):
        keep("der erste")
        menu = watcher.item().open_until(lambda menu: "der erste" in menu.labels(), "the copy in the menu")
        same(menu.labels()[1], "1 Eintrag · Aufzeichnung läuft", "the head")
        same(menu.entry("Hilfe").labels()[0], "Vellumry im Web", "the help")
        open_panel()
        shown("label", "^1 Eintrag · auf diesem Rechner verschlüsselt$")
        menu.entry("Einstellungen\u00a0…").click()
        wait_until(lambda: windows("^Vellumry-Einstellungen$"), "the settings")
        shown("page tab", "^Tastenkürzel$")


def arabic_is_written_from_the_right():
    with Vellumry(environment=language("ar_EG.UTF-8")):
        keep("one")
        keep("two")
        open_panel()
        count = shown("label", "^عنصران · مشفّران على هذا الحاسوب$")
        button = shown("push button", "^القائمة$")
        if middle(count) <= middle(button):
            raise AssertionError("the footer is not mirrored")


def the_first_language_of_the_list_that_there_is_is_taken():
    with Watcher() as watcher, Vellumry(environment=language("de_DE.UTF-8", "tlh:ja:fr")):
        same(watcher.item().open().labels()[1], "0 件 · 記録中", "the head")


def a_locale_that_does_not_exist_is_told_once_and_english_is_spoken():
    with Watcher() as watcher, Vellumry(environment=language("tlh_XX.UTF-8"), stderr=subprocess.PIPE) as program:
        same(watcher.item().open().labels()[1], "0 clips · Capturing", "the head")
        program.stop()
        log = program.handle.stderr.read().decode()
        # Qt 6.8 says it too.
        same(len(re.findall("vellumry.*locale", log)), 1, f"lines of the log on the locale: {log}")


main(own_tests())
