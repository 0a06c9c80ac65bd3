"""Text of models and paths, made safe for the places that show or keep it."""

from __future__ import annotations

import os
import re

_CONTROL = re.compile(r"[\x00-\x1f\x7f-\x9f\u2028\u2029]")
_FORMULA_STARTS = ("=", "+", "-", "@", "\t", "\r")


def as_unicode(text: str) -> str:
    """Returns the text without surrogates, which UTF-8 cannot hold."""
    return text.encode("utf-8", "replace").decode("utf-8")


def path_text(path: str) -> str:
    """Returns a path as text. Bytes that are not UTF-8 become \\xNN, so paths stay different."""
    return os.fsencode(path).decode("utf-8", "backslashreplace")


def printable(text: str, limit: int = 300) -> str:
    """Returns one line of at most `limit` characters. Control characters become \\xNN."""
    line = _CONTROL.sub(lambda found: f"\\x{ord(found[0]):02x}", as_unicode(text))
    return line if len(line) <= limit else line[: limit - 1] + "\u2026"


def cell_text(text: str) -> str:
    """Returns the text of a CSV cell, with an apostrophe if a spreadsheet would calculate it."""
    return "'" + text if text.startswith(_FORMULA_STARTS) else text
