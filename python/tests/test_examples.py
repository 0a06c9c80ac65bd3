"""The example scripts, and the page of the documentation that shows their output."""

from __future__ import annotations

import doctest
import os
import re
import subprocess
import sys
from pathlib import Path

import pytest
from conftest import EXAMPLES, ROOT

import kelifc
import kelifc.opening
import kelifc.values

PAGE = ROOT / "docs" / "python.md"


def run(script: str, *arguments: str, folder: Path) -> str:
    command = [sys.executable, str(EXAMPLES / "python" / script), *arguments]
    package = Path(kelifc.__file__).resolve().parents[1]
    environment = {**os.environ, "PYTHONPATH": str(package)}
    finished = subprocess.run(
        command, cwd=folder, capture_output=True, text=True, env=environment
    )
    assert finished.returncode == 0, finished.stderr
    return finished.stdout


def examples_of_the_page() -> list[tuple[list[str], str]]:
    """The commands that the page shows, each with its output."""
    blocks = re.findall(r"^\$ python3 (.*)\n((?:(?!\$ |```).*\n)*)", PAGE.read_text(), re.MULTILINE)
    return [(command.split(), output) for command, output in blocks]


@pytest.mark.skipif("asan" in os.environ.get("LD_PRELOAD", ""), reason="runs other processes")
def test_the_page_shows_the_output_of_the_examples(tmp_path: Path) -> None:
    pytest.importorskip("pandas")
    shown = examples_of_the_page()
    assert len(shown) == 5
    for path in EXAMPLES.glob("*.ifc"):
        (tmp_path / path.name).write_bytes(path.read_bytes())
    for (script, *arguments), output in shown:
        assert run(script, *arguments, folder=tmp_path) == output


def test_the_python_of_the_page_works(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.chdir(EXAMPLES)
    result = doctest.testfile(str(PAGE), module_relative=False)
    assert result.attempted > 0 and result.failed == 0


@pytest.mark.parametrize("module", [kelifc.opening, kelifc.values])
def test_docstrings_are_true(module: object) -> None:
    result = doctest.testmod(module)  # type: ignore[arg-type]
    assert result.attempted > 0 and result.failed == 0


def test_every_public_name_has_a_docstring() -> None:
    for name in kelifc.__all__:
        thing = getattr(kelifc, name)
        assert thing.__doc__ or name.endswith("List"), name
        for member, value in vars(thing).items() if isinstance(thing, type) else ():
            if not member.startswith("_") and (callable(value) or isinstance(value, property)):
                assert value.__doc__, f"{name}.{member}"


def test_the_package_exports_every_compiled_name() -> None:
    from kelifc import _kelifc

    compiled = {name for name in _kelifc.__all__ if not name.startswith("open_")}
    assert compiled <= set(kelifc.__all__)
