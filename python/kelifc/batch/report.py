"""The report of a collection: one page without scripts, which needs no other file."""

from __future__ import annotations

import base64
import contextlib
import hashlib
import os
import sqlite3
from collections.abc import Sequence
from html import escape
from pathlib import Path
from typing import Any

from kelifc.batch.charts import bars, histogram, scatter, shown
from kelifc.batch.failure import Failure
from kelifc.batch.options import MEGABYTE
from kelifc.batch.text import as_unicode

# Longer tables and clouds of points help nobody.
_MOST_ROWS = 1000
_MOST_BARS = 25
_MOST_POINTS = 5000

_STYLE = """
:root{color-scheme:light dark;--text:#222;--back:#fff;--line:#ccc;
--a:#2f6fb0;--b:#d98c21;--c:#5a9e4b;--d:#8d8d8d;--e:#c8413b}
@media(prefers-color-scheme:dark){:root{--text:#ddd;--back:#1b1d20;--line:#444;--a:#6aa5dd}}
body{font:15px/1.5 system-ui,sans-serif;color:var(--text);background:var(--back);
max-width:1000px;margin:2em auto;padding:0 1em}
table{border-collapse:collapse;margin:.5em 0}
td,th{border:1px solid var(--line);padding:.15em .6em;text-align:left;overflow-wrap:anywhere}
.n{text-align:right;font-variant-numeric:tabular-nums;white-space:nowrap}
svg{max-width:100%;height:auto}svg text{font-size:12px;fill:var(--text)}
.end{text-anchor:end}.mid{text-anchor:middle}.grid{stroke:var(--line)}
.s0{fill:var(--a)}.s1{fill:var(--b)}.s2{fill:var(--c)}.s3{fill:var(--d)}.s4{fill:var(--e)}
b{display:inline-block;width:.8em;height:.8em;margin:0 .3em 0 1em}
.b0{background:var(--a)}.b1{background:var(--b)}.b2{background:var(--c)}.b3{background:var(--d)}
.b4{background:var(--e)}
"""

_PAGE = """<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'sha256-{hash}'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Collection of models</title><style>{style}</style></head><body>
<h1>Collection of models</h1>
{body}</body></html>
"""

_COVERED_AS = ("members", "surfaces", "bodies", "decomposed", "lost")


def write_report(database: Path, target: Path) -> None:
    """Writes the page. It replaces the old one at its end. Raises Failure if it cannot."""
    beside = target.with_name(f"{target.name}.{os.getpid()}.new")
    try:
        connection = sqlite3.connect(f"{database.as_uri()}?mode=ro", uri=True)
        try:
            page = _page(connection)
        finally:
            connection.close()
        target.parent.mkdir(parents=True, exist_ok=True)
        beside.write_text(page, encoding="utf-8")
        os.replace(beside, target)
    except (OSError, sqlite3.Error) as error:
        with contextlib.suppress(OSError):
            beside.unlink()
        raise Failure(f"{target}: {error}") from error


def _page(connection: sqlite3.Connection) -> str:
    body = "".join(section(connection) for section in _SECTIONS)
    digest = base64.b64encode(hashlib.sha256(_STYLE.encode()).digest()).decode()
    return _PAGE.format(hash=digest, style=_STYLE, body=as_unicode(body))


def _rows(connection: sqlite3.Connection, query: str, *values: Any) -> list[Any]:
    return connection.execute(query, values).fetchall()


def _table(head: Sequence[str], rows: Sequence[Sequence[Any]]) -> str:
    if not rows:
        return "<p>None.</p>\n"
    lines = ["<tr>" + "".join(f"<th>{escape(name)}</th>" for name in head) + "</tr>"]
    for row in rows[:_MOST_ROWS]:
        lines.append("<tr>" + "".join(_cell(value) for value in row) + "</tr>")
    more = f"<p>and {len(rows) - _MOST_ROWS} more</p>" if len(rows) > _MOST_ROWS else ""
    return "<table>" + "\n".join(lines) + f"</table>{more}\n"


def _cell(value: Any) -> str:
    if isinstance(value, str):
        return f"<td>{shown(value)}</td>"
    if value is None:
        return "<td></td>"
    text = f"{value:,}" if isinstance(value, int) else f"{value:,.4g}"
    return f'<td class="n">{text}</td>'


