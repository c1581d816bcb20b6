# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks into the history file fast enough to measure by: the key is fetched once and the file is read in this process."""

import sqlite3
import time

from desktop import HISTORY, Failure, copy_text, history_key, text_of, wait_until
from unseal import rows_of

PROMPT = 1.5


class HistoryProbe:
    """Of the history of one running program."""

    def __init__(self):
        self.key = bytes.fromhex(history_key())

    def rows(self):
        return rows_of(HISTORY, self.key)

    def texts(self):
        return [text_of(row) for row in self.rows()]

    def row_with(self, text):
        return next((row for row in self.rows() if text_of(row) == text), None)

    def wait_for(self, text, timeout=60.0):
        return wait_until(lambda: self.row_with(text), f"a clip of {text[:40]!r}", timeout)

    def copy_is_prompt(self, text):
        """Copies a text that is new to the history, and fails when it takes long to get there."""
        before = set(ids())
        began = time.monotonic()
        copy_text(text)
        wait_until(lambda: set(ids()) - before, f"any clip after the copy of {text!r}")
        took = time.monotonic() - began
        if self.row_with(text) is None:
            self.wait_for(text)
            took = time.monotonic() - began
        if took > PROMPT:
            raise Failure(f"the copy of {text!r} took {took:.2f} s")
        return took


def ids():
    """Identities of the rows, last used first; the key is not needed for them."""
    connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True, timeout=5)
    try:
        return [row[0] for row in connection.execute("SELECT id FROM clips ORDER BY used DESC")]
    finally:
        connection.close()


def integrity():
    connection = sqlite3.connect(f"file:{HISTORY}?mode=ro", uri=True, timeout=5)
    try:
        return connection.execute("PRAGMA integrity_check").fetchone()[0]
    finally:
        connection.close()
