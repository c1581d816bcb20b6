# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks for bytes in the memory of a running process, for which it takes the right to trace it (root, or an inspectable build)."""

import re


def regions(pid):
    with open(f"/proc/{pid}/maps", encoding="utf-8") as maps:
        for line in maps:
            span, rights, rest = line.split(None, 2)
            if rights.startswith("r") and "[vvar" not in rest:
                first, last = (int(part, 16) for part in span.split("-"))
                name = rest.split(None, 3)
                yield first, last, name[3].strip() if len(name) > 3 else ""


def found_in(pid, needles):
    """(name of the needle, kind of region, what lies around it) for each occurrence."""
    found = []
    longest = max(len(needle) for needle in needles.values())
    with open(f"/proc/{pid}/mem", "rb", buffering=0) as memory:
        for first, last, name in regions(pid):
            try:
                memory.seek(first)
                content = memory.read(last - first)
            except (OSError, OverflowError):
                continue
            for what, needle in needles.items():
                at = content.find(needle)
                while at >= 0:
                    around = content[max(0, at - longest):at + len(needle) + longest]
                    found.append((what, name or "anonymous", hex(first + at), around))
                    at = content.find(needle, at + 1)
    return found


def spread_in(pid, text, distance=16):
    """Where the characters of a text (UTF-16) lie that far from each other: so does what a text field could undo keep them."""
    apart = b".{%d}" % (distance - 2)
    pattern = re.compile(apart.join(re.escape(character.encode("utf-16-le")) for character in text), re.DOTALL)
    found = []
    with open(f"/proc/{pid}/mem", "rb", buffering=0) as memory:
        for first, last, name in regions(pid):
            if name in ("", "[heap]"):
                memory.seek(first)
                found += [hex(first + match.start()) for match in pattern.finditer(memory.read(last - first))]
    return found


def can_look_into(pid):
    try:
        with open(f"/proc/{pid}/mem", "rb", buffering=0) as memory:
            first = next(regions(pid))[0]
            memory.seek(first)
            return len(memory.read(16)) == 16
    except OSError:
        return False
