"""Plots and the page of a collection."""

from __future__ import annotations

import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pytest

from kelifc.batch.charts import bars, histogram, quantity, scatter
from kelifc.batch.database import write_database
from kelifc.batch.failure import Failure
from kelifc.batch.options import Options
from kelifc.batch.report import write_report
from kelifc.batch.store import Store
from kelifc.batch.task import Outcome


def shapes(plot: str, name: str) -> list[dict[str, str]]:
    root = ElementTree.fromstring(plot)
    return [shape.attrib for shape in root if shape.tag == name]


def texts(plot: str) -> list[str | None]:
    return [shape.text for shape in ElementTree.fromstring(plot) if shape.tag == "text"]


def test_bars_are_as_long_as_their_values() -> None:
    plot = bars("x", [("a", [10, 5]), ("b", [30])])
    widths = [float(bar["width"]) for bar in shapes(plot, "rect")]
    assert widths[0] == pytest.approx(2 * widths[1], rel=0.01)
    assert widths[2] == pytest.approx(3 * widths[0], rel=0.01)
    assert texts(plot) == ["a", "15", "b", "30"]


def test_labels_are_text() -> None:
    plot = bars("<&\">", [("<script>&\x00" + "x" * 1000, [1])])
    (label, _) = texts(plot)
    assert label is not None and label.startswith("<script>&\\x00x") and len(label) == 34
    assert "<script" not in plot


def test_a_histogram_counts_all_values() -> None:
    plot = histogram("x", "bytes", [1, 1, 9, 1000, 1e6, 1e6 + 1])
    counts = [text for text in texts(plot) if text and text.isdigit() and text not in ("10", "100")]
    assert counts[0] == "2" and "1 M" in texts(plot)
    assert len([bar for bar in shapes(plot, "rect") if float(bar["height"]) > 0]) == 4


def test_points_are_within_the_plot() -> None:
    plot = scatter("x", ("bytes", "s"), [(1, 0.001), (12345, 7), (1e9, 3600)])
    points = shapes(plot, "circle")
    assert len(points) == 3
    for point in points:
        assert 60 <= float(point["cx"]) <= 705 and 12 <= float(point["cy"]) <= 272


def test_no_values_make_no_plot() -> None:
    assert histogram("x", "bytes", []) == scatter("x", ("a", "b"), []) == ""
    assert shapes(bars("x", []), "rect") == []


def test_quantities_are_short() -> None:
    assert [quantity(value) for value in (0, 0.1234, 999, 1500, 2.5e6, 7e12)] == [
        "0", "0.123", "999", "1.5 k", "2.5 M", "7e+03 G"
    ]  # fmt: skip


def test_a_collection_without_any_result_has_a_report(tmp_path: Path) -> None:
    (tmp_path / "work").mkdir()
    outcome = Outcome("/x\udcff.ifc", 0, "", "unreadable", "No such file or directory")
    database = write_database(Store(tmp_path), [outcome], Options())
    write_report(database, tmp_path / "below" / "report.html")
    page = (tmp_path / "below" / "report.html").read_text(encoding="utf-8")
    assert "/x\\xff.ifc" in page and len(re.findall("<svg", page)) == 4
    with pytest.raises(Failure, match="report.html"):
        write_report(database, tmp_path / "below" / "report.html" / "report.html")
