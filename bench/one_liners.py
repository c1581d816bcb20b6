# SPDX-License-Identifier: GPL-3.0-or-later
"""Made-up clips, the same in each run."""

import random


def texts(count, seed=5):
    """Of one line: median 18 characters, mean about 720, a few very long."""
    chance = random.Random(seed)
    for index in range(count):
        length = min(int(chance.lognormvariate(2.9, 2.7)) + 1, 100_000)
        yield (f"{index} " + "".join(chance.choice("abcdefghij klmnopqrstuvwxyz ") for _ in range(length)))[:max(length, 6)].strip()