def _summary(connection: sqlite3.Connection) -> str:
    totals = _rows(
        connection,
        "SELECT count(*), count(DISTINCT hash), total(size), total(instances), total(products), "
        "total(members), total(surfaces), total(bodies), total(lost), total(seconds) FROM models",
    )[0]
    names = ("models", "different contents", "bytes", "instances", "products", "members",
             "surfaces", "bodies", "products lost", "seconds of all processes")  # fmt: skip
    facts = [(name, int(value + 0.5)) for name, value in zip(names, totals)]
    query = "SELECT status, count(*) FROM models GROUP BY 1 ORDER BY 2 DESC, 1"
    statuses = _rows(connection, query)
    return (
        _table(("", "total"), facts)
        + "<h2>Status</h2>\n"
        + bars("Models by status", [(name, [count]) for name, count in statuses])
    )


def _sizes(connection: sqlite3.Connection) -> str:
    sizes = [row[0] for row in _rows(connection, "SELECT size FROM models WHERE size > 0")]
    return "<h2>Sizes</h2>\n" + histogram("Models by size", "bytes of a model", sizes)


def _count_by(connection: sqlite3.Connection, column: str) -> list[tuple[str, list[float]]]:
    rows = _rows(
        connection,
        f"SELECT coalesce(nullif({column}, ''), 'unknown'), count(*) FROM models "
        "GROUP BY 1 ORDER BY 2 DESC, 1",
    )
    named = [(name, [float(count)]) for name, count in rows[:_MOST_BARS]]
    rest = sum(count for _, count in rows[_MOST_BARS:])
    return [*named, ("others", [float(rest)])] if rest else named


def _releases(connection: sqlite3.Connection) -> str:
    return "<h2>Releases</h2>\n" + bars("Models by release", _count_by(connection, "release"))


def _exporters(connection: sqlite3.Connection) -> str:
    return "<h2>Exporters</h2>\n" + bars("Models by exporter", _count_by(connection, "application"))


def _coverage(connection: sqlite3.Connection) -> str:
    rows = _rows(connection, "SELECT * FROM coverage ORDER BY products DESC, class")
    head = ("class", "models", "products", *_COVERED_AS, "approximate")
    legend = "".join(
        f'<b class="b{number}"></b>{name}' for number, name in enumerate(_COVERED_AS)
    )
    series = [(row[0], [float(value) for value in row[3:8]]) for row in rows[:_MOST_BARS]]
    plot = bars("Products by class, and as what they were read", series)
    return f"<h2>Coverage by class</h2>\n<p>{legend}</p>{plot}{_table(head, rows)}"


def _times(connection: sqlite3.Connection) -> str:
    where = "FROM models WHERE size > 0 AND seconds > 0 AND status IN ('ok', 'losses')"
    count = _rows(connection, f"SELECT count(*) {where}")[0][0]
    points = _rows(
        connection,
        f"SELECT size, seconds {where} AND rowid % ? = 0 ORDER BY rowid",
        max(1, -(-count // _MOST_POINTS)),
    )
    memory = _rows(
        connection,
        f"SELECT size, peakMemory / {MEGABYTE}.0 {where} AND peakMemory > 0 AND rowid % ? = 0",
        max(1, -(-count // _MOST_POINTS)),
    )
    return (
        "<h2>Time against size</h2>\n"
        + scatter("Time against size", ("bytes of a model", "s"), points)
        + "<h2>Memory against size</h2>\n"
        + scatter("Memory against size", ("bytes of a model", "MB"), memory)
    )


def _losses(connection: sqlite3.Connection) -> str:
    rows = _rows(
        connection,
        "SELECT reason, count(*), count(DISTINCT model) FROM losses GROUP BY 1 ORDER BY 2 DESC, 1",
    )
    return "<h2>Losses by reason</h2>\n" + _table(("reason", "products", "models"), rows)


def _exports(connection: sqlite3.Connection) -> str:
    rows = _rows(
        connection,
        "SELECT format, count(path), count(message), total(elements) FROM exports "
        "GROUP BY 1 ORDER BY 1",
    )
    if not rows:
        return ""
    return "<h2>Exports</h2>\n" + _table(("format", "written", "failed", "elements"), rows)


def _failures(connection: sqlite3.Connection) -> str:
    rows = _rows(
        connection,
        "SELECT path, size, status, message FROM models WHERE status <> 'ok' "
        "ORDER BY status, path",
    )
    head = ("model", "bytes", "status", "message")
    return "<h2>Models that are not ok</h2>\n" + _table(head, rows)


_SECTIONS = (
    _summary,
    _sizes,
    _releases,
    _exporters,
    _coverage,
    _times,
    _losses,
    _exports,
    _failures,
)
