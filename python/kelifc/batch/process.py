"""The process that reads one model. It limits itself, and ends with the process that started it.

The first line of standard input is a request as JSON; `answer.json` in its folder is the answer.
Standard input stays open as long as the parent lives.
"""

from __future__ import annotations

import contextlib
import errno
import json
import os
import resource
import sys
import threading
from pathlib import Path
from typing import Any

from kelifc.batch.reading import read_model

# The exit status if the memory did not suffice.
OUT_OF_MEMORY = 86


def peak_memory(process: int | str = "self") -> int | None:
    """Returns the largest resident memory of a process in bytes, or None if the system hides it."""
    try:
        with open(f"/proc/{process}/status", encoding="ascii", errors="replace") as file:
            for line in file:
                if line.startswith("VmHWM:"):
                    return int(line.split()[1]) * 1024
    except (OSError, ValueError):
        pass
    return None


def _end_with_parent() -> None:
    def wait() -> None:
        while os.read(0, 1024):
            pass
        os._exit(1)

    threading.Thread(target=wait, daemon=True).start()


def _limit_memory(memory: int) -> None:
    _, hard = resource.getrlimit(resource.RLIMIT_AS)
    soft = memory if hard == resource.RLIM_INFINITY else min(memory, hard)
    resource.setrlimit(resource.RLIMIT_AS, (soft, hard))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    # If the machine has no memory left, the system ends this process, not the worker.
    with contextlib.suppress(OSError):
        Path("/proc/self/oom_score_adj").write_text("1000", encoding="ascii")


def _answer(request: dict[str, Any]) -> dict[str, Any]:
    folder = Path(request["folder"])
    answer = read_model(request["path"], folder, request["exports"])
    return {**answer, "peakMemory": peak_memory()}


def _read_request() -> dict[str, Any]:
    line = b""
    while not line.endswith(b"\n"):
        part = os.read(0, 65536)
        if not part:
            os._exit(1)
        line += part
    request: dict[str, Any] = json.loads(line)
    return request


def main() -> None:
    """Answers the request and ends the process."""
    request = _read_request()
    _end_with_parent()
    _limit_memory(request["memory"])
    try:
        answer = _answer(request)
        with open(Path(request["folder"]) / "answer.json", "w", encoding="utf-8") as file:
            json.dump(answer, file, allow_nan=False)
    except MemoryError:
        os._exit(OUT_OF_MEMORY)
    except OSError as error:
        if error.errno == errno.ENOMEM:
            os._exit(OUT_OF_MEMORY)
        raise
    # Nothing of the model needs to be freed.
    sys.stderr.flush()
    os._exit(0)


if __name__ == "__main__":
    main()
