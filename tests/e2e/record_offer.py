# SPDX-License-Identifier: GPL-3.0-or-later
"""Records what the owner of the clipboard offers: each target with the type and the bytes it is given as.

    scripts/headless-session /usr/bin/python3 tests/e2e/record_offer.py NAME…     (names of matrix_rows.py; --all for every one)

starts the clients one after the other, lets each copy, and leaves one fixture a client in tests/capture/fixtures. Together with the
expectations of matrix_rows.py these are what the unit tests replay.
"""

import base64
import json
import os
import select
import sys
import time

from Xlib import X, display

FIXTURES = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "capture", "fixtures")
HOUSEKEEPING = {"TARGETS", "MULTIPLE", "TIMESTAMP", "SAVE_TARGETS", "DELETE", "INSERT_PROPERTY", "INSERT_SELECTION"}
LARGEST_KEPT = 48_000
# What tells of the machine and not of the copy.
OF_THE_MACHINE = {"HOSTNAME": b"host", "IP_ADDRESS": bytes(4)}


class Reader:
    """A client that asks the owner of CLIPBOARD, by the letter of ICCCM."""

    def __init__(self):
        self.display = display.Display()
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent, event_mask=X.PropertyChangeMask)
        self.selection = self.display.intern_atom("CLIPBOARD")
        self.property = self.display.intern_atom("RECORDED")
        self.incremental = self.display.intern_atom("INCR")

    def event(self, wanted, end):
        """The next event for which `wanted` holds, or None."""
        while time.monotonic() < end:
            if not self.display.pending_events():
                select.select([self.display], [], [], 0.05)
                continue
            happened = self.display.next_event()
            if wanted(happened):
                return happened
        return None

    def take(self):
        got = self.window.get_full_property(self.property, X.AnyPropertyType, sizehint=1 << 20)
        self.window.delete_property(self.property)
        self.display.flush()
        return got

    def ask(self, target, timeout=15.0):
        """(type, format, bytes) of one target, or None when it is refused or never comes."""
        end = time.monotonic() + timeout
        self.window.delete_property(self.property)
        self.window.convert_selection(self.selection, self.display.intern_atom(target), self.property, X.CurrentTime)
        self.display.flush()
        answer = self.event(lambda happened: happened.type == X.SelectionNotify, end)
        if answer is None or answer.property == X.NONE:
            return None
        got = self.take()
        if got is None:
            return None
        if got.property_type != self.incremental:
            return self.display.get_atom_name(got.property_type), got.format, raw(got)
        kind, data = None, b""
        while True:
            new = self.event(lambda happened: happened.type == X.PropertyNotify and happened.state == X.PropertyNewValue and
                             happened.atom == self.property, end)
            if new is None:
                return None
            got = self.take()
            if got is None:
                continue
            kind = got
            piece = raw(got)
            if not piece:
                return self.display.get_atom_name(kind.property_type), kind.format, data
            data += piece

    def targets(self, timeout=15.0):
        given = self.ask("TARGETS", timeout)
        if given is None:
            return []
        atoms = [int.from_bytes(given[2][at:at + 4], sys.byteorder) for at in range(0, len(given[2]), 4)]
        return [self.display.get_atom_name(atom) for atom in atoms if atom]

    def owner(self):
        return self.display.get_selection_owner(self.selection)


def raw(got):
    if got.format == 8:
        return got.value.encode("latin-1") if isinstance(got.value, str) else bytes(got.value)
    return got.value.tobytes() if got.format == 16 else b"".join(int(value).to_bytes(4, sys.byteorder) for value in got.value)


def offer(reader=None):
    """What the clipboard offers now: {"targets": [...], "given": {target: {"type", "format", "bytes"}}}."""
    reader = reader or Reader()
    given = {}
    names = list(dict.fromkeys(reader.targets()))
    # pcmanfm takes files that were cut off the clipboard when this has been read.
    for name in sorted(names, key=lambda name: name == "x-special/gnome-copied-files"):
        if name in HOUSEKEEPING:
            continue
        answer = reader.ask(name)
        if answer is not None:
            given[name] = {"type": answer[0], "format": answer[1], "bytes": OF_THE_MACHINE.get(name, answer[2])}
    return {"targets": names, "given": given}


def save(name, client, recorded):
    """Writes a fixture. What is too large to be kept in a repository is left out of it."""
    given = {target: dict(answer, bytes=base64.b64encode(answer["bytes"]).decode())
             for target, answer in recorded["given"].items() if len(answer["bytes"]) <= LARGEST_KEPT}
    fixture = {"client": client.program, "copied": client.what, "becomes": client.becomes(recorded), "differs": client.differs,
               "targets": [target for target in recorded["targets"] if target in HOUSEKEEPING or target in given],
               "given": given}
    os.makedirs(FIXTURES, exist_ok=True)
    with open(os.path.join(FIXTURES, name + ".json"), "w", encoding="utf-8") as file:
        json.dump(fixture, file, indent=1, ensure_ascii=False, sort_keys=True)
        file.write("\n")


def main(names):
    import matrix_rows

    wanted = list(matrix_rows.ROWS) if names == ["--all"] else names
    for name in wanted:
        client = matrix_rows.ROWS[name]
        with client.started() as running:
            client.copy(running)
            recorded = offer()
        save(name, client, recorded)
        print(f"{name}: {len(recorded['given'])} of {len(recorded['targets'])} targets", flush=True)


if __name__ == "__main__":
    main(sys.argv[1:])
