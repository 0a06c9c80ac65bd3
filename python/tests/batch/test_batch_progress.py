"""The progress of a run."""

from __future__ import annotations

import io

from kelifc.batch.progress import Progress, duration


class Terminal(io.StringIO):
    def isatty(self) -> bool:
        return True


class Clock:
    def __init__(self) -> None:
        self.now = 0.0

    def __call__(self) -> float:
        return self.now


def test_the_line_has_the_share_the_rate_and_the_remaining_time() -> None:
    clock = Clock()
    progress = Progress(4, 4000, io.StringIO(), clock=clock)
    clock.now = 10
    progress.add(1000, "ok", False)
    progress.add(1000, "crash", False)
    assert progress.line() == "2/4 models (50 %), 0.2 per second, 0:00:10 left, crash 1"


def test_models_that_were_done_before_do_not_count_for_the_rate() -> None:
    clock = Clock()
    progress = Progress(3, 3000, io.StringIO(), clock=clock)
    clock.now = 5
    progress.add(1000, "ok", True)
    assert progress.line() == "1/3 models (33 %), skipped 1"
    progress.add(1000, "ok", False)
    assert progress.line() == "2/3 models (66 %), 0.2 per second, 0:00:05 left, skipped 1"


def test_a_terminal_shows_one_line_that_changes() -> None:
    clock, file = Clock(), Terminal()
    progress = Progress(2, 0, file, clock=clock)
    for _ in range(2):
        clock.now += 1
        progress.add(0, "ok", False)
    progress.end()
    assert file.getvalue().count("\n") == 1 and file.getvalue().count("\r") == 3


def test_a_file_gets_a_plain_line_every_ten_seconds() -> None:
    clock, file = Clock(), io.StringIO()
    progress = Progress(30, 0, file, clock=clock)
    for _ in range(30):
        clock.now += 1
        progress.add(0, "ok", False)
    progress.end()
    lines = file.getvalue().splitlines()
    assert [line.split()[0] for line in lines] == ["10/30", "20/30", "30/30"]
    assert "\r" not in file.getvalue() and "\x1b" not in file.getvalue()


def test_a_quiet_run_shows_nothing() -> None:
    clock, file = Clock(), Terminal()
    progress = Progress(1, 0, file, is_quiet=True, clock=clock)
    clock.now = 60
    progress.add(0, "ok", False)
    progress.end()
    assert file.getvalue() == ""


def test_durations_have_hours_minutes_and_seconds() -> None:
    assert [duration(seconds) for seconds in (0, 59.6, 3661, 1e300)] == [
        "0:00:00", "0:01:00", "1:01:01", "277777:46:40"
    ]  # fmt: skip
