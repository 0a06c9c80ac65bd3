"""The command: wrong usage, its tables and its report. The cluster is one worker."""

from __future__ import annotations

import csv
import fcntl
import json
import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pytest
from collection import HOSTILE_TEXT, contents, house, query, run, step_file

import kelifc
from kelifc.batch.tables import TABLES


def named_profiles() -> bytes:
    """The house, with the name R for its rectangles."""
    return house().replace(b"IFCRECTANGLEPROFILEDEF(.AREA.,$", b"IFCRECTANGLEPROFILEDEF(.AREA.,'R'")


@pytest.fixture(scope="module")
def results(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The results of a run over a few models, with its report beside them."""
    folder = tmp_path_factory.mktemp("command")
    models = folder / "models"
    models.mkdir()
    (models / "text.ifc").write_bytes(house("=cmd()<script>alert(1)</script>&\\X2\\20AC\\X0\\"))
    (models / "house.ifc").write_bytes(named_profiles())
    (models / "same.ifc").write_bytes(named_profiles())
    (models / "later.ifc").write_bytes(step_file(schema="IFC4"))
    (models / "<b>=bad\n\x1b.ifc").write_bytes(b"bad")
    run("models", "--out", "out", "--workers", 1, "--export", "csv,svg",
        "--report", "report.html", folder=folder)  # fmt: skip
    return folder / "out"


def cells_of(path: Path) -> list[list[str]]:
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.reader(file))


def test_each_model_has_a_row(results: Path) -> None:
    rows = query(results, "SELECT path, status, products, folder FROM models")
    statuses = {Path(path).name: status for path, status, _, _ in rows}
    assert statuses == {
        "text.ifc": "losses",
        "house.ifc": "losses",
        "same.ifc": "losses",
        "later.ifc": "unsupported",
        "<b>=bad\n\x1b.ifc": "unreadable",
    }
    assert [path for path, *_ in rows] == sorted(path for path, *_ in rows)
    assert all((results / folder / "result.json").exists() for *_, folder in rows)


def test_copies_of_a_model_share_their_elements(results: Path) -> None:
    rows = query(results, "SELECT hash FROM models WHERE path LIKE '%e.ifc'")
    assert len(rows) == 2 and len(set(rows)) == 1
    (count,) = query(results, f"SELECT count(*) FROM elements WHERE model = '{rows[0][0]}'")
    assert count == (11,)


def test_elements_are_those_of_the_building_with_names(results: Path) -> None:
    table = kelifc.open(named_profiles()).building().table("elements")
    rows = query(
        results,
        'SELECT id, class, length, storeyName, profileName FROM elements WHERE model = '
        "(SELECT hash FROM models WHERE path LIKE '%/house.ifc')",
    )
    assert [row[:3] for row in rows] == list(zip(table["id"], table["class"], table["length"]))
    assert {row[3] for row in rows} == {"Ground floor", "Upper floor"}
    assert [row[4] for row in rows if row[4]] == ["R", "R"]


def test_coverage_counts_each_product_once(results: Path) -> None:
    (counted,) = query(results, "SELECT sum(products), sum(lost) FROM classes")
    models = "(SELECT DISTINCT hash, products, lost FROM models)"
    assert query(results, f"SELECT sum(products), sum(lost) FROM {models}") == [counted]


def test_csv_tables_have_the_rows_of_the_database(results: Path) -> None:
    for name, columns in TABLES.items():
        cells = cells_of(results / f"{name}.csv")
        assert cells[0] == list(columns)
        assert len(cells) - 1 == query(results, f"SELECT count(*) FROM {name}")[0][0]


def test_text_of_a_model_cannot_act_in_a_spreadsheet(results: Path) -> None:
    names = query(results, f"SELECT count(*) FROM elements WHERE name = '{HOSTILE_TEXT}'")
    assert names == [(1,)]
    head, *rows = cells_of(results / "elements.csv")
    cells = {row[head.index("name")] for row in rows}
    assert "'" + HOSTILE_TEXT in cells and HOSTILE_TEXT not in cells


def test_the_report_is_one_page_that_shows_text_as_text(results: Path) -> None:
    page = (results.parent / "report.html").read_text()
    assert "default-src 'none'" in page and "<script" not in page and "<b>=" not in page
    assert not re.search(r"""(src|href)=|url\(""", page)
    assert "&lt;b&gt;=bad\\x0a\\x1b.ifc" in page
    for title in ("Status", "Sizes", "Releases", "Exporters", "Coverage", "Time against", "Losses"):
        assert f"<h2>{title}" in page
    plots = re.findall(r"<svg.*?</svg>", page, re.DOTALL)
    assert len(plots) == 7
    for plot in plots:
        assert len(ElementTree.fromstring(plot)) > 1


def test_the_exports_are_in_the_folder_of_the_model(results: Path) -> None:
    rows = query(results, "SELECT format, path, elements FROM exports ORDER BY format, path")
    assert [row[0] for row in rows] == ["csv", "csv", "svg", "svg"]
    assert all(any((results / path).iterdir()) and elements for _, path, elements in rows)


def test_a_second_run_reads_nothing_and_has_the_same_contents(results: Path) -> None:
    before = contents(results)
    stamps = {path: path.stat().st_mtime_ns for path in results.glob("models/*/*/*")}
    finished = run("models", "--out", "out", "--workers", 1, "--export", "csv,svg",
                   folder=results.parent)  # fmt: skip
    assert "5 models" in finished.stdout and "5 of them done before" in finished.stdout
    assert contents(results) == before
    assert {path: path.stat().st_mtime_ns for path in results.glob("models/*/*/*")} == stamps


def test_a_damaged_result_is_read_again(results: Path) -> None:
    before = contents(results)
    for path in results.glob("models/*/*/result.json"):
        path.write_text(json.dumps({"layout": 1}))
    run("models", "--out", "out", "--workers", 1, "--export", "csv,svg", folder=results.parent)
    assert contents(results) == before


@pytest.mark.parametrize(
    "arguments, status, message",
    [
        ([], 64, "required: --out"),
        (["--out", "o", "--timeout", "x"], 64, "'x' is not a number"),
        (["--out", "o", "--timeout", "nan"], 64, "'nan' is not a number"),
        (["--out", "o", "--memory-limit", "1"], 64, "from 64"),
        (["--out", "o", "--workers", "0"], 64, "from 1"),
        (["--out", "o", "--export", "doc"], 64, "no export format 'doc'"),
        (["--out", "o", "--scheduler", "tls://x:1", "--workers", "2"], 64, "--workers"),
        (["--out", "o", "--scheduler", "tcp://127.0.0.1:1"], 64, "needs TLS"),
        (["--out", "o", "--scheduler", "tls://127.0.0.1:1"], 64, "TLS needs --tls-ca"),
        (
            ["--out", "o", "--scheduler", "tls://127.0.0.1:1", "--tls-ca", "no", "--tls-cert", "no",
             "--tls-key", "no"],
            1,
            "No such file",
        ),
        (["--out", "o", "missing.ifc"], 1, "missing.ifc: there is no model"),
        (["--out", "a.ifc/x"], 1, "a.ifc/x: Not a directory"),
    ],
)
def test_a_run_that_cannot_begin_says_why(
    tmp_path: Path, arguments: list[str], status: int, message: str
) -> None:
    (tmp_path / "a.ifc").write_bytes(house())
    finished = run("a.ifc", *arguments, folder=tmp_path, status=status)
    assert finished.stderr.startswith("kelifc.batch: ") and message in finished.stderr
    assert finished.stderr.count("\n") == 1 and finished.stdout == ""


def test_two_runs_cannot_use_one_folder(tmp_path: Path) -> None:
    (tmp_path / "a.ifc").write_bytes(house())
    (tmp_path / "out" / "work").mkdir(parents=True)
    with open(tmp_path / "out" / "work" / "lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        finished = run("a.ifc", "--out", "out", folder=tmp_path, status=1)
    assert "another run uses this folder" in finished.stderr


def test_fail_on_loss_ends_with_4(tmp_path: Path) -> None:
    (tmp_path / "a.ifc").write_bytes(house())
    finished = run("a.ifc", "--out", "out", "--workers", 1, "--fail-on-loss", "--quiet",
                   folder=tmp_path, status=4)  # fmt: skip
    assert finished.stdout == finished.stderr == ""
