"""What a run makes of its tasks."""

from __future__ import annotations

import asyncio
from collections.abc import Callable
from pathlib import Path
from typing import Any

import pytest
from collection import house, query

from kelifc.batch import run as run_module
from kelifc.batch.failure import Failure
from kelifc.batch.inputs import ModelFile, find_models
from kelifc.batch.options import Options
from kelifc.batch.run import Run
from kelifc.batch.store import Store
from kelifc.batch.task import VersionError

distributed = pytest.importorskip("distributed")


class OneAfterTheOther:
    """A client of Dask that runs each task at once, in this process."""

    def __init__(self, raised: BaseException | None = None) -> None:
        self.raised = raised
        self.loop = None
        self.submitted: list[str] = []

    def nthreads(self) -> dict[str, int]:
        return {"worker": 1}

    def submit(self, function: Any, path: str, *arguments: Any, **_: Any) -> Any:
        self.submitted.append(path)
        return Done(function, path, arguments, self.raised)


class Done:
    def __init__(self, function: Any, path: str, arguments: Any, raised: Any) -> None:
        self.call: Callable[[], Any] = lambda: function(path, *arguments)
        self.raised = raised

    def result(self) -> Any:
        if self.raised:
            raise self.raised
        return self.call()


class Waiting(list[Done]):
    """Stands for `as_completed`, which is empty at first."""

    def __init__(self, loop: object) -> None:
        super().__init__()

    def add(self, future: Done) -> None:
        self.append(future)


@pytest.fixture
def models(tmp_path: Path) -> list[ModelFile]:
    (tmp_path / "models").mkdir()
    for number in range(3):
        path = tmp_path / "models" / f"{number}.ifc"
        path.write_bytes(house(str(number)) + b" " * number)
    return find_models([str(tmp_path / "models")])


@pytest.fixture
def run(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Run:
    monkeypatch.setattr(distributed, "as_completed", Waiting)
    store = Store(tmp_path / "out")
    (store.root / "work" / "run").mkdir(parents=True)
    return Run(store, "run", Options(), lambda _: None)


def test_models_are_submitted_in_their_order_and_never_all_at_once(
    run: Run, models: list[ModelFile], monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(run_module, "_LEAST_WINDOW", 1)
    monkeypatch.setattr(run_module, "_WINDOW_PER_THREAD", 1)
    client = OneAfterTheOther()
    seen: list[int] = []
    run.report = lambda _: seen.append(len(client.submitted))
    run.process(client, models)
    assert client.submitted == [model.path for model in models]
    assert seen == [1, 2, 3]
    assert [outcome.status for outcome in run.outcomes] == ["losses"] * 3


def test_the_database_is_written_meanwhile(
    run: Run, models: list[ModelFile], monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(run_module, "_SECONDS_BETWEEN_DATABASES", 0)
    monkeypatch.setattr(run_module, "_SHARE_OF_DATABASES", 1e9)
    run._next_database = 0
    run.process(OneAfterTheOther(), models)
    assert query(run.store.root, "SELECT count(*) FROM models") == [(3,)]
    assert query(run.store.root, "SELECT count(*) FROM elements") == [(33,)]


def test_a_model_whose_workers_end_is_a_crash_that_is_not_kept(
    run: Run, models: list[ModelFile]
) -> None:
    killed = distributed.KilledWorker("task", None, 1)
    run.process(OneAfterTheOther(killed), models)
    assert {(outcome.status, outcome.hash) for outcome in run.outcomes} == {("crash", "")}


@pytest.mark.parametrize(
    "error, message",
    [
        (asyncio.CancelledError(), "the connection to the scheduler was lost"),
        (VersionError("this machine has kelifc 1"), "VersionError: this machine has kelifc 1"),
        (ModuleNotFoundError("No module named 'kelifc'"), "No module named 'kelifc'"),
        (FileNotFoundError(2, "No such file", "/out"), "/out: the cluster does not share"),
    ],
)
def test_a_cluster_that_cannot_work_ends_the_run(
    run: Run, models: list[ModelFile], error: BaseException, message: str
) -> None:
    with pytest.raises(Failure, match=message):
        run.process(OneAfterTheOther(error), models)


def test_results_that_the_client_cannot_see_end_the_run(
    run: Run, models: list[ModelFile], monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(Store, "read_shared", lambda *_: None)
    with pytest.raises(Failure, match="does not share this folder"):
        run.process(OneAfterTheOther(), models)
    assert run.outcomes == []
