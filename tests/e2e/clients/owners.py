# SPDX-License-Identifier: GPL-3.0-or-later
"""Bare X clients that own the clipboard: honest ones, and such as break the rules, silent, lying, endless, or dead in the middle of a
word. Run as a program it never says what it offers."""

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


def notify(connection, request, given):
    """Tells the requestor that its property is there, or, without one, that it gets nothing."""
    request.requestor.send_event(event.SelectionNotify(time=request.time, requestor=request.requestor, selection=request.selection,
                                                       target=request.target, property=given))
    connection.flush()


def answer(connection, request, offers):
    """As ICCCM wants it. `offers`: bytes by atom; TARGETS lists them."""
    given = request.property or request.target
    targets = connection.get_atom("TARGETS")
    if request.target == targets:
        request.requestor.change_property(given, Xatom.ATOM, 32, [targets, *offers])
    elif request.target in offers:
        request.requestor.change_property(given, request.target, 8, offers[request.target])
    else:
        given = X.NONE
    notify(connection, request, given)


def copy_in_a_row(texts, interval):
    """Copies one text after the other, `interval` seconds apart, and answers each request for the present one at once.

    Stays the owner of the last for a second, so that it can be read."""
    connection = display.Display()
    window = connection.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
    began = time.monotonic()
    for index, text in enumerate(texts):
        window.set_selection_owner(connection.get_atom("CLIPBOARD"), X.CurrentTime)
        connection.flush()
        is_last = index == len(texts) - 1
        end = began + (index + 1) * interval + (1 if is_last else 0)
        while (left := end - time.monotonic()) > 0:
            if not connection.pending_events():
                select.select([connection], [], [], left)
                continue
            request = connection.next_event()
            if request.type == X.SelectionRequest:
                answer(connection, request, {connection.get_atom("UTF8_STRING"): text.encode()})
    connection.close()


class Owner:
    """Owns CLIPBOARD from construction until another owner comes or it is closed, gives what it offers, bytes by target, and writes
    down what it is asked for."""

    def __init__(self, offers):
        self.display = display.Display()
        self.display.set_error_handler(lambda *_: None)
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.names = {self.display.get_atom(name): name for name in ("TARGETS", *offers)}
        self.offers = {self.display.get_atom(name): given for name, given in offers.items()}
        self.log = []
        self.is_closing = False
        self.own()
        self.display.sync()
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def own(self):
        """Takes the clipboard, once more if it is ours already."""
        self.window.set_selection_owner(self.display.get_atom("CLIPBOARD"), X.CurrentTime)
        self.display.flush()

    def requests(self):
        """The names that were asked for, in their order; "?" for one that is not offered."""
        return list(self.log)

    def was_asked_for(self, name):
        return name in self.requests()

    def serve(self):
        try:
            while not self.is_closing:
                if not self.display.pending_events():
                    select.select([self.display], [], [], 0.05)
                    continue
                self.handle(self.display.next_event())
        except (error.ConnectionClosedError, OSError, ValueError):
            pass  # we died, as asked

    def handle(self, happened):
        if happened.type == X.SelectionRequest:
            name = self.names.get(happened.target, "?")
            self.log.append(name)
            self.give(name, happened)

    def give(self, name, request):
        answer(self.display, request, self.offers)

    def close(self):
        self.is_closing = True
        self.thread.join(5)
        try:
            self.display.close()
        except (error.ConnectionClosedError, OSError):
            pass  # dead already

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


class HostileOwner(Owner):
    """`offers` maps each target to bytes, to Pieces or to Silence. `targets` replaces the list of what is offered; Silence there
    means that the owner never says what it has."""

    def __init__(self, offers, targets=None):
        self.targets = targets
        self.transfers = {}
        self.sent = 0
        super().__init__(offers)

    def handle(self, happened):
        super().handle(happened)
        if happened.type == X.PropertyNotify and happened.state == X.PropertyDelete:
            self.go_on(happened.window, happened.atom)

    def give(self, name, request):
        given = request.property or request.target
        offer = self.targets if name == "TARGETS" else self.offers.get(request.target)
        if offer is Silence:
            return
        if name == "TARGETS" and offer is not None:
            request.requestor.change_property(given, Xatom.ATOM, 32, offer)
            notify(self.display, request, given)
        elif isinstance(offer, Pieces):
            request.requestor.change_attributes(event_mask=X.PropertyChangeMask)
            self.transfers[(request.requestor.id, given)] = (request.target, offer, iter(offer.pieces))
            request.requestor.change_property(given, self.display.get_atom("INCR"), 32, [offer.announced])
            notify(self.display, request, given)
        else:
            super().give(name, request)

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
        return [self.display.get_atom(name) for name in names]


class BusyOwner(Owner):
    """Each target takes its time to be made, and what is asked for next waits for it: name to bytes and seconds."""

    def __init__(self, offers):
        self.seconds = {name: seconds for name, (_, seconds) in offers.items()}
        super().__init__({name: data for name, (data, _) in offers.items() if data is not None})

    def give(self, name, request):
        time.sleep(self.seconds.get(name, 0))
        super().give(name, request)


if __name__ == "__main__":
    # Never says what it offers.
    with HostileOwner({}, targets=Silence):
        print("hanging", flush=True)
        threading.Event().wait()
