"""The database of a collection, made from the results on the disk."""

from __future__ import annotations

import os
import sqlite3
from collections.abc import Iterable, Iterator, Sequence
from pathlib import Path
from typing import Any

import kelifc
from kelifc.batch.failure import Failure
from kelifc.batch.options import EXPORT_NAMES, Options
from kelifc.batch.rows import read_rows
from kelifc.batch.store import Result, Store
from kelifc.batch.tables import CLASS_COUNTS, ELEMENT_ROWS, LOSS_ROWS, MODELS, TABLES
from kelifc.batch.task import Outcome
from kelifc.batch.text import path_text

FILE_NAME = "models.sqlite"

_INDEXES = ("models(path)", "models(hash)", "classes(class)", "losses(model)", "losses(reason)",
            "exports(model)", "elements(model)", "elements(class)")  # fmt: skip

_COVERAGE = """
CREATE VIEW coverage AS
SELECT class, count(*) AS models, sum(products) AS products, {counts}
FROM classes GROUP BY class
"""


def write_database(store: Store, outcomes: Iterable[Outcome], options: Options) -> Path:
    """Writes the database of these outcomes beside the old one and then replaces the old one.

    The content depends on the models and the options only, apart from `seconds` and `peakMemory`.
    Raises Failure if the database cannot be written or a result is damaged.
    """
    target = store.root / FILE_NAME
    beside = store.root / "work" / (FILE_NAME + ".new")
    beside.unlink(missing_ok=True)
    try:
        connection = sqlite3.connect(beside, isolation_level=None)
        try:
            _fill(connection, store, outcomes, options)
        finally:
            connection.close()
        os.replace(beside, target)
    except (OSError, sqlite3.Error, ValueError) as error:
        raise Failure(f"{target}: {error}") from error
    return target


def _fill(
    connection: sqlite3.Connection, store: Store, outcomes: Iterable[Outcome], options: Options
) -> None:
    for pragma in ("journal_mode=OFF", "synchronous=OFF", "cache_size=-65536"):
        connection.execute(f"PRAGMA {pragma}")
    connection.execute("BEGIN")
    for name, columns in TABLES.items():
        fields = ", ".join(f'"{column}" {kind}' for column, kind in columns.items())
        connection.execute(f"CREATE TABLE {name} ({fields})")
    counts = ", ".join(f"sum({name}) AS {name}" for name in CLASS_COUNTS)
    connection.execute(_COVERAGE.format(counts=counts))
    _insert_run(connection, options)
    known: set[str] = set()
    for outcome in sorted(outcomes, key=lambda outcome: os.fsencode(outcome.path)):
        result = _result_of(store, outcome)
        _insert(connection, "models", [_model_row(store, outcome, result)])
        if result is not None and outcome.hash not in known:
            known.add(outcome.hash)
            _insert_content(connection, store, result, options)
    for index in _INDEXES:
        name = index.replace("(", "_").rstrip(")")
        connection.execute(f"CREATE INDEX {name} ON {index}")
    connection.execute("COMMIT")


def _insert_run(connection: sqlite3.Connection, options: Options) -> None:
    connection.execute("CREATE TABLE run (name TEXT, value TEXT)")
    values = {
        "version": kelifc.__version__,
        "exports": ",".join(options.exports),
        "timeout": f"{options.timeout:g}",
        "memoryLimit": str(options.memory),
        "retries": str(options.retries),
    }
    connection.executemany("INSERT INTO run VALUES (?, ?)", values.items())


def _insert(
    connection: sqlite3.Connection, table: str, rows: Iterable[Sequence[Any]]
) -> None:
    marks = ", ".join("?" * len(TABLES[table]))
    connection.executemany(f"INSERT INTO {table} VALUES ({marks})", rows)


def _result_of(store: Store, outcome: Outcome) -> Result | None:
    if not outcome.hash:
        return None
    result = store.read_shared(outcome.hash)
    if result is None:
        raise ValueError(f"the result of {path_text(outcome.path)} is missing or damaged")
    return result


def _model_row(store: Store, outcome: Outcome, result: Result | None) -> list[Any]:
    values: dict[str, Any] = {
        "path": path_text(outcome.path),
        "size": outcome.size,
        "hash": outcome.hash,
        "status": outcome.status,
        "message": outcome.message,
    }
    if result is not None:
        folder = store.folder(outcome.hash).relative_to(store.root).as_posix()
        measured = {name: result[name] for name in ("seconds", "peakMemory")}
        values = {**result["model"], **measured, **values, "folder": folder}
    return [None if values.get(name) == "" else values.get(name) for name in MODELS]


def _insert_content(
    connection: sqlite3.Connection, store: Store, result: Result, options: Options
) -> None:
    model = result["hash"]
    folder = store.folder(model)
    _insert(connection, "classes", _class_rows(result))
    _insert(connection, "exports", _export_rows(result, folder.relative_to(store.root), options))
    losses = read_rows(folder / "losses.jsonl.gz", LOSS_ROWS)
    _insert(connection, "losses", ([model, *row] for row in losses))
    elements = read_rows(folder / "elements.jsonl.gz", ELEMENT_ROWS)
    _insert(connection, "elements", ([model, *row] for row in elements))


def _class_rows(result: Result) -> Iterator[list[Any]]:
    for name, counts in sorted(result["classes"].items()):
        # Approximate elements are members, surfaces or bodies, too.
        products = sum(counts[what] for what in CLASS_COUNTS if what != "approximate")
        yield [result["hash"], name, products, *(counts[what] for what in CLASS_COUNTS)]


def _export_rows(result: Result, folder: Path, options: Options) -> Iterator[list[Any]]:
    for done in result["exports"]:
        name = done["format"]
        if name not in options.exports:
            continue
        path = None if done["message"] else (folder / EXPORT_NAMES[name]).as_posix()
        texts = [done[field] or None for field in ("omissions", "message")]
        yield [result["hash"], name, path, done["elements"], *texts]
