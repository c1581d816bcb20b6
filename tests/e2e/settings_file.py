# SPDX-License-Identifier: GPL-3.0-or-later
"""The program's settings file as a hand writes it: the first run is done, and what a test wants is set."""

import os
import shutil

from desktop import SETTINGS


def write_settings(*lines):
    os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
    with open(SETTINGS, "w", encoding="utf-8") as file:
        file.write("\n".join(("[General]", "onboardingDone=true", *lines)) + "\n")


def forget_settings():
    """As before the first start."""
    shutil.rmtree(os.path.dirname(SETTINGS), ignore_errors=True)


def settings():
    """The text of the file; empty without one."""
    if not os.path.exists(SETTINGS):
        return ""
    with open(SETTINGS, encoding="utf-8") as file:
        return file.read()
