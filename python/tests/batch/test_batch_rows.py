"""Rows in compressed files."""

from __future__ import annotations

import gzip
from pathlib import Path

import pytest

from kelifc.batch.rows import read_rows, write_rows

COLUMNS = ("a", "b")


def test_rows_are_read_as_they_were_written(tmp_path: Path) -> None:
    rows: list[list[object]] = [[1, "x\ny"], [None, 1.5], [True, "\u20ac"]]
    write_rows(tmp_path / "rows", COLUMNS, rows)
    assert list(read_rows(tmp_path / "rows", COLUMNS)) == rows


def test_the_same_rows_give_the_same_bytes(tmp_path: Path) -> None:
    for name in ("first", "second"):
        write_rows(tmp_path / name, COLUMNS, [[1, 2]])
    assert (tmp_path / "first").read_bytes() == (tmp_path / "second").read_bytes()


def test_numbers_that_are_not_finite_become_none(tmp_path: Path) -> None:
    write_rows(tmp_path / "rows", COLUMNS, [[float("nan"), float("-inf")], [1, "a"]])
    assert list(read_rows(tmp_path / "rows", COLUMNS)) == [[None, None], [1, "a"]]


def test_surrogates_become_question_marks(tmp_path: Path) -> None:
    write_rows(tmp_path / "rows", COLUMNS, [["a\ud800", "\U0001f600"]])
    assert list(read_rows(tmp_path / "rows", COLUMNS)) == [["a?", "\U0001f600"]]


def test_a_missing_file_has_no_rows(tmp_path: Path) -> None:
    assert list(read_rows(tmp_path / "rows", COLUMNS)) == []


@pytest.mark.parametrize(
    "lines", [b'["a"]\n', b'["a","b"]\n[1]\n', b'["a","b"]\n{}\n', b"", b"x\n"]
)
def test_damaged_rows_raise(tmp_path: Path, lines: bytes) -> None:
    (tmp_path / "rows").write_bytes(gzip.compress(lines))
    with pytest.raises(ValueError):
        list(read_rows(tmp_path / "rows", COLUMNS))


def test_a_file_that_was_cut_raises(tmp_path: Path) -> None:
    write_rows(tmp_path / "rows", COLUMNS, [[number, "x"] for number in range(1000)])
    content = (tmp_path / "rows").read_bytes()
    for size in range(0, len(content), 97):
        (tmp_path / "rows").write_bytes(content[:size])
        with pytest.raises(ValueError):
            list(read_rows(tmp_path / "rows", COLUMNS))
