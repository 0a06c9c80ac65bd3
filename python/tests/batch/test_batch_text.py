"""Text of models and paths in places that show or keep it."""

from __future__ import annotations

import os

import pytest

from kelifc.batch.text import as_unicode, cell_text, path_text, printable


def test_text_becomes_one_line_without_control_characters() -> None:
    assert printable("a\x1b[2J\nb\x9b\u2028") == "a\\x1b[2J\\x0ab\\x9b\\x2028"


def test_long_text_is_cut() -> None:
    assert len(printable("x" * 10000)) == 300 and printable("x" * 10000, 5) == "xxxx\u2026"


def test_text_has_no_surrogates() -> None:
    as_unicode("\ud800a").encode("utf-8")
    assert as_unicode("\u20ac") == "\u20ac"


def test_different_paths_stay_different() -> None:
    texts = {path_text(os.fsdecode(path)) for path in (b"/a\xff", b"/a\xfe", b"/a")}
    assert len(texts) == 3 and "/a\\xff" in texts


@pytest.mark.parametrize("start", ["=", "+", "-", "@", "\t", "\r"])
def test_cells_that_a_spreadsheet_would_calculate_get_an_apostrophe(start: str) -> None:
    assert cell_text(start + "1") == "'" + start + "1"
    assert cell_text("a" + start) == "a" + start
