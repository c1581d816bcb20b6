# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the built program and foreign applications on a headless desktop, from outside, as a user would.

Every wait has a deadline and asks for a condition; nothing here counts on a delay. Run inside scripts/headless-session.
"""

import ast
import ctypes
import json
import os
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
PROGRAM = os.environ.get("VELLUMRY", os.path.join(ROOT, "build", "release", "vellumry"))
PICTURES = os.environ.get("VELLUMRY_PICTURES", "")
DATA = os.path.join(os.environ["XDG_DATA_HOME"], "Vellumry")
HISTORY = os.path.join(DATA, "History.sqlite")
SETTINGS = os.path.join(os.environ["XDG_CONFIG_HOME"], "Vellumry", "Vellumry.conf")
LIMIT = 60.0  # seconds for what is bound to come, on a busy machine too; what the program promises is asked for by its own limit
QUIET = dict(stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


PR_SET_CHILD_SUBREAPER = 36


def adopt_orphans():
    """Makes what our children leave behind ours to wait for. The first process of a container may take seconds over it."""
    ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


adopt_orphans()


class Failure(AssertionError):
    """A condition that did not come true."""


def wait_until(condition, what, timeout=LIMIT):
    """The first true answer of `condition`; Failure when none came in time."""
    end = time.monotonic() + timeout
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            if timeout >= LIMIT:  # a shorter one may have been an attempt
                picture("in-vain-" + re.sub(r"\W+", "-", what)[:60])
            raise Failure(f"waited {timeout:g} s in vain for: {what}")
        time.sleep(0.01)


def wait_same(read, expected, what, timeout=LIMIT):
    """Waits until what is read is what is expected; Failure, with what was read last, when it did not come in time."""
    found = None

    def has_come():
        nonlocal found
        found = read()
        return found == expected

    try:
        wait_until(has_come, what, timeout)
    except Failure as failure:
        raise Failure(f"{failure}\n  expected {expected!r:.400}\n  found    {found!r:.400}") from None


def same(actual, expected, what):
    if actual != expected:
        raise Failure(f"{what}:\n  expected {expected!r:.400}\n  found    {actual!r:.400}")


def run(*command, data=None, timeout=LIMIT):
    """Output of a command that is expected to succeed."""
    done = subprocess.run(command, input=data, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=timeout, check=True)
    return done.stdout


class Process:
    """A program that we started and that we end."""

    def __init__(self, *command, **options):
        settings = dict(QUIET)
        settings.update(options)
        self.handle = subprocess.Popen(command, start_new_session=True, **settings)

    @property
    def pid(self):
        return self.handle.pid

    def alive(self):
        return self.handle.poll() is None

    def stop(self, with_signal=signal.SIGTERM):
        if self.alive():
            os.killpg(self.pid, with_signal)
            try:
                self.handle.wait(5)
            except subprocess.TimeoutExpired:
                os.killpg(self.pid, signal.SIGKILL)
                self.handle.wait(5)
        self.end_group()

    def end_group(self):
        """What outlives the one we started (an editor its private bus) would keep its window for the next test to find.

        Such orphans are ours (adopt_orphans): reaped here, they are gone; the group lasts until the last one is."""
        end = time.monotonic() + 5
        while time.monotonic() < end:
            try:
                os.killpg(self.pid, signal.SIGKILL)
            except ProcessLookupError:
                return
            try:
                os.waitpid(-self.pid, os.WNOHANG)
            except ChildProcessError:
                pass
            time.sleep(0.002)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()


def forgo_greeting():
    """The first run stands in the way of tests that have nothing to do with it."""
    text = "[General]\n"
    if os.path.isfile(SETTINGS):
        with open(SETTINGS, encoding="utf-8") as file:
            text = file.read()
    if "onboardingDone=" not in text:
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "w", encoding="utf-8") as file:
            file.write(text.replace("[General]\n", "[General]\nonboardingDone=true\n", 1))


class Vellumry(Process):
    """The program under test, started and watching the clipboard."""

    def __init__(self, *arguments, ready=True, greeted=True, program=PROGRAM, **options):
        if greeted:
            forgo_greeting()
        self.folder = tempfile.mkdtemp(prefix="notify")
        path = os.path.join(self.folder, "socket")
        self.socket = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)
        self.socket.bind(path)
        environment = dict(os.environ, NOTIFY_SOCKET=path)
        environment.update(options.pop("environment", {}))
        self.started = time.monotonic()
        options.setdefault("stderr", None)
        super().__init__(program, *arguments, env=environment, **options)
        if ready:
            self.wait_ready()

    def wait_ready(self, timeout=LIMIT):
        self.socket.settimeout(timeout)
        try:
            message = self.socket.recv(256)
        except socket.timeout:
            raise Failure("the program did not say that it watches the clipboard") from None
        self.ready_after = time.monotonic() - self.started
        same(message, b"READY=1", "the program's start notice")

    def stop(self, with_signal=signal.SIGTERM):
        super().stop(with_signal)
        self.socket.close()
        shutil.rmtree(self.folder, ignore_errors=True)


def history_key():
    """The 32 key bytes in hexadecimal, out of the keyring, without the program's help."""
    command = ["secret-tool", "lookup", "service", "com.vellumry.Vellumry.history", "account", "history-key-v1"]
    # At a first start it is made while the program watches the clipboard already.
    key = wait_until(lambda: subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20).stdout,
                     "the key in the keyring", 60)
    return key.hex()


