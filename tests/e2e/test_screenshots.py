# SPDX-License-Identifier: GPL-3.0-or-later
"""Screenshots that real tools save to files become clips by themselves, where the user wants that."""

import os
import subprocess
import time

from desktop import QUIET, Vellumry, copy_text, main, own_tests, representation, run, same, text_of, unsealed, wait_for_clip
from settings_file import write_settings

PICTURES = os.path.join(os.environ["HOME"], "Pictures")
SHOTS = os.path.join(PICTURES, "Screenshots")


def want_screenshots(wanted):
    write_settings(f"saveNewScreenshots={'true' if wanted else 'false'}")


def emptied(folder):
    run("rm", "-rf", folder)
    os.makedirs(folder)


def shots():
    return [row for row in unsealed() if row["kind"] == 3]


def content(path):
    with open(path, "rb") as file:
        return file.read()


def watching():
    """The program, when its watch of the folders has begun: it takes files that it finds at the start for known."""
    program = Vellumry()
    probe = os.path.join(SHOTS, "Screenshot_20200101_000000.png")
    end = time.monotonic() + 10
    number = 0
    while not shots() and time.monotonic() < end:
        number += 1
        run("convert", "-size", "8x8", f"xc:rgb({number},0,0)", probe.replace("000000", f"{number:06}"))
        time.sleep(0.1)  # a screenshot each tenth of a second until one is noticed
    same(bool(shots()), True, "the watch begun")
    return program


def a_tool_of_its_own():
    emptied(SHOTS)
    want_screenshots(True)
    with watching():
        before = len(shots())
        subprocess.run(["scrot"], cwd=SHOTS, check=True, timeout=20, **QUIET)
        name = next(name for name in os.listdir(SHOTS) if "scrot" in name)
        row = wait_for_clip(lambda row: row["kind"] == 3 and name in row["searchText"], "scrot's screenshot")
        same(representation(row, "public.png"), content(os.path.join(SHOTS, name)), "the picture, byte for byte")
        same((row["isScreenshot"], row["sourceAppName"]), (True, "Screenshot"), "what it says of itself")
        same(row["title"].startswith("Screenshot " + time.strftime("%Y-%m-%d")), True, "its title: " + row["title"])
        same(bool(row["thumbnail"]), True, "a thumbnail")
        same("Image 1920 × 1080" in row["searchText"], True, "its size among the words")
        same(len(shots()), before + 1, "clips of one screenshot")


def the_desktops_tool_by_its_mark():
    """The name is the user's own; the tool has signed the file."""
    emptied(SHOTS)
    want_screenshots(True)
    with watching():
        path = os.path.join(PICTURES, "the bug.png")
        subprocess.run(["gnome-screenshot", "--file", path], check=True, timeout=30, **QUIET)
        row = wait_for_clip(lambda row: row["kind"] == 3 and "the bug.png" in row["searchText"], "the signed screenshot")
        same(representation(row, "public.png"), content(path), "the picture, byte for byte")


def an_ordinary_picture_stays_out():
    emptied(SHOTS)
    want_screenshots(True)
    with watching():
        run("convert", "-size", "64x64", "gradient:red-blue", os.path.join(SHOTS, "holiday.png"))
        run("convert", "-size", "64x64", "gradient:blue-red", os.path.join(SHOTS, "Screenshot_20260309_140500.png"))
        wait_for_clip(lambda row: "Screenshot_20260309_140500.png" in row.get("searchText", ""), "the screenshot after it")
        same([row for row in shots() if "holiday" in row["searchText"]], [], "clips of the ordinary picture")


def a_screenshot_in_two_halves():
    emptied(SHOTS)
    want_screenshots(True)
    with watching():
        whole = run("convert", "-size", "64x64", "plasma:", "png:-")
        path = os.path.join(SHOTS, "Screenshot_20260309_140501.png")
        with open(path, "wb", buffering=0) as file:
            file.write(whole[:len(whole) // 2])
            time.sleep(0.4)  # the tool takes its time
            file.write(whole[len(whole) // 2:])
        row = wait_for_clip(lambda row: row["kind"] == 3 and os.path.basename(path) in row["searchText"], "the whole screenshot")
        same(representation(row, "public.png"), whole, "both halves")


def a_folder_that_goes_and_comes_back():
    emptied(SHOTS)
    want_screenshots(True)
    with watching() as program:
        os.rename(SHOTS, SHOTS + " of before")
        copy_text("something else meanwhile")
        wait_for_clip(lambda row: text_of(row) == "something else meanwhile", "an ordinary copy")
        os.makedirs(SHOTS)
        run("convert", "-size", "32x32", "plasma:", os.path.join(SHOTS, "Screenshot_20260309_140502.png"))
        wait_for_clip(lambda row: row["kind"] == 3 and "140502" in row["searchText"], "the screenshot in the new folder")
        same(program.alive(), True, "the program runs")


def unwanted_they_stay_out():
    emptied(SHOTS)
    want_screenshots(False)
    with Vellumry():
        subprocess.run(["scrot"], cwd=SHOTS, check=True, timeout=20, **QUIET)
        copy_text("an ordinary copy")
        wait_for_clip(lambda row: text_of(row) == "an ordinary copy", "the copy after it")
        same(shots(), [], "screenshots in the history")


if __name__ == "__main__":
    main(own_tests())
