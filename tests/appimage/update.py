# SPDX-License-Identifier: GPL-3.0-or-later
"""One AppImage replaces itself by the next version from a signed feed on this machine, with the real runtime under both."""

import os
import shutil
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "e2e"))

from desktop import Vellumry, copy_text, main, own_tests, same, text_of, wait_for_clip, wait_until
from test_update import PORT, Feed, ask, has_owner, signed_feed
from tray import Item, Watcher

BUILT = os.path.join(HERE, "..", "..", "build", "release", "appimage")


def content(path):
    with open(path, "rb") as file:
        return file.read()


def mounted_from():
    """The AppImages that are mounted now."""
    with open("/proc/self/mounts", encoding="utf-8") as file:
        return [line.split()[1] for line in file if line.startswith("Vellumry.AppImage ")]


class Image:
    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="with blank ")
        self.path = os.path.join(self.folder, "Vellumry.AppImage")
        shutil.copy(os.path.join(BUILT, "first.AppImage"), self.path)
        self.mode = os.stat(self.path).st_mode

    def version(self):
        return subprocess.run([self.path, "--version"], stdout=subprocess.PIPE, text=True, check=True).stdout.split()[1]

    def files(self):
        return sorted(os.listdir(self.folder))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)


LOGIN_ITEM = os.path.join(os.environ["XDG_CONFIG_HOME"], "autostart", "com.vellumry.Vellumry.desktop")


def start_a_lost_program_at_login():
    os.makedirs(os.path.dirname(LOGIN_ITEM), exist_ok=True)
    with open(LOGIN_ITEM, "w", encoding="utf-8") as file:
        file.write("[Desktop Entry]\nType=Application\nName=Vellumry\nExec=/no/longer/there\nTryExec=/no/longer/there\n")


def started_at_login():
    with open(LOGIN_ITEM, encoding="utf-8") as file:
        return [line.strip() for line in file if line.startswith(("Exec=", "TryExec="))]


def the_first_version_becomes_the_second_and_goes_on():
    newer = content(os.path.join(BUILT, "second.AppImage"))
    files = {"/feed.xml": signed_feed("9.9", newer, f"http://127.0.0.1:{PORT}/V.AppImage"), "/V.AppImage": newer}
    start_a_lost_program_at_login()
    with Image() as image, Watcher() as watcher, Feed(files):
        same(image.version(), "0.1.0", "the first version")
        older = content(image.path)
        with Vellumry(program=image.path) as program:
            item = watcher.item()
            same(len(mounted_from()), 1, "AppImages mounted")
            same(started_at_login(), [f'Exec="{image.path}"', f"TryExec={image.path}"], "what is started at login, not the mounted file")
            copy_text("before the update")
            wait_for_clip(lambda row: text_of(row) == "before the update", "the copy")
            ask(item)
            restart = "Restart to Update to 9.9"
            menu = item.open_until(lambda menu: restart in menu.labels(), "the update to be ready")
            same(content(image.path) == older, True, "nothing replaced before it was asked for")
            menu.entry(restart).click()
            wait_until(lambda: not program.alive(), "the old version's end")
            same(program.handle.returncode, 0, "its status")
            wait_until(lambda: len(watcher.registered) == 2, "the new version's icon")
            same(content(image.path) == newer, True, "the new version in the old one's place")
            same(os.stat(image.path).st_mode, image.mode, "who may start it")
            same(content(image.path + ".previous") == older, True, "the old version kept until the new one has started")
            item = Item(*watcher.registered[1])
            try:
                item.open_until(lambda menu: "before the update" in menu.labels(), "the history in the new version")
                wait_until(lambda: image.files() == ["Vellumry.AppImage"], "the old version to be thrown away")
                same(image.version(), "9.9", "the second version")
                wait_until(lambda: len(mounted_from()) == 1, "the old version to be unmounted")
            finally:
                item.open().entry("Quit Vellumry").click()
                wait_until(lambda: not has_owner(item), "the new version's end")
        wait_until(lambda: not mounted_from(), "the new version to be unmounted")


def a_file_cut_off_on_its_way_changes_nothing():
    newer = content(os.path.join(BUILT, "second.AppImage"))
    files = {"/feed.xml": signed_feed("9.9", newer, f"http://127.0.0.1:{PORT}/V.AppImage"), "/V.AppImage": newer[:-4096]}
    with Image() as image, Watcher() as watcher, Feed(files), Vellumry(program=image.path) as program:
        older = content(image.path)
        item = watcher.item()
        ask(item)
        wait_until(lambda: "Check for Updates…" in item.open().entry("Help").labels(), "the check to be over")
        wait_until(lambda: image.files() == ["Vellumry.AppImage"], "what was fetched to be thrown away")
        same(content(image.path) == older, True, "the program's file")
        same(program.alive(), True, "the program")


main(own_tests())
