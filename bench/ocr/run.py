# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads the corpus with the program's reader and with the tesseract command, and prints how well and how fast:

    python3 bench/ocr/run.py BUILD-FOLDER [CORPUS-FOLDER] [NAME-PREFIX]
"""

import collections
import json
import os
import resource
import subprocess
import sys
import tempfile

import corpus
from measures import character_errors, words
from reader import ACCURATE, FAST, Reader

LANGUAGES = {"German": "deu", "French": "fra", "Greek": "ell", "Japanese": "jpn"}
METHODS = ("fast", "accurate", "command")


def by_command(path, language):
    """What the tesseract command says in its default settings, told the language."""
    environment = dict(os.environ, OMP_THREAD_LIMIT="1")
    return subprocess.run(["tesseract", path, "-", "-l", language], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          env=environment, check=True).stdout.decode("utf-8")


def commands_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def timed(clock, function, *arguments):
    """What the function gives, and the processor time that it took: other programs may be at work."""
    began = clock()
    return function(*arguments), clock() - began


def readings(reader, path, kind):
    with open(path, "rb") as file:
        picture = file.read()
    return {"fast": timed(reader.processor_seconds, reader.read, picture, FAST),
            "accurate": timed(reader.processor_seconds, reader.read, picture, ACCURATE),
            "command": timed(commands_seconds, by_command, path, LANGUAGES.get(kind, "eng"))}


def found(build, cases):
    """Of the words of each case, how many the program's own search finds the text by."""
    question = "\n".join(json.dumps(case, ensure_ascii=False) for case in cases) + "\n"
    answer = subprocess.run([os.path.join(build, "bench", "bench_found_words")], input=question.encode("utf-8"),
                            stdout=subprocess.PIPE, check=True).stdout
    return [int(line) for line in answer.split()]


class Sums:
    def __init__(self):
        self.errors, self.characters = collections.Counter(), 0
        self.found, self.words = collections.Counter(), 0
        self.seconds = collections.Counter()

    def add(self, other):
        self.errors += other.errors
        self.characters += other.characters
        self.found += other.found
        self.words += other.words
        self.seconds += other.seconds

    def line(self, name):
        rates = [f"{100 * self.errors[method] / self.characters:9.2f}" for method in METHODS]
        parts = [f"{100 * self.found[method] / self.words:9.1f}" if self.words else "        -" for method in METHODS]
        times = [f"{self.seconds[method]:9.2f}" for method in METHODS]
        return f"{name:20}" + "".join(rates) + "  " + "".join(parts) + "  " + "".join(times)


def measure(build, folder, prefix):
    sums = {}
    # Drawn before the reader is started: it goes away when it is asked nothing for a while.
    entries = corpus.make(folder)
    with Reader(os.path.join(build, "vellumry-reader")) as reader:
        for entry in entries:
            if not entry["name"].startswith(prefix):
                continue
            one = Sums()
            texts = readings(reader, os.path.join(folder, entry["name"] + ".png"), entry["kind"])
            for method, (text, seconds) in texts.items():
                one.errors[method], one.characters = character_errors(entry["truth"], text or "")
                one.seconds[method] = seconds
                with open(os.path.join(folder, f"{entry['name']}.{method}.txt"), "w", encoding="utf-8") as file:
                    file.write(text or "")
            wanted = words(entry["truth"]) if entry["kind"] != "Japanese" else []
            counts = found(build, [dict(text=texts[method][0] or "", words=wanted) for method in METHODS]) if wanted else []
            one.words = len(wanted)
            one.found.update(dict(zip(METHODS, counts)))
            sums.setdefault(entry["kind"], Sums()).add(one)
            print(one.line(entry["name"]), file=sys.stderr, flush=True)
    return sums


def main():
    build = sys.argv[1]
    folder = sys.argv[2] if len(sys.argv) > 2 else tempfile.mkdtemp(prefix="vellumry-ocr")
    sums = measure(build, folder, sys.argv[3] if len(sys.argv) > 3 else "")
    print(f"{'':20}{'characters wrong, %':^27}  {'words found, %':^27}  {'processor seconds':^27}")
    print(f"{'':20}" + ("".join(f"{method:>9.9}" for method in METHODS) + "  ") * 3)
    whole = Sums()
    for kind, one in sums.items():
        print(one.line(kind))
        whole.add(one)
    print(whole.line("over all"))


if __name__ == "__main__":
    main()
