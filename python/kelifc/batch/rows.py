"""Rows of tables in compressed files: one JSON array in each line, the first one the columns."""

from __future__ import annotations

import gzip
import json
import math
import zlib
from collections.abc import Iterable, Iterator, Sequence
from itertools import chain
from pathlib import Path
from typing import Any

from kelifc.batch.text import as_unicode


def plain(value: Any) -> Any:
    """Returns a value that JSON and SQLite can hold: numbers that are not finite become None."""
    if isinstance(value, str):
        return as_unicode(value)
    if isinstance(value, float) and not math.isfinite(value):
        return None
    return value


def write_rows(path: Path, columns: Sequence[str], rows: Iterable[Sequence[Any]]) -> None:
    """Writes the columns and the rows. The same rows give the same bytes."""
    with open(path, "wb") as file, gzip.GzipFile("", "wb", 1, file, mtime=0) as packed:
        for row in chain([columns], rows):
            packed.write(_line_of(row))


def _line_of(row: Sequence[Any]) -> bytes:
    try:
        text = json.dumps(row, allow_nan=False, ensure_ascii=False)
        return text.encode("utf-8") + b"\n"
    except ValueError:  # a surrogate or a number that is not finite, which are rare
        return json.dumps([plain(value) for value in row], allow_nan=False).encode() + b"\n"


def read_rows(path: Path, columns: Sequence[str]) -> Iterator[list[Any]]:
    """Returns the rows of a file. A file that is missing has none.

    Raises ValueError if the file is damaged or has other columns.
    """
    try:
        with gzip.open(path, "rt", encoding="utf-8") as file:
            head = json.loads(file.readline())
            if head != list(columns):
                raise ValueError(f"{path}: it has other columns")
            for line in file:
                row = json.loads(line)
                if not isinstance(row, list) or len(row) != len(head):
                    raise ValueError(f"{path}: it has a damaged row")
                yield row
    except FileNotFoundError:
        return
    except (EOFError, OSError, zlib.error) as error:
        raise ValueError(f"{path}: {error}") from error
