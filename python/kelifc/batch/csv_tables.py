"""The tables of the database as CSV files."""

from __future__ import annotations

import csv
import os
import sqlite3
from collections.abc import Sequence
from pathlib import Path
from typing import Any

from kelifc.batch.failure import Failure
from kelifc.batch.tables import TABLES
from kelifc.batch.text import cell_text


def write_csv_tables(database: Path, folder: Path) -> None:
    """Writes NAME.csv for each table into the folder. Each file replaces the old one at its end."""
    try:
        connection = sqlite3.connect(f"{database.as_uri()}?mode=ro", uri=True)
        try:
            for name in TABLES:
                _write_table(connection, name, folder)
        finally:
            connection.close()
    except (OSError, sqlite3.Error) as error:
        raise Failure(f"{folder}: {error}") from error


def _write_table(connection: sqlite3.Connection, name: str, folder: Path) -> None:
    beside = folder / "work" / f"{name}.csv.new"
    with open(beside, "w", encoding="utf-8", newline="") as file:
        writer = csv.writer(file, lineterminator="\r\n")
        writer.writerow(TABLES[name])
        for row in connection.execute(f"SELECT * FROM {name} ORDER BY rowid"):
            writer.writerow(_cells(row))
    os.replace(beside, folder / f"{name}.csv")


def _cells(row: Sequence[Any]) -> list[Any]:
    return [cell_text(value) if isinstance(value, str) else value for value in row]
