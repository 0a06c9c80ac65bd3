"""Progress, cancellation and interrupts of operations that take long."""

from __future__ import annotations

import os
import signal
import threading
from collections.abc import Callable
from pathlib import Path

import pytest

import kelifc

Progress = Callable[..., object]
Operation = Callable[[kelifc.Model, Path, Progress], object]

OPERATIONS: dict[str, Operation] = {
    "save": lambda model, folder, progress: model.save(folder / "out.ifc", progress=progress),
    "faithful save": lambda model, folder, progress: model.save(
        folder / "out.ifc", faithful=True, progress=progress
    ),
    "building": lambda model, folder, progress: model.building(progress=progress),
    "structure": lambda model, folder, progress: model.structure(progress=progress),
    "export": lambda model, folder, progress: model.building().export(
        "glb", folder / "house.glb", progress=progress
    ),
}


@pytest.fixture(params=list(OPERATIONS))
def operation(request: pytest.FixtureRequest) -> Operation:
    return OPERATIONS[request.param]


def test_progress_reaches_the_end(
    operation: Operation, house: kelifc.Model, tmp_path: Path
) -> None:
    shares: list[float] = []

    def note(done: float, total: float = 1.0) -> None:
        shares.append(done / total)

    operation(house, tmp_path, note)
    assert shares == sorted(shares)
    assert shares[-1] == 1.0


def test_a_progress_function_can_cancel(
    operation: Operation, house: kelifc.Model, tmp_path: Path
) -> None:
    with pytest.raises(kelifc.CancelledError, match="cancelled"):
        operation(house, tmp_path, lambda *numbers: False)
    assert list(tmp_path.iterdir()) == []
    operation(house, tmp_path, lambda *numbers: None)


def test_an_exception_of_a_progress_function_is_raised(
    operation: Operation, house: kelifc.Model, tmp_path: Path
) -> None:
    def fail(*numbers: float) -> None:
        raise ZeroDivisionError("progress")

    with pytest.raises(ZeroDivisionError, match="progress"):
        operation(house, tmp_path, fail)
    assert list(tmp_path.iterdir()) == []


def test_an_interrupt_ends_an_operation(
    operation: Operation, house: kelifc.Model, tmp_path: Path
) -> None:
    def interrupt(*numbers: float) -> None:
        os.kill(os.getpid(), signal.SIGINT)
        for _ in range(1000):  # the interpreter handles the signal between two instructions
            pass

    with pytest.raises(KeyboardInterrupt):
        operation(house, tmp_path, interrupt)
    assert list(tmp_path.iterdir()) == []


def test_other_threads_run_meanwhile(
    operation: Operation, house: kelifc.Model, tmp_path: Path
) -> None:
    ran: list[int] = []

    def see(*numbers: float) -> None:
        thread = threading.Thread(target=ran.append, args=(1,))
        thread.start()
        thread.join()

    operation(house, tmp_path, see)
    assert ran


@pytest.mark.parametrize("name", ["save", "faithful save", "building", "structure"])
def test_a_model_cannot_be_used_meanwhile(
    name: str, house: kelifc.Model, tmp_path: Path
) -> None:
    with pytest.raises(RuntimeError, match="being loaded, saved or converted"):
        OPERATIONS[name](house, tmp_path, lambda *numbers: house.by_type("IfcWall"))


def test_a_failed_export_names_the_path_once(building: kelifc.Building, tmp_path: Path) -> None:
    target = tmp_path / "missing" / "house.glb"
    with pytest.raises(kelifc.ExportError) as caught:
        building.export("glb", target)
    assert str(caught.value) == f"{target}: No such file or directory"


def test_a_cancelled_save_keeps_the_old_file(house: kelifc.Model, tmp_path: Path) -> None:
    target = tmp_path / "model.ifc"
    target.write_text("old")
    for faithful in (False, True):
        with pytest.raises(kelifc.CancelledError) as caught:
            house.save(target, faithful=faithful, progress=lambda done, total: False)
        assert caught.value.path == str(target)
        assert target.read_text() == "old"
        assert list(tmp_path.iterdir()) == [target]
