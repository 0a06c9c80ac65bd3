"""Which models a run reads."""

from __future__ import annotations

from pathlib import Path

import pytest

from kelifc.batch.failure import Failure
from kelifc.batch.inputs import find_models


@pytest.fixture
def folder(tmp_path: Path) -> Path:
    for number, name in enumerate(("a.ifc", "b.IFC", "c.ifczip", "below/d.ifc.gz", "e.doc")):
        path = tmp_path / name
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(b" " * (number + 1))
    return tmp_path


def names(*arguments: object) -> list[str]:
    return [Path(model.path).name for model in find_models([str(text) for text in arguments])]


def test_a_folder_contributes_all_models_below_it_the_largest_first(folder: Path) -> None:
    assert names(folder) == ["d.ifc.gz", "c.ifczip", "b.IFC", "a.ifc"]


def test_a_model_that_is_named_twice_is_read_once(folder: Path) -> None:
    assert names(folder / "a.ifc", folder, folder / "below" / ".." / "a.ifc").count("a.ifc") == 1


def test_models_of_the_same_size_are_in_the_order_of_their_paths(tmp_path: Path) -> None:
    for name in ("c.ifc", "a.ifc", "b.ifc"):
        (tmp_path / name).write_bytes(b"1")
    assert names(tmp_path) == ["a.ifc", "b.ifc", "c.ifc"]


def test_a_file_with_another_ending_is_read_if_it_is_named(folder: Path) -> None:
    assert names(folder / "e.doc") == ["e.doc"]


def test_patterns_find_models_and_folders(folder: Path) -> None:
    assert names(folder / "*.ifc") == ["a.ifc"]
    assert names(folder / "**" / "*.gz") == ["d.ifc.gz"]
    assert names(folder / "bel*") == ["d.ifc.gz"]


@pytest.mark.parametrize("name", ["list.txt", "list"])
def test_a_list_has_a_path_a_folder_or_a_pattern_in_each_line(folder: Path, name: str) -> None:
    lines = ["# models", "", f"{folder}/a.ifc", f"  {folder}/below", f"{folder}/*.IFC"]
    (folder / name).write_text("\n".join(lines))
    argument = folder / name if name.endswith(".txt") else f"@{folder / name}"
    assert names(argument) == ["d.ifc.gz", "b.IFC", "a.ifc"]


def test_a_missing_model_of_a_list_stays_in_the_run(folder: Path) -> None:
    (folder / "list.txt").write_text(f"{folder}/missing.ifc\n")
    models = find_models([str(folder / "list.txt")])
    assert [(Path(model.path).name, model.size) for model in models] == [("missing.ifc", 0)]


@pytest.mark.parametrize("argument", ["missing.ifc", "*.nothing", "@missing", "empty"])
def test_an_argument_that_names_nothing_is_a_failure(
    folder: Path, argument: str, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.chdir(folder)
    (folder / "empty").mkdir()
    with pytest.raises(Failure, match="missing|nothing|empty"):
        find_models(["a.ifc", argument])


def test_a_path_that_is_not_utf_8_is_a_model(tmp_path: Path) -> None:
    path = bytes(tmp_path) + b"/\xff.ifc"
    with open(path, "wb") as file:
        file.write(b"1")
    (model,) = find_models([str(tmp_path)])
    assert model.size == 1