def unsealed():
    """The rows of the history file, newest first, opened by a script that shares no code with the program."""
    if not os.path.exists(HISTORY):
        return []
    text = run("/usr/bin/python3", os.path.join(HERE, "unseal.py"), HISTORY, history_key())
    return json.loads(text)


def wait_for_clip(test, what, timeout=LIMIT):
    """The first row for which `test` holds."""

    def find():
        for row in unsealed():
            if test(row):
                return row
        return None

    return wait_until(find, what, timeout)


def representation(row, kind, item=0):
    """Bytes of one representation of an unsealed row, or None."""
    import base64

    items = row["payload"]
    if item >= len(items):
        return None
    value = items[item]["representations"].get(kind)
    return None if value is None else base64.b64decode(value)


def text_of(row):
    value = representation(row, "public.utf8-plain-text")
    return None if value is None else value.decode("utf-8")


# --- the X clipboard, through a foreign tool


def owner_of(selection):
    """The window that owns a selection, 0 when none does; asks the X server only."""
    from Xlib import display

    server = display.Display()
    try:
        owner = server.get_selection_owner(server.intern_atom(selection.upper()))
        return getattr(owner, "id", 0)
    finally:
        server.close()


def copy_text(text, selection="clipboard"):
    """xclip goes into the background before the server has heard of it."""
    before = owner_of(selection)
    tool = subprocess.Popen(["xclip", "-selection", selection, "-in"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
    tool.communicate(text.encode("utf-8"), timeout=10)
    wait_until(lambda: owner_of(selection) not in (0, before), "xclip to own the selection")


def copy_bytes(data, target):
    tool = subprocess.Popen(["xclip", "-selection", "clipboard", "-in", "-t", target], stdin=subprocess.PIPE,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    tool.communicate(data, timeout=30)


def clipboard(target="UTF8_STRING", selection="clipboard"):
    done = subprocess.run(["xclip", "-selection", selection, "-out", "-t", target], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20)
    return done.stdout if done.returncode == 0 else None


def remember(*texts):
    """Copies the texts, each when the one before is in the history; the last one is the newest."""
    for text in texts:
        copy_text(text)
        wait_for_clip(lambda row: text_of(row) == text, f"the copy of {text!r:.80}")


# --- windows and keys


def windows(pattern):
    done = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", pattern], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL)
    return done.stdout.decode().split()


def window_of_class(name):
    def find():
        done = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", name], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL)
        found = done.stdout.decode().split()
        return found[-1] if found else None

    return wait_until(find, f"a window of class {name}", 60)


def focus(window):
    """Activates a window and waits until it has the keyboard."""
    subprocess.run(["xdotool", "windowactivate", "--sync", window], **QUIET)
    wait_same(active_window, int(window), f"window {window} active")


def focus_under_new_manager(window):
    """The same where a window manager has only just begun and may not hear yet."""

    def obeyed():
        subprocess.run(["xdotool", "windowactivate", window], **QUIET)
        return active_window() == int(window) and focused_window() > 1

    wait_until(obeyed, f"window {window} active under the new window manager", 60)


def active_window():
    done = subprocess.run(["xdotool", "getactivewindow"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return int(done.stdout or 0)


def focused_window():
    return int(run("xdotool", "getwindowfocus", "-f").decode() or 0)


def key(*combinations):
    """Presses and releases, one combination after the other. Not with --clearmodifiers: while a grab of ours holds the keyboard back,
    those of the combination before still count as held, and would be pressed again, for good."""
    run("xdotool", "key", *combinations)


def type_text(text):
    run("xdotool", "type", "--delay", "1", text, timeout=60)


def window_title(window):
    return run("xdotool", "getwindowname", window).decode().rstrip("\n")


def picture(name):
    """Leaves a picture of the display where pictures were asked for."""
    if PICTURES:
        os.makedirs(PICTURES, exist_ok=True)
        time.sleep(0.3)  # the picture is for people: what fades in has come
        run("import", "-window", "root", os.path.join(PICTURES, name + ".png"))


# --- the accessibility tree


def role_of(node):
    """By its name up to AT-SPI 2.55: Debian 13 says "button"."""
    name = node.getRoleName()
    return "push button" if name == "button" else name


def accessible(application, role, name=None):
    """The first showing accessible object of an application with a role (and a name, as a pattern), or None."""
    import pyatspi

    def walk(node, depth):
        if depth > 30:
            return None
        for index in range(node.childCount):
            child = node.getChildAtIndex(index)
            if child is None:
                continue
            if role_of(child) == role and (name is None or re.search(name, child.name or "")):
                if child.getState().contains(pyatspi.STATE_SHOWING):
                    return child
            found = walk(child, depth + 1)
            if found:
                return found
        return None

    for app in pyatspi.Registry.getDesktop(0):
        if app is not None and re.search(application, app.name or "", re.IGNORECASE):
            try:
                found = walk(app, 0)
            except Exception:  # the tree changes while it is walked
                found = None
            if found:
                return found
    return None


def text_shown(application, role="text", name=None):
    """What a text field of an application holds."""
    node = accessible(application, role, name)
    if node is None:
        return None
    interface = node.queryText()
    return interface.getText(0, interface.characterCount)


# --- the panel

PANEL = "^Vellumry$"


def panel_is_open():
    return bool(windows(PANEL))


def open_panel():
    key("super+ctrl+v")
    wait_until(panel_is_open, "the panel")


def wait_panel_closed():
    wait_until(lambda: not panel_is_open(), "the panel to close")


# --- running tests


def fresh(test):
    """The test, begun without any history."""

    def whole():
        shutil.rmtree(DATA, ignore_errors=True)
        test()

    whole.__name__ = test.__name__
    return whole


def own_tests(begin=fresh):
    """The tests of the file that is run, in their order: each function without parameters that nothing else in the file uses. A test
    needs no list that it could be missing from. One that a decorator has made None is no test here."""
    program = sys.modules["__main__"]
    with open(program.__file__, encoding="utf-8") as file:
        tree = ast.parse(file.read())
    used = set()
    for node in tree.body:
        own_name = getattr(node, "name", None)
        used.update(part.id for part in ast.walk(node) if isinstance(part, ast.Name) and part.id != own_name)
    return [begin(getattr(program, node.name)) for node in tree.body
            if isinstance(node, ast.FunctionDef) and node.name not in used and not node.args.args and getattr(program, node.name)]


def main(tests):
    """Runs the functions one after the other, each told by its docstring; exits with 1 when one failed."""
    import traceback

    only = sys.argv[1:]
    failed = 0
    passed = 0
    for test in tests:
        if only and test.__name__ not in only:
            continue
        began = time.monotonic()
        try:
            test()
        except Exception:
            failed += 1
            print(f"FAILED {test.__name__}", flush=True)
            traceback.print_exc()
            picture("failed-" + test.__name__)
        else:
            passed += 1
            print(f"ok {test.__name__} ({time.monotonic() - began:.1f} s)", flush=True)
    print(f"{passed} passed, {failed} failed", flush=True)
    sys.exit(1 if failed else 0)
