"""Measures what Python adds: opening a model, and reading attributes.

    PYTHONPATH=build/release/python /usr/bin/python3 bench/measure_python.py MODEL [COMMAND]

COMMAND is the command kelifc of the same build. `kelifc info` loads the model in C++, and the time
of `kelifc info` of an empty model is subtracted.
"""

from __future__ import annotations

import subprocess
import sys
import tempfile
import time
from typing import Any, Callable

import kelifc

ROUNDS = 7


def fastest(work: Callable[[], Any]) -> float:
    """The shortest of several times, in seconds."""
    times = []
    for _ in range(ROUNDS):
        start = time.perf_counter()
        result = work()
        times.append(time.perf_counter() - start)
        del result
    return min(times)


def measure_attributes(model: kelifc.Model) -> None:
    names = ["GlobalId", "Name", "ObjectPlacement", "Representation", "Tag"]
    elements = model.by_type("IfcElement")
    for name in names:
        start = time.perf_counter()
        for element in elements:
            getattr(element, name)
        each = (time.perf_counter() - start) / max(1, len(elements))
        print(f"{name:16} {each * 1e6:6.3f} microseconds")
    point = model.by_type("IfcCartesianPoint")[0]
    start = time.perf_counter()
    for _ in range(100_000):
        point.Coordinates
    print(f"{'Coordinates':16} {(time.perf_counter() - start) * 10:6.3f} microseconds")


def measure_command(command: str, path: str) -> float:
    return fastest(lambda: subprocess.run(
        [command, "info", "--dialect", "iso", path], check=True, stdout=subprocess.DEVNULL))


def main(path: str, command: str | None = None) -> None:
    opening = fastest(lambda: kelifc.open(path))
    print(f"open in Python   {opening:.4f} s")
    if command:
        with tempfile.NamedTemporaryFile(suffix=".ifc") as empty:
            kelifc.Model().save(empty.name)
            loading = measure_command(command, path) - measure_command(command, empty.name)
        print(f"load in C++      {loading:.4f} s")
    measure_attributes(kelifc.open(path))


if __name__ == "__main__":
    main(*sys.argv[1:])
