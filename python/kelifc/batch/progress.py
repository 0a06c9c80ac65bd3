"""Shows how far a run is: a line that changes on a terminal, and plain lines elsewhere."""

from __future__ import annotations

import time
from collections import Counter
from collections.abc import Callable
from typing import TextIO

from kelifc.batch.options import MEGABYTE

# What the start of a process costs, as bytes of a model that are read in the same time.
_COST_OF_START = 2 * MEGABYTE

_SECONDS_BETWEEN_LINES = 10.0
_SECONDS_BETWEEN_CHANGES = 0.2


class Progress:
    """Counts the models that are done. `clock` returns seconds."""

    def __init__(
        self,
        models: int,
        size: int,
        file: TextIO,
        is_quiet: bool = False,
        clock: Callable[[], float] = time.monotonic,
    ) -> None:
        self._models = models
        self._cost = size + models * _COST_OF_START
        self._file = file
        self._is_quiet = is_quiet
        self._is_terminal = file.isatty()
        self._clock = clock
        self._start = clock()
        self._shown = self._start
        self._read = 0
        self._read_cost = 0
        self._skipped_cost = 0
        self._counts: Counter[str] = Counter()

    def add(self, size: int, status: str, is_skipped: bool) -> None:
        """Counts one model of `size` bytes."""
        self._counts["skipped" if is_skipped else status] += 1
        if is_skipped:
            self._skipped_cost += size + _COST_OF_START
        else:
            self._read += 1
            self._read_cost += size + _COST_OF_START
        wait = _SECONDS_BETWEEN_CHANGES if self._is_terminal else _SECONDS_BETWEEN_LINES
        if self._clock() - self._shown >= wait:
            self._show()

    def end(self) -> None:
        """Ends the line on a terminal."""
        if self._is_terminal and not self._is_quiet:
            self._show()
            self._file.write("\n")
            self._file.flush()

    def line(self) -> str:
        """Returns the state in one line."""
        done = sum(self._counts.values())
        share = 100 * done // self._models if self._models else 100
        parts = [f"{done}/{self._models} models ({share} %)"]
        seconds = self._clock() - self._start
        if self._read and seconds > 0:
            parts.append(f"{self._read / seconds:.1f} per second")
            left = max(0, self._cost - self._skipped_cost - self._read_cost)
            parts.append(f"{duration(left * seconds / self._read_cost)} left")
        bad = [name for name in sorted(self._counts) if name != "ok"]
        parts += [f"{name} {self._counts[name]}" for name in bad]
        return ", ".join(parts)

    def _show(self) -> None:
        self._shown = self._clock()
        if self._is_quiet:
            return
        self._file.write(f"\r\x1b[K{self.line()}" if self._is_terminal else self.line() + "\n")
        self._file.flush()


def duration(seconds: float) -> str:
    """Returns a duration as H:MM:SS."""
    whole = int(min(seconds, 1e9) + 0.5)
    return f"{whole // 3600}:{whole // 60 % 60:02d}:{whole % 60:02d}"
