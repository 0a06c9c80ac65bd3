"""A collection of models, hostile ones among them, and how the tests run the command over it."""

from __future__ import annotations

import gzip
import os
import shutil
import sqlite3
import subprocess
import sys
from pathlib import Path
from typing import Any

import pytest

pytest.importorskip("distributed")

ROOT = Path(__file__).resolve().parents[3]
EXAMPLES = ROOT / "examples"

HEAD = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('','',(''),(''),'','','');
FILE_SCHEMA(('{schema}'));
ENDSEC;
DATA;
"""
END = "ENDSEC;\nEND-ISO-10303-21;\n"

# Processes that read a model whose name starts with `slow` never finish, and those of `killer` kill
# themselves. Python imports this module when it starts.
HOOKS = """
import sys
if "kelifc.batch.process" in sys.orig_argv:
    import os, signal, time
    import kelifc
    real = kelifc.open
    def opened(path, *arguments, **named):
        name = os.path.basename(path)
        if name.startswith("slow"):
            time.sleep(3600)
        if name.startswith("killer"):
            os.kill(os.getpid(), signal.SIGKILL)
        if name.startswith("broken"):
            raise RuntimeError("broken")
        return real(path, *arguments, **named)
    kelifc.open = opened
"""

HOSTILE_TEXT = "=cmd()<script>alert(1)</script>&\u20ac"


def step_file(*statements: str, schema: str = "IFC2X3") -> bytes:
    """A file with these statements."""
    lines = "".join(line + "\n" for line in statements)
    return (HEAD.format(schema=schema) + lines + END).encode()


def house(name: str = "South wall") -> bytes:
    """The example of a house. Different names of its wall make different contents."""
    return (EXAMPLES / "house.ifc").read_bytes().replace(b"'South wall'", f"'{name}'".encode())


def environment(folder: Path) -> dict[str, str]:
    """The environment of the command, with the hooks. The folder gets their file."""
    hooks = folder / "hooks"
    hooks.mkdir(exist_ok=True)
    (hooks / "sitecustomize.py").write_text(HOOKS)
    import kelifc

    package = os.path.dirname(os.path.dirname(os.path.abspath(kelifc.__file__)))
    return {**os.environ, "PYTHONPATH": f"{hooks}{os.pathsep}{package}"}


def make_large(path: Path, statements: int) -> None:
    """A packed model that needs about 300 bytes of memory for each statement."""
    with gzip.open(path, "wb", compresslevel=1) as file:
        file.write(HEAD.format(schema="IFC2X3").encode())
        for first in range(1, statements, 10000):
            numbers = range(first, first + 10000)
            file.write(b"".join(b"#%d=IFCCARTESIANPOINT((0.,0.,0.));\n" % n for n in numbers))
        file.write(END.encode())


def make_collection(folder: Path, small: int = 200) -> Path:
    """Makes the models and returns their folder. Real ones are links, if there are any."""
    models = folder / "models"
    (models / "small").mkdir(parents=True)
    for number in range(small):
        (models / "small" / f"house-{number:03}.ifc").write_bytes(house(f"Wall {number}"))
    (models / "copy.ifc").write_bytes(house("Wall 0"))
    for path in EXAMPLES.glob("*.ifc"):
        shutil.copy(path, models / path.name)
    for path in Path(os.environ.get("KELIFC_TEST_DATA", "/nothing")).glob("*.ifc"):
        (models / path.name).symlink_to(path)
    hostile = models / "hostile"
    hostile.mkdir()
    (hostile / "slow.ifc").write_bytes(house("slow") + b" " * 3_000_000)  # it is among the first
    (hostile / "killer.ifc").write_bytes(house("killer"))
    make_large(hostile / "hog.ifc.gz", 1_000_000)
    (hostile / "empty.ifc").write_bytes(b"")
    (hostile / "noise.ifc").write_bytes(bytes(range(256)) * 40)
    (hostile / "cut.ifc").write_bytes(house("cut")[:3000])
    (hostile / "later.ifc").write_bytes(step_file(schema="IFC4"))
    (hostile / "nowhere.ifc").symlink_to("nothing")
    (hostile / "text.ifc").write_bytes(house("=cmd()<script>alert(1)</script>&\\X2\\20AC\\X0\\"))
    os.mkfifo(hostile / "pipe.ifc")
    return models


def command(*arguments: object) -> list[str]:
    """The command line of `python3 -m kelifc.batch`."""
    return [sys.executable, "-m", "kelifc.batch", *map(str, arguments)]


def run(*arguments: object, folder: Path, status: int = 0) -> subprocess.CompletedProcess[str]:
    """Runs the command in the folder and checks its exit status."""
    finished = subprocess.run(
        command(*arguments), cwd=folder, env=environment(folder), capture_output=True, text=True
    )
    assert finished.returncode == status, finished.stdout + finished.stderr
    return finished


def query(results: Path, text: str) -> list[Any]:
    """Rows of a query to the database of a run."""
    connection = sqlite3.connect(f"{(results / 'models.sqlite').as_uri()}?mode=ro", uri=True)
    try:
        return connection.execute(text).fetchall()
    finally:
        connection.close()


def contents(results: Path) -> dict[str, list[Any]]:
    """All rows of the database of a run, without times and memory."""
    tables: dict[str, list[Any]] = {}
    for (table,) in query(results, "SELECT name FROM sqlite_master WHERE type = 'table'"):
        columns = [row[1] for row in query(results, f"PRAGMA table_info({table})")]
        kept = ", ".join(f'"{name}"' for name in columns if name not in ("seconds", "peakMemory"))
        tables[table] = query(results, f"SELECT {kept} FROM {table} ORDER BY rowid")
    return tables
