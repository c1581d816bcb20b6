# SPDX-License-Identifier: GPL-3.0-or-later
"""What becomes of the copies of real clients: each copies, its clip is looked at, it is killed, and what the clipboard then gives
under each of the names that the client had offered is compared with what the client had given, byte for byte.

test_matrix.py runs the light clients, `make matrix` all. With VELLUMRY_MATRIX=FILE the table is written there as Markdown.
"""

import base64
import os
import re
import signal

from desktop import Failure, Vellumry, copy_text, same, text_of, unsealed, wait_for_clip, wait_until
from matrix_rows import ROWS
from record_offer import HOUSEKEEPING, Reader, offer

OURS = "com.vellumry.marker"
# Names whose bytes mean something to their own process, machine or window alone.
LOCAL = ("GTK_TEXT_BUFFER_CONTENTS", "chromium/x-internal-", "application/x-libreoffice-internal-id-", "application/x-openoffice-link")
RTF_NAMES = {"text/richtext", "application/rtf"}
ANEW = "as it was when it was read: the program makes it anew at each asking"
DOCUMENTS = RTF_NAMES | {"text/rtf", "text/html"}
TEXT_NAMES = {"UTF8_STRING", "STRING", "TEXT", "COMPOUND_TEXT"}


def is_content(name):
    if name in HOUSEKEEPING or name.startswith(LOCAL):
        return False
    return name in TEXT_NAMES or "/" in name or "." in name


def timeless(data):
    """RTF without the minute at which it was made."""
    return re.sub(rb"\\(yr|mo|dy|hr|min|sec)\d+", b"", data)


def difference(given, back):
    """The first place at which the bytes differ, for people."""
    if back is None:
        return "not at all"
    at = len(os.path.commonprefix([given, back]))
    near = slice(max(0, at - 80), at + 120)
    return f"at {at} of {len(given)} and {len(back)} bytes\n  given {given[near]!r}\n  back  {back[near]!r}"


def offered_now(without=()):
    """What the client offers, but for lists that may not be read."""
    reader = Reader()
    ask = reader.ask
    reader.ask = lambda target, timeout=15.0: None if target in without else ask(target, timeout)
    return offer(reader)


def has_words(document, before):
    """True when all that was copied as plain text stands in the document too."""
    words = before["given"]["UTF8_STRING"]["bytes"].split()
    return bool(words) and all(word in document for word in words)


def compare(client, before, again, kept, after):
    """Lines of the table; Failure when something comes back otherwise without a reason. `before` and `again` are two askings of
    the client itself: an office program writes a new document, with the time in it, at each. `kept` are the bytes of the clip."""
    lines = []
    for name in before["targets"]:
        given = before["given"].get(name)
        if name in HOUSEKEEPING or given is None:
            continue
        back = after["given"].get(name)
        if not is_content(name):
            same(back, None, f"{name} of {client.program}, which means nothing to others, comes back")
            lines.append((name, "left out: it means something to its own program or machine alone"))
        elif back is not None and back["bytes"] == given["bytes"]:
            lines.append((name, "the same bytes"))
        elif back is None and not given["bytes"]:
            lines.append((name, "left out: there is nothing in it"))
        elif name in RTF_NAMES and back is not None and back["bytes"] == before["given"].get("text/rtf", given)["bytes"]:
            lines.append((name, "the bytes of text/rtf, of which it is another name"))
        elif back is not None and name in RTF_NAMES | {"text/rtf"} and timeless(back["bytes"]) == timeless(given["bytes"]):
            lines.append((name, "the same bytes but for the minute at which the program made it"))
        elif back is not None and back["bytes"] and again["given"].get(name) != given:
            lines.append((name, ANEW))
        elif back is not None and name in DOCUMENTS and back["bytes"] in kept and has_words(back["bytes"], before):
            lines.append((name, ANEW))
        elif name in client.differs:
            lines.append((name, client.differs[name]))
        else:
            raise Failure(f"{name} of {client.program} comes back otherwise: {difference(given['bytes'], back and back['bytes'])}")
    return lines


def row_of(name):
    """The whole way of one client's copy."""
    client = ROWS[name]
    with Vellumry() as program, client.started() as running:
        client.copy(running)
        if client.kind is None:
            running.stop()  # nothing that is copied while it is in front is kept
            copy_text("after " + name)
            wait_for_clip(lambda row: text_of(row) == "after " + name, "the copy after it")
            same([text_of(row) for row in unsealed()], ["after " + name], "the whole history")
            return [("every name", "refused: nothing of it was asked for")]
        before = offered_now({"x-special/gnome-copied-files"} if name == "pcmanfm-cut" else ())
        again = offered_now({"x-special/gnome-copied-files"} if name == "pcmanfm-cut" else ())
        wanted = client.becomes(before)
        row = wait_for_clip(lambda row: row["title"] == wanted["title"], f"the clip {wanted['title']!r}", 30)
        same(row["kind"], wanted["kind"], "its kind")
        kept = [base64.b64decode(data) for item in row["payload"] or [] for data in item["representations"].values()]
        same(bool(offered_now({"x-special/gnome-copied-files"})["targets"]), True, "the copy still on the clipboard")
        running.stop(signal.SIGKILL)
        reader = Reader()
        # A question that the dying owner got is never answered.
        wait_until(lambda: OURS in reader.targets(1.0), "the clip to be put back", 30)
        after = offered_now()
        same(program.alive(), True, "the program runs")
        return compare(client, before, again, kept, after)


def write_table(name, lines):
    path = os.environ.get("VELLUMRY_MATRIX")
    if not path:
        return
    client = ROWS[name]
    with open(path, "a", encoding="utf-8") as file:
        file.write(f"\n### {client.program}: {client.what}\n\n| offered | comes back |\n|---|---|\n")
        for target, outcome in lines:
            target = re.sub(r"(internal-id-)\d+", r"\1…", target)  # the number is that of a process
            shown = target if len(target) < 90 else target[:87] + "…"
            file.write(f"| `{shown}` | {outcome} |\n")


def tests(names):
    """One test function a client."""

    def test_of(name):
        def test():
            write_table(name, row_of(name))

        test.__name__ = name.replace("-", "_")
        return test

    return [test_of(name) for name in names]
