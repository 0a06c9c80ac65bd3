"""Starts the process that reads a model, and says how it ended."""

from __future__ import annotations

import json
import os
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path
from typing import Any

import kelifc
from kelifc.batch.options import MEGABYTE, Options
from kelifc.batch.process import OUT_OF_MEMORY, peak_memory
from kelifc.batch.text import printable

_ERRORS = "errors.txt"
_ANSWER = "answer.json"

# What the runtime writes if a part that cannot report it runs out of memory.
_MEMORY_MARKS = ("std::bad_alloc", "MemoryError", "Cannot allocate memory")

Ended = dict[str, Any]


def read_in_process(path: str, work: Path, exports: list[str], options: Options) -> Ended:
    """Reads a model in a process of its own, and leaves its rows and exports in the work folder.

    Returns the answer of the process with `seconds`, `peakMemory` in bytes and `attempts`. After a
    timeout, a lack of memory or a crash the folder is empty and the answer says so.
    """
    attempts = 0
    while True:
        attempts += 1
        start = time.monotonic()
        ended = _attempt(path, work, exports, options)
        ended.update(seconds=round(time.monotonic() - start, 3), attempts=attempts)
        if ended["status"] in ("timeout", "memory", "crash"):
            _clear(work)
        if ended["status"] != "crash" or attempts > options.retries:
            return ended


def _attempt(path: str, work: Path, exports: list[str], options: Options) -> Ended:
    request = {"path": path, "folder": str(work), "exports": exports, "memory": options.memory}
    with open(work / _ERRORS, "wb") as errors:
        process = subprocess.Popen(
            [sys.executable, "-m", "kelifc.batch.process"],
            stdin=subprocess.PIPE,
            stdout=subprocess.DEVNULL,
            stderr=errors,
            cwd=work,
            env=_environment(),
            start_new_session=True,
        )
    try:
        _send(process, request)
        process.wait(options.timeout)
    except subprocess.TimeoutExpired:
        peak = peak_memory(process.pid)
        return _failed("timeout", f"not done after {options.timeout:g} s", peak)
    finally:
        _stop(process)
    return _ended(process.returncode, work, options)


def _environment() -> dict[str, str]:
    # The process starts in another folder, so the path of the package must be absolute. One thread
    # and one heap keep the address space small.
    package = str(Path(os.path.abspath(kelifc.__file__)).parents[1])
    inherited = os.environ.get("PYTHONPATH", "").split(os.pathsep)
    paths = [os.path.abspath(path) for path in inherited if path] + [package]
    return {
        **os.environ,
        "PYTHONPATH": os.pathsep.join(dict.fromkeys(paths)),
        "OPENBLAS_NUM_THREADS": "1",
        "MALLOC_ARENA_MAX": "1",
        "PYTHONDONTWRITEBYTECODE": "1",
    }


def _send(process: subprocess.Popen[bytes], request: dict[str, Any]) -> None:
    assert process.stdin is not None
    try:
        process.stdin.write(json.dumps(request).encode() + b"\n")
        process.stdin.flush()
    except BrokenPipeError:
        pass  # It has ended; its exit status says more.


def _stop(process: subprocess.Popen[bytes]) -> None:
    assert process.stdin is not None
    if process.poll() is None:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
    try:
        process.stdin.close()
    except BrokenPipeError:
        pass


def _ended(code: int, work: Path, options: Options) -> Ended:
    errors = (work / _ERRORS).read_bytes()[-65536:].decode("utf-8", "replace")
    if code == 0:
        answer: Ended = json.loads((work / _ANSWER).read_bytes())
        (work / _ANSWER).unlink()
        (work / _ERRORS).unlink()
        return answer
    if code == OUT_OF_MEMORY or any(mark in errors for mark in _MEMORY_MARKS):
        return _failed("memory", f"more than {options.memory / MEGABYTE:g} MB are needed")
    lines = errors.strip().splitlines()
    detail = f": {printable(lines[-1], 200)}" if lines else ""
    return _failed("crash", _how(code) + detail)


def _how(code: int) -> str:
    if code >= 0:
        return f"the process ended with the status {code}"
    try:
        return f"the process ended by {signal.Signals(-code).name}"
    except ValueError:
        return f"the process ended by the signal {-code}"


def _failed(status: str, message: str, peak: int | None = None) -> Ended:
    empty: Ended = {"model": {}, "classes": {}, "exports": []}
    return {"status": status, "message": message, "peakMemory": peak, **empty}


def _clear(folder: Path) -> None:
    for entry in os.scandir(folder):
        if entry.is_dir(follow_symlinks=False):
            shutil.rmtree(entry.path)
        else:
            os.unlink(entry.path)
