"""The task of one model, with the real process that reads it."""

from __future__ import annotations

import os
import time
from dataclasses import replace
from pathlib import Path

import pytest
from collection import environment, house, make_large, step_file

import kelifc
from kelifc.batch.options import MEGABYTE, Options
from kelifc.batch.store import Result, Store
from kelifc.batch.task import Outcome, VersionError, process_model

OPTIONS = Options(timeout=60, memory=1000 * MEGABYTE, retries=0)


@pytest.fixture
def store(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Store:
    (tmp_path / "work" / "run").mkdir(parents=True)
    monkeypatch.setenv("PYTHONPATH", environment(tmp_path)["PYTHONPATH"])
    return Store(tmp_path)


def process(store: Store, path: Path, options: Options = OPTIONS) -> Outcome:
    outcome = process_model(str(path), str(store.root), "run", options, kelifc.__version__)
    assert list((store.root / "work" / "run").iterdir()) == []
    return Outcome(**outcome)


def result_of(store: Store, outcome: Outcome) -> Result:
    result = store.read(outcome.hash)
    assert result is not None and result["status"] == outcome.status
    return result


def made(store: Store, name: str, content: bytes) -> Path:
    (store.root / name).write_bytes(content)
    return store.root / name


def test_a_model_has_rows_counts_and_exports(store: Store) -> None:
    path = made(store, "house.ifc", house())
    outcome = process(store, path, replace(OPTIONS, exports=("csv", "svg")))
    assert (outcome.status, outcome.message) == ("losses", "2 products were lost")
    result = result_of(store, outcome)
    model = result["model"]
    assert (model["release"], model["products"], model["members"]) == ("2x3", 13, 3)
    assert model["lossReasons"] == "no-representation 2"
    assert result["classes"]["IfcWallStandardCase"]["surfaces"] == 4
    assert result["seconds"] > 0 and result["peakMemory"] > MEGABYTE
    names = {entry.name for entry in store.folder(outcome.hash).iterdir()}
    assert names == {"result.json", "elements.jsonl.gz", "losses.jsonl.gz", "csv", "svg"}
    assert [done["elements"] for done in result["exports"]] == [11, 11]


def test_a_model_that_was_read_is_skipped(store: Store) -> None:
    path = made(store, "house.ifc", house())
    first = process(store, path)
    second = process(store, path)
    assert (first.is_skipped, second.is_skipped) == (False, True)
    assert replace(second, is_skipped=False) == first
    path.write_bytes(house("another"))
    assert not process(store, path).is_skipped


def test_exports_of_an_earlier_run_stay(store: Store) -> None:
    path = made(store, "house.ifc", house())
    process(store, path, replace(OPTIONS, exports=("csv",)))
    outcome = process(store, path, replace(OPTIONS, exports=("svg",)))
    assert not outcome.is_skipped
    assert {"csv", "svg"} <= {entry.name for entry in store.folder(outcome.hash).iterdir()}


@pytest.mark.parametrize(
    "content, status, message",
    [
        (b"", "unreadable", "the file is empty"),
        (b"\x00\xff" * 999, "unreadable", "not a STEP file"),
        (step_file(schema="IFC4"), "unsupported", "the release IFC4 is not supported"),
        (step_file(schema="IFC20_LONGFORM"), "unsupported", "release 2.0 cannot be converted"),
    ],
)
def test_a_bad_model_has_a_result(
    store: Store, content: bytes, status: str, message: str
) -> None:
    outcome = process(store, made(store, "bad.ifc", content))
    assert (outcome.status, outcome.message) == (status, message)
    assert result_of(store, outcome)["status"] == status


def test_a_file_that_cannot_be_read_has_no_result_on_the_disk(store: Store) -> None:
    os.mkfifo(store.root / "pipe.ifc")
    (store.root / "folder.ifc").mkdir()
    for name in ("pipe.ifc", "folder.ifc", "missing.ifc"):
        outcome = process(store, store.root / name)
        assert (outcome.status, outcome.hash) == ("unreadable", "") and outcome.message


def test_a_process_that_needs_too_long_is_stopped(store: Store) -> None:
    path = made(store, "slow.ifc", house())
    outcome = process(store, path, replace(OPTIONS, timeout=1, exports=("csv",)))
    assert (outcome.status, outcome.message) == ("timeout", "not done after 1 s")
    assert [entry.name for entry in store.folder(outcome.hash).iterdir()] == ["result.json"]
    assert result_of(store, outcome)["peakMemory"] > MEGABYTE


def test_a_process_that_needs_too_much_memory_is_stopped(store: Store) -> None:
    make_large(store.root / "hog.ifc.gz", 1_000_000)
    outcome = process(store, store.root / "hog.ifc.gz", replace(OPTIONS, memory=120 * MEGABYTE))
    assert (outcome.status, outcome.message) == ("memory", "more than 120 MB are needed")
    assert process(store, store.root / "hog.ifc.gz").status == "ok"


def test_a_process_that_crashes_is_tried_again(store: Store) -> None:
    path = made(store, "killer.ifc", house())
    outcome = process(store, path, replace(OPTIONS, retries=2))
    assert (outcome.status, outcome.message) == ("crash", "the process ended by SIGKILL")
    assert result_of(store, outcome)["attempts"] == 3


def test_an_exception_is_a_crash_with_its_text(store: Store) -> None:
    outcome = process(store, made(store, "broken.ifc", house()))
    assert outcome.message == "the process ended with the status 1: RuntimeError: broken"


def test_another_version_is_refused(store: Store) -> None:
    with pytest.raises(VersionError, match="has kelifc .*, the client 0"):
        process_model("x.ifc", str(store.root), "run", OPTIONS, "0")


def test_a_process_ends_with_its_parent(store: Store) -> None:
    path = made(store, "slow.ifc", house())
    child = os.fork()
    if child == 0:
        process_model(str(path), str(store.root), "run", OPTIONS, kelifc.__version__)
        os._exit(0)
    psutil = pytest.importorskip("psutil")
    deadline = time.monotonic() + 30
    readers: list[object] = []
    while not readers and time.monotonic() < deadline:
        time.sleep(0.1)
        readers = psutil.Process(child).children()
    os.kill(child, 9)
    os.waitpid(child, 0)
    _, alive = psutil.wait_procs(readers, timeout=30)
    assert readers and not alive
