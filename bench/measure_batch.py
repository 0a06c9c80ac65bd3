"""Measures how many models `python3 -m kelifc.batch` reads per second with one, two ... workers.

    python3 bench/measure_batch.py FOLDER [COPIES] [WORKERS]

Each model of the folder is read COPIES times, 20 by default. A comment makes the copies different.
The rate is that between the first and the last result, so it excludes the start of the workers and
the writing of the tables. The seconds of the processor include both. PYTHONPATH must contain the
package.
"""

from __future__ import annotations

import os
import subprocess
import sys
import tempfile
from pathlib import Path


def make_copies(source: Path, target: Path, copies: int) -> int:
    """Copies the models and returns their size in bytes."""
    size = 0
    for model in source.glob("*.ifc"):
        content = model.read_bytes()
        for number in range(copies):
            size += (target / f"{model.stem}-{number}.ifc").write_bytes(
                content + b"\n/* %d */\n" % number
            )
    return size


def processor_seconds() -> float:
    times = os.times()
    return times.children_user + times.children_system


def main() -> None:
    source = Path(sys.argv[1])
    copies = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    most_workers = int(sys.argv[3]) if len(sys.argv) > 3 else 2
    with tempfile.TemporaryDirectory() as folder:
        models = Path(folder) / "models"
        models.mkdir()
        size = make_copies(source, models, copies)
        print(f"{len(list(models.iterdir()))} models, {size / 1e6:.0f} MB")
        for workers in range(1, most_workers + 1):
            out = Path(folder) / f"out-{workers}"
            start = processor_seconds()
            command = [sys.executable, "-m", "kelifc.batch", models, "--out", out, "--quiet"]
            subprocess.run([*command, "--workers", str(workers)], check=True)
            used = processor_seconds() - start
            done = sorted(path.stat().st_mtime for path in out.glob("models/*/*/result.json"))
            rate = (len(done) - 1) / (done[-1] - done[0])
            print(f"{workers} workers: {rate:.1f} models per second, {used:.1f} s of the processor")


if __name__ == "__main__":
    main()
