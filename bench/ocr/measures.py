# SPDX-License-Identifier: GPL-3.0-or-later
"""How far what was read is from what stands in a picture."""

import re
import unicodedata


def normal(text):
    """Blanks of any kind become one; typographic variants that no reader can be blamed for become one."""
    text = unicodedata.normalize("NFC", text)
    for variant, plain in (("’", "'"), ("‘", "'"), ("“", '"'), ("”", '"'), ("—", "-"), ("–", "-")):
        text = text.replace(variant, plain)
    return re.sub(r"\s+", " ", text).strip()


def without_blanks_between_ideographs(text):
    return re.sub(r"(?<=[\u3000-\u9fff\uff00-\uffef]) (?=[\u3000-\u9fff\uff00-\uffef])", "", text)


def distance_within(pattern, text):
    """Fewest edits that turn some stretch of the text into the pattern (Myers 1999, bit-parallel)."""
    size = len(pattern)
    places = {}
    for index, character in enumerate(pattern):
        places[character] = places.get(character, 0) | 1 << index
    mask, last = (1 << size) - 1, 1 << (size - 1)
    plus, minus, score = mask, 0, size
    best = score
    for character in text:
        equal = places.get(character, 0)
        vertical = equal | minus
        horizontal = (((equal & plus) + plus) ^ plus) | equal
        up = minus | ~(horizontal | plus) & mask
        down = plus & horizontal
        if up & last:
            score += 1
        elif down & last:
            score -= 1
        best = min(best, score)
        up, down = up << 1, down << 1  # a stretch may begin anywhere
        plus = (down | ~(vertical | up)) & mask
        minus = up & vertical
    return best


def character_errors(truth, reading):
    """Errors and characters. Each line of the truth is looked for on its own, since the lines of an interface have no
    order; what was read beyond the length of the truth counts as wrong."""
    reading = without_blanks_between_ideographs(normal(reading))
    expected = [normal(line) for line in truth]
    total = sum(map(len, expected))
    errors = sum(min(len(line), distance_within(line, reading)) for line in expected)
    surplus = max(0, len(reading) - total - len(expected))
    return errors + surplus, total


def words(truth):
    """What a user may type: the words of four letters and more."""
    return sorted({word for line in truth for word in re.findall(r"[^\W\d_]{4,}", line)})
