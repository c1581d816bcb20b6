# SPDX-License-Identifier: GPL-3.0-or-later
"""unseal.py HISTORY KEY: opens a history file from outside and prints its rows as JSON, latest use first.

Shares no code with the program: what it reads is what the file format promises. KEY is 64 hexadecimal digits, "-" for standard
input. A row that cannot be opened is an error: exit status 1.
"""

import base64
import json
import plistlib
import sqlite3
import sys

from cryptography.hazmat.primitives.ciphers.aead import AESGCM


def unseal(key, blob):
    """12 bytes of nonce, the ciphertext, 16 bytes of tag (AES-256-GCM)."""
    return plistlib.loads(AESGCM(key).decrypt(blob[:12], blob[12:], None), fmt=plistlib.FMT_BINARY)


def text(data):
    return None if data is None else base64.b64encode(data).decode("ascii")


def row_as_json(key, row):
    identity, kind, created, used, pinned, expires, fingerprint, size, meta, payload = row
    meta, payload = unseal(key, meta), unseal(key, payload)
    return {
        "id": identity, "kind": kind, "created": created, "used": used, "pinned": pinned, "expires": expires,
        "fingerprint": fingerprint, "size": size,
        "title": meta["title"], "searchText": meta["searchText"],
        "sourceBundleID": meta.get("sourceBundleID"), "sourceAppName": meta.get("sourceAppName"),
        "files": [{"path": file["path"], "name": file["name"], "bookmark": text(file.get("bookmark"))} for file in meta["files"]],
        "thumbnail": text(meta.get("thumbnail")), "imageText": meta.get("imageText"),
        "imageTextIsAccurate": meta.get("imageTextIsAccurate", False), "isScreenshot": meta.get("isScreenshot", False),
        "payload": [{"representations": {name: text(data) for name, data in item["representations"].items()},
                     "order": item.get("order")} for item in payload["items"]],
    }


def main():
    path, digits = sys.argv[1], sys.argv[2]
    key = bytes.fromhex(sys.stdin.read().strip() if digits == "-" else digits)
    connection = sqlite3.connect(f"file:{path}?mode=ro", uri=True)
    rows = connection.execute("SELECT id, kind, created, used, pinned, expires, fingerprint, size, meta, payload FROM clips"
                              " ORDER BY used DESC, rowid DESC")
    json.dump([row_as_json(key, row) for row in rows], sys.stdout)


if __name__ == "__main__":
    main()
