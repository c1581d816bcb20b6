# SPDX-License-Identifier: GPL-3.0-or-later
"""An owner of the clipboard that writes down what it is asked for."""

import threading

from Xlib import X, Xatom, display
from Xlib.protocol import event


class LoggingOwner:
    """Owns CLIPBOARD with the given targets from construction until another owner comes or it is closed."""

    def __init__(self, offers):
        self.display = display.Display()
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.selection = self.display.intern_atom("CLIPBOARD")
        self.offers = {self.display.intern_atom(name): data for name, data in offers.items()}
        self.log = []
        self.lock = threading.Lock()
        self.window.set_selection_owner(self.selection, X.CurrentTime)
        self.display.flush()
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def requests(self):
        with self.lock:
            return list(self.log)

    def serve(self):
        while True:
            happened = self.display.next_event()
            if happened.type == X.SelectionClear:
                return
            if happened.type == X.SelectionRequest:
                self.answer(happened)

    def answer(self, request):
        name = self.display.get_atom_name(request.target)
        with self.lock:
            self.log.append(name)
        given = request.property or request.target
        if name == "TARGETS":
            listed = [self.display.intern_atom("TARGETS"), *self.offers]
            request.requestor.change_property(given, Xatom.ATOM, 32, listed)
        elif request.target in self.offers:
            request.requestor.change_property(given, request.target, 8, self.offers[request.target])
        else:
            given = X.NONE
        answer = event.SelectionNotify(time=request.time, requestor=request.requestor, selection=request.selection,
                                       target=request.target, property=given)
        request.requestor.send_event(answer)
        self.display.flush()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.thread.join(2)
