"""Which models a run reads: paths, folders, patterns and lists of them."""

from __future__ import annotations

import glob
import os
from collections.abc import Iterator, Sequence
from dataclasses import dataclass

from kelifc.batch.failure import Failure
from kelifc.batch.text import printable

# The endings of the files that a folder contributes.
MODEL_ENDINGS = (".ifc", ".ifczip", ".ifc.gz")


@dataclass(frozen=True)
class ModelFile:
    """A model that a run reads. `size` is in bytes, and 0 if the file cannot be found."""

    path: str
    size: int


def find_models(arguments: Sequence[str]) -> list[ModelFile]:
    """Returns the models that the arguments name, each once, the largest first.

    An argument is a file, a folder with all models below it, a pattern such as `models/**/*.ifc`,
    or a list of those: `@FILE` or `FILE.txt`, one in each line. Raises Failure if an argument names
    nothing. A line of a list that names no file becomes a model that cannot be read.
    """
    paths: set[str] = set()
    for argument in arguments:
        found = {os.path.abspath(path) for path in _paths_of(argument)}
        if not found:
            raise Failure(f"{printable(argument)}: there is no model")
        paths |= found
    models = [ModelFile(path, _size_of(path)) for path in paths]
    return sorted(models, key=lambda model: (-model.size, os.fsencode(model.path)))


def _paths_of(argument: str) -> Iterator[str]:
    if argument.startswith("@") and not os.path.lexists(argument):
        yield from _paths_of_list(argument[1:])
    elif argument.lower().endswith(".txt") and os.path.isfile(argument):
        yield from _paths_of_list(argument)
    elif os.path.lexists(argument):
        yield from _paths_of_one(argument)
    else:
        for path in glob.iglob(argument, recursive=True):
            yield from _paths_of_one(path)


def _paths_of_list(path: str) -> Iterator[str]:
    try:
        with open(path, encoding="utf-8", errors="surrogateescape") as file:
            lines = [line.strip() for line in file]
    except OSError as error:
        raise Failure(f"{printable(path)}: {error.strerror}") from error
    for line in lines:
        if not line or line.startswith("#"):
            continue
        if os.path.lexists(line) or not glob.has_magic(line):
            yield from _paths_of_one(line)
        else:
            for match in glob.iglob(line, recursive=True):
                yield from _paths_of_one(match)


def _paths_of_one(path: str) -> Iterator[str]:
    if not os.path.isdir(path):
        yield path
        return
    for folder, _, names in os.walk(path):
        for name in names:
            if name.lower().endswith(MODEL_ENDINGS):
                yield os.path.join(folder, name)


def _size_of(path: str) -> int:
    try:
        return os.stat(path).st_size
    except (OSError, ValueError):
        return 0
