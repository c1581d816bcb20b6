# SPDX-License-Identifier: GPL-3.0-or-later
"""Asks the program's own reader process, sandbox and all, for the text in pictures."""

import os
import socket
import struct
import subprocess

SUMMARISE, FAST, ACCURATE = 1, 2, 3
HAS_TEXT = 8
LONGER_SIDE = 8192


class Reader:
    """One reader process; see src/reader/ReaderProtocol.h for what is said to it."""

    def __init__(self, program):
        ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_STREAM)
        self.socket = ours
        self.process = subprocess.Popen([program, "text"], stdin=theirs,
                                        env=dict(os.environ, OMP_THREAD_LIMIT="1"))
        theirs.close()
        self.count = 0

    def read(self, picture, mode):
        """The text in the bytes of a picture; None when there is none to be had."""
        self.count += 1
        file = os.memfd_create("picture")
        os.write(file, picture)
        request = struct.pack("<QBi", self.count, mode, LONGER_SIDE)
        socket.send_fds(self.socket, [struct.pack("<I", len(request)) + request], [file])
        os.close(file)
        reply = self.receive(struct.unpack("<I", self.receive(4))[0])
        flags = reply[8]
        thumbnail = struct.unpack_from("<I", reply, 17)[0]
        start = 21 + (0 if thumbnail == 0xFFFFFFFF else thumbnail)
        return reply[start + 4:].decode("utf-8") if flags & HAS_TEXT else None

    def receive(self, size):
        data = b""
        while len(data) < size:
            part = self.socket.recv(size - len(data))
            if not part:
                raise EOFError("the reader has gone")
            data += part
        return data

    def processor_seconds(self):
        with open(f"/proc/{self.process.pid}/stat", encoding="ascii") as file:
            fields = file.read().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def close(self):
        self.socket.close()
        self.process.wait()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
