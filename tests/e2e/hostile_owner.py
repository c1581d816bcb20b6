# SPDX-License-Identifier: GPL-3.0-or-later
"""Owners of the clipboard that break the rules: silent, lying, endless, or dead in the middle of a word."""

import itertools
import select
import threading
import time

from Xlib import X, Xatom, display, error
from Xlib.protocol import event

CHUNK = 200_000


class Silence:
    """A target that is offered and never given."""


class Pieces:
    """A target given in increments. `announced` is the size that is claimed; after `dies_after` pieces the owner is gone."""

    def __init__(self, pieces, announced=0, dies_after=None):
        self.pieces = pieces
        self.announced = announced
        self.dies_after = dies_after

    @classmethod
    def of(cls, data, **options):
        return cls((data[at:at + CHUNK] for at in range(0, len(data), CHUNK)), announced=len(data), **options)

    @classmethod
    def endless(cls):
        return cls(itertools.repeat(b"and on and on, " * 1000))


def copy_in_a_row(texts, interval):
    """Copies one text after the other, `interval` seconds apart, and answers at once whoever asks for the present one.

    Stays the owner of the last for a second, so that it can be read."""
    connection = display.Display()
    window = connection.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
    clipboard, targets, utf8 = (connection.intern_atom(name) for name in ("CLIPBOARD", "TARGETS", "UTF8_STRING"))
    began = time.monotonic()
    for index, text in enumerate(texts):
        window.set_selection_owner(clipboard, X.CurrentTime)
        connection.flush()
        is_last = index == len(texts) - 1
        end = began + (index + 1) * interval + (1 if is_last else 0)
        while (left := end - time.monotonic()) > 0:
            if not connection.pending_events():
                select.select([connection], [], [], left)
                continue
            request = connection.next_event()
            if request.type != X.SelectionRequest:
                continue
            given = request.property or request.target
            if request.target == targets:
                request.requestor.change_property(given, Xatom.ATOM, 32, [targets, utf8])
            elif request.target == utf8:
                request.requestor.change_property(given, utf8, 8, text.encode())
            else:
                given = X.NONE
            request.requestor.send_event(event.SelectionNotify(time=request.time, requestor=request.requestor,
                                                               selection=request.selection, target=request.target,
                                                               property=given))
            connection.flush()
    connection.close()


class HostileOwner:
    """Owns CLIPBOARD from construction until another owner comes or it is closed.

    `offers` maps each target to bytes, to Pieces or to Silence. `targets` replaces the list of what is offered; Silence there
    means that the owner never says what it has.
    """

    def __init__(self, offers, targets=None):
        self.display = display.Display()
        self.display.set_error_handler(lambda *_: None)
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.selection = self.display.intern_atom("CLIPBOARD")
        self.incremental = self.display.intern_atom("INCR")
        self.offers = {self.display.intern_atom(name): given for name, given in offers.items()}
        self.names = {atom: name for atom, name in zip(self.offers, offers)}
        self.names[self.display.intern_atom("TARGETS")] = "TARGETS"
        self.targets = targets
        self.transfers = {}
        self.log = []
        self.sent = 0
        self.isClosing = False
        self.window.set_selection_owner(self.selection, X.CurrentTime)
        self.display.sync()
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def was_asked_for(self, name):
        return name in list(self.log)

    def serve(self):
        try:
            while not self.isClosing:
                if not self.display.pending_events():
                    select.select([self.display], [], [], 0.05)
                    continue
                happened = self.display.next_event()
                if happened.type == X.SelectionRequest:
                    self.answer(happened)
                elif happened.type == X.PropertyNotify and happened.state == X.PropertyDelete:
                    self.go_on(happened.window, happened.atom)
        except (error.ConnectionClosedError, OSError, ValueError):
            pass  # we died, as asked

    def answer(self, request):
        name = self.names.get(request.target, "?")
        self.log.append(name)
        self.work(name)
        given = request.property or request.target
        if name == "TARGETS":
            offer = self.targets if self.targets is not None else [request.target, *self.offers]
            if offer is Silence:
                return
            request.requestor.change_property(given, Xatom.ATOM, 32, offer)
        else:
            offer = self.offers.get(request.target)
            if offer is Silence:
                return
            if isinstance(offer, Pieces):
                request.requestor.change_attributes(event_mask=X.PropertyChangeMask)
                self.transfers[(request.requestor.id, given)] = (request.target, offer, iter(offer.pieces))
                request.requestor.change_property(given, self.incremental, 32, [offer.announced])
            elif offer is None:
                given = X.NONE
            else:
                request.requestor.change_property(given, request.target, 8, offer)
        request.requestor.send_event(event.SelectionNotify(time=request.time, requestor=request.requestor,
                                                           selection=request.selection, target=request.target, property=given))
        self.display.flush()

    def work(self, name):
        """What it does before it answers."""

    def go_on(self, window, atom):
        transfer = self.transfers.get((window.id, atom))
        if transfer is None:
            return
        target, offer, pieces = transfer
        if offer.dies_after is not None and self.sent >= offer.dies_after:
            self.display.close()
            raise ValueError("dead")
        piece = next(pieces, b"")
        window.change_property(atom, target, 8, piece)
        self.display.flush()
        self.sent += 1
        if not piece:
            del self.transfers[(window.id, atom)]

    def atoms(self, names):
        return [self.display.intern_atom(name) for name in names]

    def close(self):
        self.isClosing = True
        self.thread.join(5)
        try:
            self.display.close()
        except (error.ConnectionClosedError, OSError):
            pass  # dead already

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


class BusyOwner(HostileOwner):
    """Each target takes its time to be made, and what is asked for next waits for it: name to bytes and seconds."""

    def __init__(self, offers):
        self.seconds = {name: seconds for name, (_, seconds) in offers.items()}
        super().__init__({name: data for name, (data, _) in offers.items() if data is not None})

    def work(self, name):
        time.sleep(self.seconds.get(name, 0))


if __name__ == "__main__":
    # Never says what it offers.
    with HostileOwner({}, targets=Silence):
        print("hanging", flush=True)
        threading.Event().wait()
