"""Results on the disk, and which of them a run can use."""

from __future__ import annotations

import json
from dataclasses import replace
from pathlib import Path
from typing import Any

import pytest

from kelifc.batch.options import Options
from kelifc.batch.store import Store, is_done

HASH = "ab" * 32
OPTIONS = Options(exports=("csv",), timeout=10, memory=100, retries=1)


def result(status: str = "ok", options: Options = OPTIONS) -> dict[str, Any]:
    return {"hash": HASH, "status": status, "options": options.to_dict()}


@pytest.fixture
def store(tmp_path: Path) -> Store:
    (tmp_path / "work" / "run").mkdir(parents=True)
    return Store(tmp_path)


def publish(store: Store, status: str = "ok", options: Options = OPTIONS, name: str = "x") -> None:
    work = store.new_work_folder("run")
    (work / name).write_text("content")
    store.publish(work, result(status, options), options)


def test_a_result_is_there_after_it_was_published(store: Store) -> None:
    assert store.read(HASH) is None
    publish(store)
    found = store.read(HASH)
    assert found is not None and found["status"] == "ok"
    assert (store.folder(HASH) / "x").exists()
    assert list((store.root / "work" / "run").iterdir()) == []


def test_a_result_that_another_task_made_stays(store: Store) -> None:
    publish(store, name="first")
    publish(store, name="second")
    assert (store.folder(HASH) / "first").exists()
    assert list((store.root / "work" / "run").iterdir()) == []


def test_a_result_of_other_options_is_replaced(store: Store) -> None:
    publish(store, status="timeout", name="first")
    publish(store, options=replace(OPTIONS, timeout=20), name="second")
    assert sorted(path.name for path in store.folder(HASH).iterdir()) == ["result.json", "second"]
    assert list((store.root / "work" / "run").iterdir()) == []


@pytest.mark.parametrize("damage", [b"", b"[]", b"{", b'{"layout": 1}', b"\xff"])
def test_a_damaged_result_is_none(store: Store, damage: bytes) -> None:
    publish(store)
    (store.folder(HASH) / "result.json").write_bytes(damage)
    assert store.read(HASH) is None


@pytest.mark.parametrize("member, value", [("version", "0"), ("layout", 0), ("hash", "cd" * 32)])
def test_a_result_of_another_version_is_none(store: Store, member: str, value: object) -> None:
    publish(store)
    path = store.folder(HASH) / "result.json"
    path.write_text(json.dumps({**json.loads(path.read_text()), member: value}))
    assert store.read(HASH) is None


def test_a_run_that_has_ended_gives_no_work_folder(store: Store) -> None:
    with pytest.raises(FileNotFoundError):
        store.new_work_folder("another")


@pytest.mark.parametrize("status", ["ok", "losses", "unreadable", "unsupported"])
def test_limits_do_not_change_what_was_read(status: str) -> None:
    assert is_done(result(status), replace(OPTIONS, timeout=99, memory=999, retries=9))
    assert is_done(result(status), replace(OPTIONS, exports=()))
    assert not is_done(result(status), replace(OPTIONS, exports=("csv", "glb")))


@pytest.mark.parametrize(
    "status, name", [("timeout", "timeout"), ("memory", "memory"), ("crash", "retries")]
)
def test_a_failure_is_tried_again_if_its_limit_is_higher(status: str, name: str) -> None:
    limit = getattr(OPTIONS, name)
    assert is_done(result(status), OPTIONS)
    assert is_done(result(status), replace(OPTIONS, **{name: limit - 1}))
    assert not is_done(result(status), replace(OPTIONS, **{name: limit + 1}))
    assert not is_done(result(status), replace(OPTIONS, exports=()))
