#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads a history file with nothing of the program: python3-cryptography, plistlib and sqlite3.

    unseal.py History.sqlite [KEY]

KEY is 64 hexadecimal digits; without it they are read from standard input, which keeps them out of the process list. Prints
a JSON list of the rows, last used first. A row that cannot be read has "error" instead of its content. The file is only read.
"""

import base64
import json
import pathlib
import plistlib
import sqlite3
import sys

from cryptography.exceptions import InvalidTag
from cryptography.hazmat.primitives.ciphers.aead import AESGCM

NONCE_SIZE = 12
TAG_SIZE = 16
QUERY = (
    "SELECT id, kind, created, used, pinned, expires, fingerprint, size, meta, payload"
    " FROM clips ORDER BY used DESC"
)


def unseal(cipher, blob):
    if len(blob) < NONCE_SIZE + TAG_SIZE:
        raise ValueError("sealed data too short")
    return cipher.decrypt(blob[:NONCE_SIZE], blob[NONCE_SIZE:], None)


def read_list(cipher, blob):
    return plistlib.loads(unseal(cipher, blob), fmt=plistlib.FMT_BINARY)


def encoded(data):
    return None if data is None else base64.b64encode(data).decode("ascii")


def content_of(cipher, meta_blob, payload_blob):
    meta = read_list(cipher, meta_blob)
    payload = read_list(cipher, payload_blob)
    return {
        "title": meta["title"],
        "searchText": meta["searchText"],
        "sourceBundleID": meta.get("sourceBundleID"),
        "sourceAppName": meta.get("sourceAppName"),
        "files": [
            {"path": file["path"], "name": file["name"], "bookmark": encoded(file.get("bookmark"))}
            for file in meta["files"]
        ],
        "thumbnail": encoded(meta.get("thumbnail")),
        "imageText": meta.get("imageText"),
        "imageTextIsAccurate": meta.get("imageTextIsAccurate", False),
        "isScreenshot": meta.get("isScreenshot", False),
        "payload": [
            {
                "representations": {kind: encoded(data) for kind, data in item["representations"].items()},
                "order": item.get("order"),
            }
            for item in payload["items"]
        ],
    }


def row_of(cipher, row):
    names = ("id", "kind", "created", "used", "pinned", "expires", "fingerprint", "size")
    result = dict(zip(names, row))
    try:
        result.update(content_of(cipher, row[8], row[9]))
    except (InvalidTag, ValueError, KeyError, TypeError, AttributeError, plistlib.InvalidFileException) as error:
        result["error"] = type(error).__name__
    return result


def rows_of(path, key):
    """All rows of the history file at `path`, opened with the 32 bytes of `key`."""
    cipher = AESGCM(key)
    connection = sqlite3.connect(pathlib.Path(path).resolve().as_uri() + "?mode=ro", uri=True)
    try:
        return [row_of(cipher, row) for row in connection.execute(QUERY)]
    finally:
        connection.close()


def main(arguments):
    if len(arguments) not in (2, 3):
        sys.exit(__doc__)
    digits = arguments[2] if len(arguments) == 3 else sys.stdin.read()
    key = bytes.fromhex(digits.strip())
    if len(key) != 32:
        sys.exit("The key must be 64 hexadecimal digits.")
    json.dump(rows_of(arguments[1], key), sys.stdout, ensure_ascii=False, indent=1)
    print()


if __name__ == "__main__":
    main(sys.argv)
